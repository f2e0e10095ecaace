// The parts of an electronic invoice in the order of the file; only the generator uses them. All but the
// general data need the whole of the invoice's data.
#pragma once

#include "einvoice/generaxml.h"
#include "einvoice/scrittorexml.h"

namespace bor {

/// Transmission, company and customer.
void scriviTestata(ScrittoreXml& xml, const DatiXml& dati);
/// Kind, number and date, withholding, references, transport.
void scriviDatiGenerali(ScrittoreXml& xml, const Fpa& documento);
/// Lines and VAT summary.
void scriviBeniServizi(ScrittoreXml& xml, const DatiXml& dati);
void scriviPagamento(ScrittoreXml& xml, const DatiXml& dati);

/// A date "dd/mm/yyyy" as "yyyy-mm-dd", cut by position with no check.
QString dataXml(QStringView data);

} // namespace bor
