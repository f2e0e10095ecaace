// What the goods lines of a document come to. The lines form shows it while typing, the print and the
// electronic invoice compute it again.
#pragma once

#include "archive/tabelle.h"
#include "common/valuta.h"
#include "document/righe.h"

namespace bor {

/// Amounts by VAT row.
struct TabellaIva {
    Serie<double, 1, righeIva> imponibili;
    Serie<double, 1, righeIva> imposte;
    Serie<double, 1, righeIva> esenti;
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

/// The VAT code that a line counts under: the first one where it has none.
CodiceIva codiceContato(const Riga& riga);

/// Totals of the lines. Tax is worked out on the sum of each code, not line by line; with `scorporo` the
/// prices include it. Never allocates.
TotaliRighe ricalcola(const TabellaRighe& righe, bool scorporo, const Tabelle& tabelle, const Valuta& valuta);

} // namespace bor
