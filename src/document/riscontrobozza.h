// Compares a draft with the archive as it is now, before the draft is taken up.
#pragma once

#include "document/bozza.h"

#include <QStringList>

namespace bor {

struct Contesto;

/// Ties the document of a draft to its record again, which a reorder may have moved, and to nothing that is
/// another document's. What the archive holds differently now, in sentences for the operator; a document that
/// is no longer there becomes a new one.
QStringList riscontra(Bozza& bozza, const Contesto& contesto);

} // namespace bor
