// The accounting movement of a document, as posting and deleting find it. Closing entries and deleted
// movements are never a document's movement.
#pragma once

#include "archive/raffica.h"

#include <optional>

namespace bor {

/// The movement is a live one of the document of this `stamp`.
bool appartiene(const Gio& gio, double stamp);

/// Record number of the live movement that belongs to the document of this `stamp`; 0 when there is none.
int trovaMovimento(Raffica& raffica, double stamp);

/// The same to look at only; nothing when the journal could not be read.
std::optional<int> trovaMovimento(const Archivio& archivio, double stamp);

} // namespace bor
