// The totals of a document, and how the lines forms hand theirs over to it.
#pragma once

#include "document/documento.h"
#include "document/totaliriga.h"

namespace bor {

struct Contesto;

struct Totali {
    double somma1 = 0; ///< taxable
    double somma2 = 0; ///< tax
    double somma3 = 0; ///< exempt
    double totaledoc = 0;
    double ritenuta = 0; ///< sum of the withholding rows
    double nettodoc = 0; ///< what the customer pays; may be negative
};

Totali totali(const Documento& documento);

/// The agent's commission from his rate, where there is one: on taxable and exempt amounts, never on the tax.
void calcolaProvvigione(Documento& documento, const Contesto& contesto);

/// After any change of an amount: the agent's commission and the instalments follow. Not while a
/// document is being filled from its records.
void ricalcolaDocumento(Documento& documento, const Contesto& contesto);

/// Puts the VAT rows of the lines into the document. The withholding typed in its panel survives as long as
/// its sum equals `ritenuta`; otherwise it becomes one row of `base` and `ritenuta`.
void riportaTotali(Documento& documento, const TabellaIva& iva, double base, double ritenuta,
                   const Contesto& contesto);

} // namespace bor
