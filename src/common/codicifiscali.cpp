#include "common/codicifiscali.h"

#include "common/posti.h"

#include <algorithm>
#include <array>

namespace bor {

namespace {

bool cifra(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool lettera(QChar c) {
    return c >= u'A' && c <= u'Z';
}

/// Digits count their figure, letters go on from `primaLettera`.
int peso(QChar c, int primaLettera) {
    return cifra(c) ? c.unicode() - u'0' : c.unicode() - u'A' + primaLettera;
}

bool codicePersonaValido(QStringView codice) {
    // What a character at an odd place counts; digits and letters A to J share the first ten.
    static constexpr std::array dispari = {1,  0,  5, 7, 9, 13, 15, 17, 19, 21, 2,  4,  18,
                                           20, 11, 3, 6, 8, 12, 14, 16, 10, 22, 25, 24, 23};
    if (!std::all_of(codice.begin(), codice.end(), [](QChar c) { return cifra(c) || lettera(c); }))
        return false;
    int somma = 0;
    for (qsizetype i = 0; i < 15; ++i) {
        const int numero = peso(codice[i], 0);
        somma += i % 2 == 0 ? elemento(dispari, numero) : numero;
    }
    return codice[15] == QChar(u'A' + somma % 26);
}

} // namespace

bool partitaIvaValida(QStringView codice) {
    if (codice.size() != 11 || !std::all_of(codice.begin(), codice.end(), cifra))
        return false;
    int somma = 0;
    for (qsizetype i = 0; i < 11; ++i) {
        const int numero = peso(codice[i], 0) * (i % 2 == 0 ? 1 : 2);
        somma += numero > 9 ? numero - 9 : numero;
    }
    return somma % 10 == 0;
}

bool diPersona(QStringView codiceFiscale) {
    return codiceFiscale.size() == 16;
}

bool codiceFiscaleValido(QStringView codice) {
    return diPersona(codice) ? codicePersonaValido(codice) : partitaIvaValida(codice);
}

bool ibanValido(QStringView iban) {
    if (iban.size() < 5)
        return false;
    int resto = 0;
    const QString girato = iban.sliced(4).toString().toUpper() + iban.first(4).toString().toUpper();
    for (const QChar c : girato) {
        if (!cifra(c) && !lettera(c))
            return false;
        const int numero = peso(c, 10);
        resto = (resto * (numero > 9 ? 100 : 10) + numero) % 97;
    }
    return resto == 1;
}

bool ean13Valido(QStringView barcode) {
    if (barcode.size() != 13 || !std::all_of(barcode.begin(), barcode.end(), cifra))
        return false;
    int somma = 0;
    for (qsizetype i = 0; i < barcode.size(); ++i)
        somma += peso(barcode[i], 0) * (i % 2 == 0 ? 1 : 3);
    return somma % 10 == 0;
}

} // namespace bor
