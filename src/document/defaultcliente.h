// What a new document takes from its customer.
#pragma once

#include "document/documento.h"

namespace bor {

struct Contesto;

/// Deferred VAT (only where the company's regime allows it), spesometro, bank receipts, e-mail, payment type
/// and the agent's rate, all from `documento.cliente`.
void prendiDefaults(Documento& documento, const Contesto& contesto);

/// The VAT code that a customer forces on all his goods lines; none unless his record names one of the 24.
CodiceIva ivaForzata(const Cli& cliente);

} // namespace bor
