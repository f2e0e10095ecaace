// What each form of the layout takes, and how it is told.
#include "common/numeri.h"
#include "xmlcheck/tracciato.h"

#include <QDate>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr char16_t ultimoAscii = 0x7F;
constexpr char16_t ultimoLatino = 0xFF;

bool bianco(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

/// Without the blanks around it, as the format reads numbers.
QStringView senzaBianchi(QStringView testo) {
    while (!testo.isEmpty() && bianco(testo.front()))
        testo = testo.sliced(1);
    while (!testo.isEmpty() && bianco(testo.back()))
        testo.chop(1);
    return testo;
}

qsizetype caratteri(QStringView testo) {
    return std::ranges::count_if(testo, [](QChar c) { return !c.isLowSurrogate(); });
}

bool lungoFra(const RigaTracciato& riga, qsizetype lunghezza) {
    return lunghezza >= riga.minimo && lunghezza <= riga.massimo;
}

bool finoA(QStringView testo, char16_t ultimo) {
    return std::ranges::all_of(testo, [ultimo](QChar c) { return c <= QChar(ultimo); });
}

bool cifra(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool maiuscola(QChar c) {
    return c >= u'A' && c <= u'Z';
}

template <class Vale>
bool diSoli(const RigaTracciato& riga, QStringView testo, Vale vale) {
    return lungoFra(riga, testo.size()) && std::ranges::all_of(testo, vale);
}

/// Digits with a point and as many decimals as the row allows.
bool decimale(const RigaTracciato& riga, QStringView testo, qsizetype intere, bool negativo) {
    if (negativo && testo.startsWith(u'-'))
        testo = testo.sliced(1);
    const qsizetype punto = testo.indexOf(u'.');
    return punto >= 1 && punto <= intere && std::ranges::all_of(testo.first(punto), cifra) &&
           lungoFra(riga, testo.size() - punto - 1) && std::ranges::all_of(testo.sliced(punto + 1), cifra);
}

bool intero(const RigaTracciato& riga, QStringView testo) {
    constexpr qsizetype cifreMassime = 18; // leading zeros are allowed
    const bool segno = testo.startsWith(u'+') || testo.startsWith(u'-');
    const QStringView cifre = segno ? testo.sliced(1) : testo;
    if (cifre.isEmpty() || cifre.size() > cifreMassime || !std::ranges::all_of(cifre, cifra))
        return false;
    const qlonglong n = testo.toLongLong();
    return n >= riga.minimo && n <= riga.massimo;
}

bool corrisponde(const QRegularExpression& forma, QStringView testo) {
    return forma.match(testo.toString()).hasMatch();
}

/// A day that exists; the zone behind it counts for nothing here.
bool data(QStringView testo, int primoAnno) {
    static const QRegularExpression forma(
        u"\\A(-?)([0-9]{4,9})-([0-9]{2})-([0-9]{2})(Z|[+-](0[0-9]|1[0-3]):[0-5][0-9]|[+-]14:00)?\\z"_s);
    const auto trovata = forma.match(testo.toString());
    if (!trovata.hasMatch())
        return false;
    const QString anno = trovata.captured(2);
    if (anno.toInt() == 0 || (anno.size() > 4 && anno.startsWith(u'0')))
        return false;
    const bool passato = !trovata.captured(1).isEmpty();
    // The calendar repeats every 400 years.
    const int equivalente = 2000 + anno.toInt() % 400;
    return QDate(equivalente, trovata.captured(3).toInt(), trovata.captured(4).toInt()).isValid() &&
           (primoAnno == 0 || (!passato && anno.toInt() >= primoAnno));
}

bool dataOra(QStringView testo) {
    static const QRegularExpression ora(
        u"\\A(([01][0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9](\\.[0-9]+)?|24:00:00(\\.0+)?)"
        u"(Z|[+-](0[0-9]|1[0-3]):[0-5][0-9]|[+-]14:00)?\\z"_s);
    const qsizetype t = testo.indexOf(u'T');
    return t > 0 && testo.at(t - 1).isDigit() && data(testo.first(t), 0) &&
           corrisponde(ora, testo.sliced(t + 1));
}

bool base64(QStringView testo) {
    qsizetype segni = 0;
    qsizetype uguali = 0;
    for (const QChar c : testo) {
        if (bianco(c))
            continue;
        if (c == u'=')
            ++uguali;
        else if (uguali > 0 ||
                 !(cifra(c) || maiuscola(c) || (c >= u'a' && c <= u'z') || c == u'+' || c == u'/'))
            return false;
        ++segni;
    }
    return segni % 4 == 0 && uguali <= 2;
}

bool pec(const RigaTracciato& riga, QStringView testo) {
    // A name of the usual characters in parts divided by points, on both sides; or in quotes, or a domain in
    // brackets.
    static const QString atomo = u"[!#-'*+/-9=?A-Z^-~-]+(\\.[!#-'*+/-9=?A-Z^-~-]+)*"_s;
    static const QRegularExpression forma(QRegularExpression::anchoredPattern(
        u"(%1|\"(\\[\\]!#-[^-~ \\t]|(\\\\[\\t -~]))+\")@(%1|\\[[\\t -Z^-~]*\\])"_s.arg(atomo)));
    return testo.size() <= riga.massimo && corrisponde(forma, testo);
}

bool email(const RigaTracciato& riga, QStringView testo) {
    static const QRegularExpression forma(u"\\A[^\\n\\r]+@[^\\n\\r]+[.]+[^\\n\\r]+\\z"_s);
    return lungoFra(riga, caratteri(testo)) && corrisponde(forma, testo);
}

bool iban(const RigaTracciato& riga, QStringView testo) {
    static const QRegularExpression forma(u"\\A[a-zA-Z]{2}[0-9]{2}[a-zA-Z0-9]+\\z"_s);
    return lungoFra(riga, testo.size()) && corrisponde(forma, testo);
}

bool bic(QStringView testo) {
    static const QRegularExpression forma(u"\\A[A-Z]{6}[A-Z2-9][A-NP-Z0-9]([A-Z0-9]{3})?\\z"_s);
    return corrisponde(forma, testo);
}

bool percento(const RigaTracciato& riga, QStringView testo) {
    return decimale(riga, testo, 3, false) && bor::valore(testo) <= 100;
}

/// Digits of a quantity before the point: the older format gives more of them, and two decimals.
qsizetype intereQuantita(const RigaTracciato& riga) {
    return riga.massimo == 2 ? 18 : 12;
}

bool fraScelte(const RigaTracciato& riga, QStringView testo) {
    return QStringView(riga.scelte).split(u' ').contains(testo);
}

QString daA(const RigaTracciato& riga, const QString& che) {
    return riga.minimo == riga.massimo ? u"%1 %2"_s.arg(riga.minimo).arg(che)
                                       : u"da %1 a %2 %3"_s.arg(riga.minimo).arg(riga.massimo).arg(che);
}

QString scelteAttese(const RigaTracciato& riga) {
    constexpr qsizetype daElencare = 4;
    const QStringList scelte = QString::fromUtf16(riga.scelte).split(u' ');
    if (scelte.size() == 1)
        return u"la parola %1"_s.arg(scelte.first());
    return scelte.size() <= daElencare
               ? u"un codice fra %1"_s.arg(scelte.join(u", "_s))
               : u"un codice da %1 a %2 (%3)"_s.arg(scelte.first(), scelte.last(), scelte.join(u' '));
}

QString numeroAtteso(const RigaTracciato& riga, const QString& che) {
    return riga.minimo == riga.massimo
               ? u"%1 con il punto e %2"_s.arg(che, riga.massimo == 2 ? u"due decimali"_s : u"un decimale"_s)
               : u"%1 con il punto e da %2 a %3 decimali"_s.arg(che).arg(riga.minimo).arg(riga.massimo);
}

} // namespace

bool haForma(const RigaTracciato& riga, const QString& valore) {
    const QStringView netto = senzaBianchi(valore);
    switch (riga.forma) {
    case Forma::Gruppo:
    case Forma::Libero:
        return true;
    case Forma::Scelta:
        return fraScelte(riga, valore);
    case Forma::Latino:
        return finoA(valore, ultimoLatino) && lungoFra(riga, valore.size());
    case Forma::Ascii:
        return finoA(valore, ultimoAscii) && lungoFra(riga, valore.size());
    case Forma::Testo:
    case Forma::Codice:
        return lungoFra(riga, caratteri(valore));
    case Forma::Titolo:
        return finoA(valore, ultimoAscii) && lungoFra(riga, valore.simplified().size());
    case Forma::Lettere:
        return diSoli(riga, valore, maiuscola);
    case Forma::Cifre:
        return diSoli(riga, valore, cifra);
    case Forma::Maiuscole:
        return diSoli(riga, valore, [](QChar c) { return maiuscola(c) || cifra(c); });
    case Forma::Iban:
        return iban(riga, valore);
    case Forma::Bic:
        return bic(valore);
    case Forma::Email:
        return email(riga, valore);
    case Forma::Pec:
        return pec(riga, valore.simplified());
    case Forma::Importo:
        return decimale(riga, netto, 11, true);
    case Forma::Quantita:
        return decimale(riga, netto, intereQuantita(riga), false);
    case Forma::Percento:
        return percento(riga, netto);
    case Forma::Peso:
        return decimale(riga, netto, 4, false);
    case Forma::Intero:
        return intero(riga, netto);
    case Forma::Data:
        return data(valore, riga.minimo);
    case Forma::DataOra:
        return dataOra(valore);
    case Forma::Base64:
        return base64(valore);
    }
    return false;
}

namespace {

QString attesa(const RigaTracciato& riga) {
    switch (riga.forma) {
    case Forma::Scelta:
        return scelteAttese(riga);
    case Forma::Latino:
        return daA(riga, u"caratteri, senza segni come € o le virgolette inclinate"_s);
    case Forma::Ascii:
    case Forma::Titolo:
        return daA(riga, u"caratteri senza accenti"_s);
    case Forma::Lettere:
        return daA(riga, u"lettere maiuscole"_s);
    case Forma::Cifre:
        return daA(riga, u"cifre"_s);
    case Forma::Maiuscole:
        return daA(riga, u"lettere maiuscole o cifre"_s);
    case Forma::Iban:
        return u"un IBAN "_s + daA(riga, u"lettere e cifre"_s);
    case Forma::Bic:
        return u"un codice BIC di 8 o 11 caratteri"_s;
    case Forma::Email:
    case Forma::Pec:
        return u"un indirizzo di posta elettronica"_s;
    case Forma::Importo:
        return numeroAtteso(riga, u"un numero"_s);
    case Forma::Quantita:
        return numeroAtteso(riga, u"un numero non negativo"_s);
    case Forma::Percento:
        return u"una percentuale fino a 100.00 con il punto e due decimali"_s;
    case Forma::Peso:
        return numeroAtteso(riga, u"un peso fino a 9999"_s);
    case Forma::Intero:
        return u"un numero intero da %1 a %2"_s.arg(riga.minimo).arg(riga.massimo);
    case Forma::Data:
        return riga.minimo == 0
                   ? u"una data che esiste, nella forma aaaa-mm-gg"_s
                   : u"una data che esiste, nella forma aaaa-mm-gg, dal %1 in poi"_s.arg(riga.minimo);
    case Forma::DataOra:
        return u"una data e un'ora, nella forma aaaa-mm-ggThh:mm:ss"_s;
    case Forma::Base64:
        return u"un allegato in base64"_s;
    default:
        return daA(riga, u"caratteri"_s);
    }
}

/// Told as a count of characters.
bool contata(Forma forma) {
    static constexpr std::array contate = {Forma::Latino, Forma::Ascii,   Forma::Testo, Forma::Codice,
                                           Forma::Titolo, Forma::Lettere, Forma::Cifre, Forma::Maiuscole};
    return std::ranges::find(contate, forma) != contate.end();
}

} // namespace

QString formaAttesa(const RigaTracciato& riga) {
    return (contata(riga.forma) ? u"ci vogliono "_s : u"ci vuole "_s) + attesa(riga);
}

} // namespace bor
