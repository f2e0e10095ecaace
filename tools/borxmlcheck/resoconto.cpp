#include "borxmlcheck/resoconto.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor::resoconto {

namespace {

QJsonObject oggetto(const Rilievo& r) {
    return {{u"gravita"_s, r.gravita == Gravita::Errore ? u"errore"_s : u"avviso"_s},
            {u"codice"_s, r.codice},
            {u"elemento"_s, r.elemento},
            {u"riga"_s, r.riga},
            {u"valore"_s, r.valore},
            {u"motivo"_s, r.motivo},
            {u"rimedio"_s, r.rimedio}};
}

QString inJson(const RilieviFile& file) {
    QJsonArray rilievi;
    for (const Rilievo& r : file.rilievi)
        rilievi.append(oggetto(r));
    const QJsonObject tutto{{u"file"_s, file.file}, {u"rilievi"_s, rilievi}};
    return QString::fromUtf8(QJsonDocument(tutto).toJson(QJsonDocument::Compact));
}

QString inTesto(const RilieviFile& file) {
    QString testo = u"%1: %2.\n"_s.arg(file.file, contoRilievi(file.rilievi));
    if (!file.rilievi.empty())
        testo += u'\n';
    for (const Rilievo& r : file.rilievi)
        testo += testoRilievo(r) + u'\n';
    return testo;
}

} // namespace

QString Resoconto::aggiungi(const RilieviFile& file) {
    ++m_file;
    m_conRilievi += std::ranges::count(file.rilievi, Gravita::Errore, &Rilievo::gravita) > 0 ? 1 : 0;
    if (!m_json)
        return inTesto(file);
    return (m_file == 1 ? u"[\n"_s : u",\n"_s) + inJson(file);
}

QString Resoconto::chiudi() const {
    if (m_json)
        return m_file == 0 ? u"[]\n"_s : u"\n]\n"_s;
    return m_file > 1 ? u"%1 file, %2 con rilievi.\n"_s.arg(m_file).arg(m_conRilievi) : QString();
}

int Resoconto::esito() const {
    return std::min(m_conRilievi, esitoErrore - 1);
}

} // namespace bor::resoconto
