#include "common/testo.h"

#include <array>

namespace bor {

namespace {

// Characters of the codes 0x80 to 0x9F; the others are equal to Latin-1.
constexpr std::array<char16_t, 32> codiciAlti = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

int codice(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return c;
    for (std::size_t i = 0; i < codiciAlti.size(); ++i) {
        if (codiciAlti[i] == c)
            return static_cast<int>(0x80 + i);
    }
    return -1;
}

} // namespace

QString daCp1252(QByteArrayView bytes) {
    QString testo(bytes.size(), Qt::Uninitialized);
    QChar* scritto = testo.data();
    for (const char byte : bytes) {
        const auto c = static_cast<unsigned char>(byte);
        *scritto++ = c >= 0x80 && c < 0xA0 ? QChar(codiciAlti[c - 0x80U]) : QChar(char16_t{c});
    }
    return testo;
}

QByteArray inCp1252(QStringView testo) {
    QByteArray bytes(testo.size(), Qt::Uninitialized);
    char* scritto = bytes.data();
    for (const QChar c : testo) {
        const int valore = codice(c.unicode());
        *scritto++ = valore < 0 ? '?' : static_cast<char>(valore);
    }
    return bytes;
}

bool inCodePage(QChar carattere) {
    return codice(carattere.unicode()) >= 0;
}

QString maiuscolo(QStringView testo) {
    QString risultato = testo.toString();
    for (QChar& c : risultato) {
        const QChar alto = c.toUpper();
        if (inCodePage(alto))
            c = alto;
    }
    return risultato;
}

QString pulisci(QStringView testo) {
    QString risultato;
    risultato.reserve(testo.size());
    for (const QChar c : testo) {
        if (stampabile(codice(c.unicode())))
            risultato.append(c);
    }
    return risultato;
}

QString puliscitesto(QStringView testo) {
    return pulisci(testo).trimmed();
}

QString piega(QStringView testo) {
    QString risultato = testo.toString();
    for (QChar& c : risultato) {
        if (c.unicode() >= 0x80 && c.decompositionTag() == QChar::Canonical)
            c = c.decomposition().front();
        c = c.toLower();
    }
    return risultato;
}

QString riempi(QStringView testo, qsizetype lunghezza) {
    return testo.left(lunghezza).toString().leftJustified(lunghezza);
}

QString zeriDavanti(QStringView testo, qsizetype lunghezza) {
    return (QString(lunghezza, u'0') + testo.toString()).right(lunghezza);
}

QString pezzo(QStringView testo, qsizetype da, qsizetype lunghezza) {
    if (da < 1 || da > testo.size())
        return {};
    const QStringView resto = testo.sliced(da - 1);
    return (lunghezza < 0 ? resto : resto.left(lunghezza)).toString();
}

} // namespace bor
