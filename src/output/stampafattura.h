// Prints a document: on the printer, into the report file, or both.
#pragma once

#include "document/documento.h"
#include "output/foglio.h"

namespace bor {

/// Asks, then prints the goods invoice, credit note or fee bill. An invoice that integrates a supplier's one
/// goes to the printer alone. True when a report file was written that a PDF can be made of.
bool stampaDocumento(const Documento& documento, const Contesto& contesto, Stampante& stampante);

/// Writes the report file without printing, for the preview; nothing is asked. False when the document has no
/// line to print or the file could not be written.
bool preparaRapporto(const Documento& documento, const Contesto& contesto, Stampante& stampante);

} // namespace bor
