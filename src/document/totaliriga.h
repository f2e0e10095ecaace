// What the goods lines of a document come to. The lines form shows it while typing, the print and the
// electronic invoice compute it again.
#pragma once

#include "common/valuta.h"
#include "document/righe.h"

#include <array>

namespace bor {

struct Tabelle;

/// Amounts by VAT code; rows count from 1, row 0 is unused.
struct TabellaIva {
    std::array<double, 17> imponibili{};
    std::array<double, 17> imposte{};
    std::array<double, 17> esenti{}; ///< row i is the exempt code i + 12
};

struct TotaliRighe {
    TabellaIva iva;
    double pezzi = 0;
    double pesototale = 0;
    double totimp = 0;     ///< taxable and exempt
    double totale = 0;     ///< with the tax
    double importorit = 0; ///< withholding
    double baserit = 0;
    double aliquotarit = 0; ///< the last withholding rate in use
};

/// Amount of one line: price by quantity, less the discounts one after the other, each step rounded.
double importoRiga(const Riga& riga, const Valuta& valuta);

/// Totals of the lines. Tax is worked out on the sum of each code, not line by line; with `scorporo` the
/// prices include it. Never allocates.
TotaliRighe ricalcola(const TabellaRighe& righe, bool scorporo, const Tabelle& tabelle, const Valuta& valuta);

} // namespace bor
