// The items that invoices and fee bills have in common.
#pragma once

#include "document/documento.h"
#include "document/totaliriga.h"
#include "output/pagina.h"

namespace bor {

/// Items 1 to 34, 40 and 41: heading, customer, number, date, bank. Empty for any other item.
TestoVoce voceComune(int voce, const Documento& documento, const Contesto& contesto,
                     const QStringList& intestazione);

/// Amount and due date of the six instalments, one after the other: index 0 is the first amount.
TestoVoce voceRata(int indice, const Documento& documento, const Contesto& contesto);

TestoVoce voceImporto(double importo, const Contesto& contesto);
QString testoPagamento(const Documento& documento, const Contesto& contesto);
/// Rate and amount of the agent's commission; empty without one.
QString testoProvvigione(const Documento& documento, const Contesto& contesto);
/// Last term of deferred VAT, "mm/yyyy"; empty unless the document has it.
QString testoTermine(const Documento& documento);

/// One row for each VAT row that has an amount: code, description, taxable, rate, tax, exempt amount, legal
/// reference.
std::vector<std::array<TestoVoce, 7>> righeIvaStampate(const TabellaIva& iva, const Contesto& contesto);

} // namespace bor
