#include "borcrea/controlli.h"

#include <algorithm>
#include <array>

namespace bor {

namespace {

bool soloCifre(QStringView testo) {
    return std::ranges::all_of(testo, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

/// Place of a character of a tax code among 0-9 and A-Z; digits and letters count alike. -1 for others.
int posto(QChar c) {
    if (c >= u'0' && c <= u'9')
        return c.unicode() - u'0';
    return c >= u'A' && c <= u'Z' ? c.unicode() - u'A' : -1;
}

} // namespace

bool partitaIvaValida(QStringView testo) {
    if (testo.size() != 11 || !soloCifre(testo))
        return false;
    int somma = 0;
    for (qsizetype i = 0; i < testo.size(); ++i) {
        const int cifra = testo[i].digitValue();
        const int doppio = cifra * 2;
        somma += i % 2 == 0 ? cifra : doppio > 9 ? doppio - 9 : doppio;
    }
    return somma % 10 == 0;
}

bool codiceFiscaleValido(QStringView testo) {
    if (testo.size() == 11)
        return partitaIvaValida(testo);
    if (testo.size() != 16)
        return false;
    // Values of the characters at odd places, as the tax office fixed them; those at even places count as
    // they stand in the alphabet.
    static constexpr std::array<int, 26> dispari = {1,  0,  5, 7, 9, 13, 15, 17, 19, 21, 2,  4,  18,
                                                    20, 11, 3, 6, 8, 12, 14, 16, 10, 22, 25, 24, 23};
    int somma = 0;
    for (qsizetype i = 0; i < 15; ++i) {
        const int p = posto(testo[i]);
        if (p < 0)
            return false;
        somma += i % 2 == 0 ? dispari[static_cast<std::size_t>(p)] : p;
    }
    return testo[15] == QChar(u'A' + somma % 26);
}

bool ean13Valido(QStringView testo) {
    if (testo.size() != 13 || !soloCifre(testo))
        return false;
    int somma = 0;
    for (qsizetype i = 0; i < testo.size(); ++i)
        somma += testo[i].digitValue() * (i % 2 == 0 ? 1 : 3);
    return somma % 10 == 0;
}

} // namespace bor
