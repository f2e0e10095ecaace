// Prepares the accounting movement of a document for the editor. Nothing is written here.
#pragma once

#include "document/documento.h"
#include "posting/movimento.h"

namespace bor {

struct Contesto;

/// Movement of a goods invoice or credit note. For a document already on file the operator may have the
/// stored movement back instead of a new one.
Movimento setfat(const Documento& documento, const Contesto& contesto);

/// The same for a fee bill, whose amounts come from its lines.
Movimento setpar(const Documento& documento, const Contesto& contesto);

} // namespace bor
