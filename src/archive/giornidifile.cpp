#include "archive/giornidifile.h"

namespace bor {

namespace {

/// The number that so many digits from a place on make; -1 when one of them is no digit.
int cifre(const Text<8>& campo, std::size_t da, std::size_t quante) {
    int n = 0;
    for (std::size_t i = da; i < da + quante; ++i) {
        const char c = campo.bytes[i];
        if (c < '0' || c > '9')
            return -1;
        n = n * 10 + (c - '0');
    }
    return n;
}

QDate data(int anno, int mese, int giorno) {
    return anno > 0 && QDate::isValid(anno, mese, giorno) ? QDate(anno, mese, giorno) : QDate();
}

} // namespace

QDate daAnnoMeseGiorno(const Text<8>& campo) {
    return data(cifre(campo, 0, 4), cifre(campo, 4, 2), cifre(campo, 6, 2));
}

QDate daGiornoMeseAnno(const Text<8>& campo) {
    return data(cifre(campo, 4, 4), cifre(campo, 2, 2), cifre(campo, 0, 2));
}

} // namespace bor
