// A document and its two records: the records read into the document, and filled from it as a save stores
// them. Each is the mirror image of the other.
#pragma once

#include "document/documento.h"

namespace bor {

/// The VAT register of a document, 0 to `ultimoRegistro`; any other number counts for 0.
int registroIva(const Fte& fte);

/// Fills customer, numbers, schedule and panels of the document from its records. Lists get no selection
/// where the stored position is none of theirs.
void caricadoc(Documento& documento, const Archivio& archivio);

/// The document's records with everything that it holds beside them. A new document also gets its reserved
/// fields emptied; any other field that no screen shows stays as it was. A new document, or
/// one without creation stamp, gets `stamp`. The number of the lines file is not touched.
CoppiaFte riempiRecord(const Documento& documento, double stamp);

} // namespace bor
