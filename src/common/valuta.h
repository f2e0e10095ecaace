// Amounts of money in the currency of the company's books: their rounding and their text. Every amount that
// the program derives goes through here.
#pragma once

#include <QString>

namespace bor {

/// The currency switch of a company (settings `eur(1)`, `eur(5)` and `eur(2)`).
///
/// Rounding adds 0.51 and takes the integer part, so that a fraction from 0.49 up goes up: all modules of the
/// suite round so, and books must agree with each other to the cent. Doubles, in the order written.
struct Valuta {
    bool euro = true;       ///< cents; false: lire, no decimals
    int decimaliprezzo = 2; ///< decimals of a unit price; 3, 4 and 5 count, anything else means 2
    double lirePerEuro = 1936.27;

    double arrotonda(double x) const;
    double arrotondaprezzo(double x) const;
    /// Rounding for the currency that the books are not kept in.
    double arrotondaaltra(double x) const;
    /// `aliquota` percent of the amount, rounded.
    double percentuale(double importo, double aliquota) const;
    /// The same for VAT, which in lire goes up with any fraction.
    double percentualeecc(double importo, double aliquota) const;

    /// Money text, "1.234,50"; empty for 0.
    QString importotesto(double x) const;
    /// Unit price text with the price decimals; empty for 0.
    QString prezzotesto(double x) const;

private:
    int decimaliPrezzoEuro() const;
};

} // namespace bor
