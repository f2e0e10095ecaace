// The texts of an open document put into its two records, as a save stores them.
#pragma once

#include "document/documento.h"

namespace bor {

struct Contesto;

/// The document's records with everything that its screens hold. A new document also gets its kind from the
/// session and its reserved fields emptied; any other field that no screen shows stays as it was. A document
/// without creation stamp gets one. The number of the lines file is not touched.
CoppiaFte riempiRecord(const Documento& documento, const Contesto& contesto);

} // namespace bor
