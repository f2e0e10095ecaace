#include "fatturapa/archiviofel.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr qsizetype cifreProgressivo = 5;
constexpr int base = 36;
/// 32,767 documents with all their fields come to a tenth of this.
constexpr qint64 byteMassimi = 64 * 1024 * 1024;

const QString sezioneAzienda = u"azienda"_s;
const QString sezioneNature = u"nature"_s;
const QString prefissoCliente = u"cliente "_s;
const QString prefissoDocumento = u"documento "_s;

bool progressivoValido(QStringView testo) {
    return testo.size() == cifreProgressivo && std::ranges::all_of(testo, [](QChar c) {
               return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z');
           });
}

QString identita(const Cli& cli) {
    const QString partitaiva = puliscitesto(cli.partitaiva.text());
    return partitaiva.isEmpty() ? maiuscolo(puliscitesto(cli.codicefiscale.text())) : partitaiva;
}

/// The creation stamp names a document for good; one from before the stamps is named by day and number.
QString sezioneDocumento(const Fte& fte) {
    const double stamp = fte.stamp;
    if (std::isfinite(stamp) && stamp != 0)
        return prefissoDocumento + QString::number(stamp, 'g', 17);
    return prefissoDocumento + puliscitesto(fte.datadoc.text()) + u' ' + puliscitesto(fte.numero.text()) +
           u' ' + QString::number(int{fte.tipo});
}

template <class T>
T leggiCampi(const FileFel& file, const QString& sezione) {
    T dati;
    campiFel(dati, [&](QStringView chiave, QString& campo) { campo = file.valore(sezione, chiave); });
    return dati;
}

template <class T>
void scriviCampi(FileFel& file, const QString& sezione, T dati) {
    campiFel(dati, [&](QStringView chiave, QString& campo) { file.metti(sezione, chiave, campo); });
}

/// The highest progressive in the file, the counter's own or a document's: a counter that somebody edited
/// back gives out none twice.
QString ultimoProgressivo(const FileFel& file) {
    QString ultimo = file.valore(sezioneAzienda, u"contatore");
    if (!progressivoValido(ultimo))
        ultimo.clear();
    for (const QString& sezione : file.sezioni()) {
        if (!sezione.startsWith(prefissoDocumento))
            continue;
        const QString suoi = file.valore(sezione, u"file") + u' ' + file.valore(sezione, u"scartati");
        for (const QStringView suo : QStringView(suoi).split(u' '))
            if (progressivoValido(suo))
                ultimo = std::max(ultimo, suo.toString());
    }
    return ultimo;
}

} // namespace

QString prossimoProgressivo(QStringView ultimo) {
    const int n = progressivoValido(ultimo) ? ultimo.toInt(nullptr, base) + 1 : 1;
    const QString testo = QString::number(n, base).toUpper();
    return testo.size() > cifreProgressivo ? QString() : testo.rightJustified(cifreProgressivo, u'0');
}

QString ArchivioFel::percorso() const {
    return m_archivio.reale(m_archivio.borlano(u"fel"));
}

void ArchivioFel::usa(FileFel file) {
    m_file = std::move(file);
    m_clienti.clear();
    for (const QString& sezione : m_file.sezioni()) {
        const QString chi = sezione.section(u' ', 2);
        if (sezione.startsWith(prefissoCliente) && !chi.isEmpty() && !m_clienti.contains(chi))
            m_clienti.insert(chi, sezione);
    }
}

ArchivioFel::Stato ArchivioFel::leggi() {
    usa(FileFel());
    QFile file(percorso());
    if (!file.exists())
        return Stato::Assente;
    if (!file.open(QIODevice::ReadOnly) || file.size() > byteMassimi)
        return Stato::Illeggibile;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError || bytes.size() != file.size())
        return Stato::Illeggibile;
    usa(FileFel(bytes));
    return Stato::Letto;
}

bool ArchivioFel::cambia(const std::function<bool(FileFel&)>& come) {
    const BloccoByte blocco(m_archivio.tot, byteContatori);
    if (blocco.occupato() || leggi() == Stato::Illeggibile)
        return false;
    FileFel nuovo = m_file;
    if (!come(nuovo))
        return true;
    if (!m_archivio.disco().scriviFile(percorso(), nuovo.bytes()))
        return false;
    usa(std::move(nuovo));
    return true;
}

AziendaFel ArchivioFel::azienda() const {
    return leggiCampi<AziendaFel>(m_file, sezioneAzienda);
}

NatureFel ArchivioFel::nature() const {
    NatureFel nature;
    for (std::size_t codice = 1; codice < nature.size(); ++codice)
        nature[codice] = m_file.valore(sezioneNature, QString::number(codice));
    return nature;
}

QString ArchivioFel::sezioneCliente(int record, const Cli& cli) const {
    const QString chi = identita(cli);
    const QString propria = prefissoCliente + QString::number(record) + u' ' + chi;
    return chi.isEmpty() || m_file.haSezione(propria) ? propria : m_clienti.value(chi, propria);
}

ClienteFel ArchivioFel::cliente(int record, const Cli& cli) const {
    return leggiCampi<ClienteFel>(m_file, sezioneCliente(record, cli));
}

DocumentoFel ArchivioFel::documento(const Fte& fte) const {
    return leggiCampi<DocumentoFel>(m_file, sezioneDocumento(fte));
}

bool ArchivioFel::salva(const AziendaFel& azienda) {
    return cambia([&](FileFel& file) {
        scriviCampi(file, sezioneAzienda, azienda);
        return true;
    });
}

bool ArchivioFel::salva(const NatureFel& nature) {
    return cambia([&](FileFel& file) {
        for (std::size_t codice = 1; codice < nature.size(); ++codice)
            file.metti(sezioneNature, QString::number(codice), nature[codice]);
        return true;
    });
}

bool ArchivioFel::salva(int record, const Cli& cli, const ClienteFel& cliente) {
    return cambia([&](FileFel& file) {
        scriviCampi(file, sezioneCliente(record, cli), cliente);
        return true;
    });
}

bool ArchivioFel::salva(const Fte& fte, const DocumentoFel& documento) {
    return cambia([&](FileFel& file) {
        const QString sezione = sezioneDocumento(fte);
        DocumentoFel nuovo = documento;
        nuovo.file = file.valore(sezione, u"file"); // never taken back by an edit
        nuovo.scartati = file.valore(sezione, u"scartati");
        scriviCampi(file, sezione, nuovo);
        return true;
    });
}

bool ArchivioFel::collega(const Fte& fte, const QString& numero, const QString& data) {
    return cambia([&](FileFel& file) {
        const QString sezione = sezioneDocumento(fte);
        auto dati = leggiCampi<DocumentoFel>(file, sezione);
        dati.collegatanumero = numero;
        dati.collegatadata = data;
        scriviCampi(file, sezione, std::move(dati));
        return true;
    });
}

QStringList ArchivioFel::progressivi(std::span<const Fte> documenti, const Occupato& occupato) {
    QStringList dati;
    const bool scritti = cambia([&](FileFel& file) {
        std::optional<QString> ultimo;
        for (const Fte& fte : documenti) {
            const QString sezione = sezioneDocumento(fte);
            dati.append(file.valore(sezione, u"file"));
            if (progressivoValido(dati.last()))
                continue;
            QString dato = ultimo ? *ultimo : ultimoProgressivo(file);
            do
                dato = prossimoProgressivo(dato);
            while (!dato.isEmpty() && occupato(dato));
            dati.last() = dato;
            if (dato.isEmpty())
                break;
            ultimo = dato;
            file.metti(sezioneAzienda, u"contatore", dato);
            file.metti(sezione, u"file", dato);
        }
        return ultimo.has_value();
    });
    if (!scritti)
        dati.clear();
    dati.resize(std::ssize(documenti));
    return dati;
}

bool ArchivioFel::scarta(const Fte& fte) {
    return cambia([&](FileFel& file) {
        const QString sezione = sezioneDocumento(fte);
        const QString dato = file.valore(sezione, u"file");
        if (dato.isEmpty())
            return false;
        file.metti(sezione, u"scartati", (file.valore(sezione, u"scartati") + u' ' + dato).trimmed());
        file.metti(sezione, u"file", {});
        return true;
    });
}

QString ArchivioFel::progressivo(const Fte& fte, const Occupato& occupato) {
    return progressivi(std::span(&fte, 1), occupato).first();
}

} // namespace bor
