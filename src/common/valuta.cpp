#include "common/valuta.h"

#include "common/numeri.h"

namespace bor {

namespace {

double arrotondaCon(double x, double scala) {
    return parteIntera(x * scala + 0.51) / scala;
}

/// Lire are written without decimals, and an amount that rounds to nothing as no text.
QString testoLire(double x) {
    const QString testo = testoItaliano(x, 0);
    return testo == u"0" ? QString() : testo;
}

} // namespace

double Valuta::arrotonda(double x) const {
    return euro ? arrotondaCon(x, 100) : parteIntera(x + 0.51);
}

double Valuta::arrotondaprezzo(double x) const {
    if (!euro)
        return parteIntera(x + 0.51);
    double scala = 1;
    for (int i = 0; i < decimaliPrezzoEuro(); ++i)
        scala *= 10;
    return arrotondaCon(x, scala);
}

double Valuta::arrotondaaltra(double x) const {
    return euro ? parteIntera(x + 0.51) : arrotondaCon(x, 100);
}

double Valuta::percentuale(double importo, double aliquota) const {
    return euro ? parteIntera(importo * aliquota + 0.51) / 100 : parteIntera(importo * aliquota / 100 + 0.51);
}

double Valuta::percentualeecc(double importo, double aliquota) const {
    return euro ? percentuale(importo, aliquota) : parteIntera(importo * aliquota / 100 + 0.99);
}

QString Valuta::importotesto(double x) const {
    if (x == 0.0)
        return {};
    return euro ? testoItaliano(x, 2) : testoLire(x);
}

QString Valuta::prezzotesto(double x) const {
    if (x == 0.0)
        return {};
    return euro ? testoItaliano(x, decimaliPrezzoEuro()) : testoLire(x);
}

int Valuta::decimaliPrezzoEuro() const {
    return decimaliprezzo >= 3 && decimaliprezzo <= 5 ? decimaliprezzo : 2;
}

} // namespace bor
