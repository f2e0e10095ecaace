#include "common/lottopdf.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QByteArray inLinea(const QJsonObject& oggetto) {
    return QJsonDocument(oggetto).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

QByteArray ComandoLotto::linea() const {
    if (!pdf.isEmpty())
        return inLinea({{u"pdf"_s, pdf}, {u"layout"_s, layout}, {u"byte"_s, byte}});
    return inLinea({{u"indirizzo"_s, indirizzo},
                    {u"layout"_s, layout},
                    {u"testo"_s, testo},
                    {u"allegati"_s, QJsonArray::fromStringList(allegati)}});
}

std::optional<ComandoLotto> ComandoLotto::leggi(const QByteArray& linea) {
    const QJsonObject o = QJsonDocument::fromJson(linea).object();
    ComandoLotto comando{.layout = o[u"layout"_s].toString(),
                         .pdf = o[u"pdf"_s].toString(),
                         .byte = o[u"byte"_s].toInteger(),
                         .indirizzo = o[u"indirizzo"_s].toString(),
                         .testo = o[u"testo"_s].toString()};
    for (const auto& allegato : o[u"allegati"_s].toArray())
        comando.allegati.append(allegato.toString());
    const bool unPdf = !comando.pdf.isEmpty() && comando.byte >= 0 && comando.byte <= massimoRapporto;
    const bool unaPosta = comando.pdf.isEmpty() && !comando.allegati.isEmpty();
    return unPdf || unaPosta ? std::optional(std::move(comando)) : std::nullopt;
}

QByteArray RispostaLotto::linea() const {
    return inLinea({{u"fatto"_s, errore.isEmpty()}, {u"errore"_s, errore}});
}

std::optional<RispostaLotto> RispostaLotto::leggi(const QByteArray& linea) {
    const QJsonObject o = QJsonDocument::fromJson(linea).object();
    if (!o[u"fatto"_s].isBool())
        return std::nullopt;
    const QString errore = o[u"errore"_s].toString();
    return RispostaLotto{o[u"fatto"_s].toBool() ? QString()
                         : errore.isEmpty()     ? u"il programma dei PDF non ha detto perché"_s
                                                : errore};
}

} // namespace bor
