// Documents that integrate a supplier's invoice with VAT. The document form and the posting ask which kind.
#pragma once

#include "document/documento.h"

namespace bor {

struct Tabelle;

/// Kind of integrated invoice that a stored document is, from its mark and the last VAT row that bears tax.
Integrata cercaIntegrata(const CoppiaFte& coppia, const Tabelle& tabelle);

} // namespace bor
