#include "archive/recupero.h"

#include "archive/archivio.h"
#include "archive/raffica.h"

#include <QFileInfo>

#include <optional>
#include <utility>

namespace bor {

namespace {

/// A log beyond this size gives its room back when it is emptied.
constexpr qint64 diarioGrande = 1 << 20;

/// Each byte is one of the two: the record before, after, or torn between them.
bool mescolanza(const QByteArray& bytes, const VoceDiario& voce) {
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != voce.prima[i] && bytes[i] != voce.dopo[i])
            return false;
    }
    return true;
}

qint64 posto(const VoceDiario& voce) {
    return qint64{voce.record - 1} * voce.prima.size();
}

/// The record as it is by now; nothing when it could not be read.
std::optional<QByteArray> attuale(const Archivio& archivio, const VoceDiario& voce) {
    QByteArray bytes(voce.prima.size(), '\0');
    if (archivio.fileDiRecord(voce.file).leggiBytes(posto(voce), std::as_writable_bytes(std::span(bytes))) <
        0)
        return std::nullopt;
    return bytes;
}

QString nomeRecord(const VoceDiario& voce) {
    return QStringLiteral("borlano.%1 n. %2").arg(fileDiRaffica[voce.file].estensione).arg(voce.record);
}

/// Every record of the log holds the bytes after its burst; nothing when one could not be read.
std::optional<bool> compiuto(Archivio& archivio, const Diario& diario) {
    for (const VoceDiario& voce : diario.voci) {
        const auto bytes = attuale(archivio, voce);
        if (!bytes)
            return std::nullopt;
        if (*bytes != voce.dopo)
            return false;
    }
    return true;
}

/// What this program told its operator had failed, another one may have completed since. As long as nobody
/// has built on it, it is taken back, so that the repeat counts nothing twice.
EsitoRaffica disfa(FileDiario& file, Archivio& archivio) {
    auto fallito = decodifica(archivio.daAnnullare());
    const auto fatto = fallito ? compiuto(archivio, *fallito) : false;
    if (!fatto)
        return EsitoRaffica::NonLetta;
    if (*fatto) {
        for (VoceDiario& voce : fallito->voci)
            std::swap(voce.prima, voce.dopo);
        QStringList lasciati;
        if (!file.scrivi(*fallito))
            return EsitoRaffica::NonScritta;
        if (const EsitoRaffica esito = file.completa(*fallito, lasciati); esito != EsitoRaffica::Riuscita)
            return esito;
    }
    archivio.tieniDaAnnullare({});
    return EsitoRaffica::Riuscita;
}

} // namespace

QStringList recordEstranei(const Archivio& archivio, const Diario& diario) {
    QStringList estranei;
    for (const VoceDiario& voce : diario.voci) {
        const auto bytes = attuale(archivio, voce);
        if (bytes && !mescolanza(*bytes, voce))
            estranei.append(nomeRecord(voce));
    }
    return estranei;
}

FileDiario::FileDiario(Archivio& archivio) : m_archivio(archivio), m_file(archivio.disco()) {}

bool FileDiario::apri() {
    return m_file.apri(m_archivio.reale(m_archivio.borlano(u"rip")));
}

bool FileDiario::scrivi(const Diario& diario) {
    QByteArray bytes = codifica(diario);
    const bool nuovo = m_file.lunghezza() == 0;
    if (!m_file.scriviBytes(0, std::as_bytes(std::span(bytes))) || !m_file.scarica())
        return false;
    if (nuovo)
        m_archivio.disco().scaricaCartella(QFileInfo(m_file.percorso()).path());
    return true;
}

bool FileDiario::svuota() {
    if (!m_file.scriviBytes(0, std::as_bytes(std::span(diarioVuoto))) || !m_file.scarica())
        return false;
    if (m_file.lunghezza() > diarioGrande)
        m_file.accorcia(std::ssize(diarioVuoto));
    return true;
}

EsitoRaffica FileDiario::completa(const Diario& diario, QStringList& lasciati) {
    return porta(diario, Verso::Dopo, lasciati);
}

EsitoRaffica FileDiario::annulla(const Diario& diario) {
    QStringList lasciati;
    const EsitoRaffica esito = porta(diario, Verso::Prima, lasciati);
    m_archivio.tieniDaAnnullare(esito == EsitoRaffica::Riuscita ? QByteArray() : codifica(diario));
    return esito;
}

EsitoRaffica FileDiario::recupera() {
    const qint64 lunghezza = std::min(m_file.lunghezza(), massimoDiario);
    QByteArray bytes(static_cast<qsizetype>(lunghezza), '\0');
    if (m_file.leggiBytes(0, std::as_writable_bytes(std::span(bytes))) < 0)
        return EsitoRaffica::NonLetta;
    const auto diario = decodifica(bytes);
    if (!diario)
        return disfa(*this, m_archivio);
    const QByteArray& nostro = m_archivio.daAnnullare();
    if (!nostro.isEmpty() && bytes.startsWith(nostro))
        return annulla(*diario);
    const bool finito = !m_archivio.finito().isEmpty() && bytes.startsWith(m_archivio.finito());
    Recupero recupero{diario->documento, {}};
    const EsitoRaffica esito = completa(*diario, recupero.lasciati);
    if (esito == EsitoRaffica::Riuscita && !finito)
        m_archivio.annota(recupero);
    return esito == EsitoRaffica::Riuscita ? disfa(*this, m_archivio) : esito;
}

EsitoRaffica FileDiario::porta(const Diario& diario, Verso verso, QStringList& lasciati) {
    std::array<bool, fileDiRaffica.size()> toccati{};
    for (const VoceDiario& voce : diario.voci) {
        const EsitoRaffica esito = portaVoce(voce, verso, lasciati);
        if (esito != EsitoRaffica::Riuscita)
            return esito;
        toccati[voce.file] = true;
    }
    // What the interrupted run itself wrote may not be on the disk yet either.
    for (std::size_t i = 0; i < toccati.size(); ++i) {
        if (toccati[i] && !m_archivio.fileDiRecord(i).scarica())
            return EsitoRaffica::NonScritta;
    }
    return svuota() ? EsitoRaffica::Riuscita : EsitoRaffica::NonScritta;
}

EsitoRaffica FileDiario::portaVoce(const VoceDiario& voce, Verso verso, QStringList& lasciati) {
    FileCasuale& file = m_archivio.fileDiRecord(voce.file);
    const auto bytes = attuale(m_archivio, voce);
    if (!bytes)
        return EsitoRaffica::NonLetta;
    if (!mescolanza(*bytes, voce)) {
        lasciati.append(nomeRecord(voce));
        return EsitoRaffica::Riuscita;
    }
    // Written also where it seems to be there: zero bytes at its end may only be the end of the file.
    QByteArray meta = verso == Verso::Dopo ? voce.dopo : voce.prima;
    // Putting back needs no room: a file never grows by it.
    if (verso == Verso::Prima)
        meta.truncate(std::clamp<qint64>(file.lunghezza() - posto(voce), 0, meta.size()));
    return file.scriviBytes(posto(voce), std::as_bytes(std::span(meta))) ? EsitoRaffica::Riuscita
                                                                         : EsitoRaffica::NonScritta;
}

EsitoRaffica recupera(Archivio& archivio) {
    if (!QFileInfo::exists(archivio.reale(archivio.borlano(u"rip"))))
        return EsitoRaffica::Riuscita;
    return Raffica(archivio, {}).esito();
}

} // namespace bor
