#include "ui/validatoreimporto.h"

#include <algorithm>

namespace bor {

namespace {

/// Takes away what `via` names, and moves the cursor along.
template <class Via>
void togli(QString& testo, int& posizione, const Via& via) {
    QString resto;
    int prima = 0;
    for (qsizetype i = 0; i < testo.size(); ++i) {
        if (!via(i))
            resto += testo[i];
        else if (i < posizione)
            ++prima;
    }
    posizione -= prima;
    testo = resto;
}

bool ornamento(QChar c) {
    return c.isSpace() || c == u'€';
}

} // namespace

bool ValidatoreImporto::ammesso(QStringView testo) const {
    constexpr qsizetype cifre = 15;
    if (m_caratteri > 0 && testo.size() > m_caratteri)
        return false;
    if (testo.startsWith(u'-') || testo.startsWith(u'+'))
        testo = testo.sliced(1);
    const auto eCifra = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (!std::all_of(testo.begin(), testo.end(), [&](QChar c) { return eCifra(c) || c == u'.'; }) ||
        testo.count(u'.') > 1)
        return false;
    while (testo.startsWith(u'0') || testo.startsWith(u'.'))
        testo = testo.sliced(1);
    return std::count_if(testo.begin(), testo.end(), eCifra) <= cifre;
}

QValidator::State ValidatoreImporto::validate(QString& testo, int& posizione) const {
    if (testo == m_ultimo)
        return Acceptable;
    QString nuovo = testo;
    int cursore = posizione;
    togli(nuovo, cursore, [&](qsizetype i) { return ornamento(nuovo[i]); });
    const qsizetype virgola = nuovo.indexOf(u',');
    if (virgola >= 0) {
        const bool digitata = nuovo.left(virgola) + nuovo.mid(virgola + 1) == m_ultimo;
        if ((digitata && m_decimale) || nuovo.lastIndexOf(u'.') > virgola)
            return Invalid;
        nuovo[virgola] = u'.';
        togli(nuovo, cursore, [&](qsizetype i) { return i < virgola && nuovo[i] == u'.'; });
    }
    if (!ammesso(nuovo))
        return Invalid;
    // A comma right behind a point changes nothing that could be seen, and settles nothing.
    if (virgola >= 0 && nuovo != m_ultimo)
        m_decimale = true;
    else if (!m_ultimo.contains(u'.') || !nuovo.contains(u'.'))
        m_decimale = false;
    m_ultimo = nuovo;
    testo = nuovo;
    posizione = cursore;
    return Acceptable;
}

} // namespace bor
