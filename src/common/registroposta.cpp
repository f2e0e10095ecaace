#include "common/registroposta.h"

#include "common/percorsi.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

const std::array stati{u"affidata"_s, u"spedita"_s, u"non spedita"_s};

QByteArray linea(const VocePosta& voce) {
    QJsonObject o{{u"quando"_s, voce.quando.toUTC().toString(Qt::ISODateWithMs)},
                  {u"pdf"_s, voce.pdf},
                  {u"indirizzo"_s, voce.indirizzo},
                  {u"stato"_s, stati[static_cast<std::size_t>(voce.stato)]}};
    if (!voce.documento.vuoto()) {
        o[u"numero"_s] = voce.documento.numero;
        o[u"data"_s] = voce.documento.data;
        o[u"stamp"_s] = voce.documento.stamp;
    }
    if (!voce.motivo.isEmpty())
        o[u"motivo"_s] = voce.motivo;
    return QJsonDocument(o).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<VocePosta> leggiLinea(const QByteArray& bytes) {
    const QJsonObject o = QJsonDocument::fromJson(bytes).object();
    const auto stato = std::ranges::find(stati, o[u"stato"_s].toString());
    VocePosta voce{
        .quando = QDateTime::fromString(o[u"quando"_s].toString(), Qt::ISODateWithMs).toLocalTime(),
        .documento = {o[u"numero"_s].toString(), o[u"data"_s].toString(), o[u"stamp"_s].toDouble()},
        .pdf = o[u"pdf"_s].toString(),
        .indirizzo = o[u"indirizzo"_s].toString(),
        .motivo = o[u"motivo"_s].toString()};
    if (stato == stati.end() || !voce.quando.isValid())
        return std::nullopt;
    voce.stato = static_cast<StatoPosta>(stato - stati.begin());
    return voce;
}

bool stessoInvio(const VocePosta& affidata, const VocePosta& finita) {
    return affidata.pdf.compare(finita.pdf, Qt::CaseInsensitive) == 0 &&
           affidata.indirizzo == finita.indirizzo;
}

} // namespace

bool DocumentoPosta::stesso(const DocumentoPosta& altro) const {
    if (stamp != 0.0 && altro.stamp != 0.0)
        return stamp == altro.stamp;
    return !vuoto() && numero == altro.numero && data == altro.data;
}

RegistroPosta::RegistroPosta(const Percorsi& percorsi, double codiceazienda)
    : m_file(percorsi.promemoria(codiceazienda)) {
    m_file = m_file.left(m_file.lastIndexOf(u'.')) + u".posta"_s;
}

std::optional<RegistroPosta> RegistroPosta::diFile(const Percorsi& percorsi, const QString& file) {
    bool numero = false;
    const QString cartella = file.left(file.lastIndexOf(u'\\'));
    const int codice = cartella.right(3).toInt(&numero);
    if (!numero || cartella.compare(cartellaAzienda(codice), Qt::CaseInsensitive) != 0)
        return std::nullopt;
    return RegistroPosta(percorsi, codice);
}

bool RegistroPosta::aggiungi(const VocePosta& voce) const {
    QDir().mkpath(QFileInfo(m_file).path());
    QFile file(m_file);
    const QByteArray bytes = linea(voce);
    return file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered) &&
           file.write(bytes) == bytes.size();
}

std::vector<VocePosta> RegistroPosta::voci(const DocumentoPosta& documento) const {
    std::vector<VocePosta> tutte;
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly))
        return tutte;
    while (!file.atEnd()) {
        auto voce = leggiLinea(file.readLine());
        if (!voce)
            continue;
        const auto affidata = std::find_if(tutte.rbegin(), tutte.rend(), [&](const VocePosta& v) {
            return v.stato == StatoPosta::Affidata && stessoInvio(v, *voce);
        });
        if (voce->stato == StatoPosta::Affidata || affidata == tutte.rend()) {
            tutte.push_back(*std::move(voce));
        } else {
            voce->documento = affidata->documento;
            *affidata = *std::move(voce);
        }
    }
    std::erase_if(tutte, [&](const VocePosta& voce) { return !voce.documento.stesso(documento); });
    std::ranges::reverse(tutte);
    return tutte;
}

} // namespace bor
