// What the records of a document come to, as lists of documents show it.
#pragma once

#include "archive/archivio.h"

namespace bor {

/// With the sign of a credit note turned.
struct ImportiDocumento {
    double imponibile = 0;
    double imposta = 0;
    double esente = 0;
    double ritenuta = 0;
    double totale = 0; ///< taxable, tax and exempt; the withholding is not taken off
};

ImportiDocumento importiDi(const Fte& fte, const F2e& f2e);

/// The earliest date of an instalment, `yyyymmdd`; blank where there is none.
Text<8> primaScadenza(const Fte& fte, const F2e& f2e);

} // namespace bor
