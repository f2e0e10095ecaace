// The records of a stored document put into the texts of its screens.
#pragma once

#include "document/documento.h"

namespace bor {

struct Contesto;

/// Fills numbers, schedule and panels of the document from its records. Lists get no selection where the
/// stored position is none of theirs.
void caricadoc(Documento& documento, const Contesto& contesto);

} // namespace bor
