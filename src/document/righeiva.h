// The twelve VAT rows of a document, of which the head record holds eight and its second half four.
#pragma once

#include "archive/archivio.h"
#include "archive/tabelle.h"

namespace bor {

enum class VoceIva { Imponibile, Imposta, Esente };

/// Amount of row 1 to 12; 0 for any other row.
double importoIva(const CoppiaFte& coppia, VoceIva voce, int riga);

/// Sets the amount of row 1 to 12 in the record.
void mettiImportoIva(CoppiaFte& coppia, VoceIva voce, int riga, double importo);

/// Sum of the twelve rows. Row 2 is added before row 1: the order decides the last bit of the sum, and the
/// books of the suite were made with it.
double sommaIva(const CoppiaFte& coppia, VoceIva voce);
double sommaIva(const Fte& fte, const F2e& f2e, VoceIva voce);

} // namespace bor
