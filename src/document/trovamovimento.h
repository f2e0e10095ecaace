// The accounting movement of a document, as posting and deleting find it.
#pragma once

#include "archive/archivio.h"

namespace bor {

/// Record number of the live movement that belongs to the document of this `stamp`; 0 when there is none.
/// Closing entries and deleted movements are never a document's movement.
int trovaMovimento(const Archivio& archivio, double stamp);

} // namespace bor
