// The warehouse rows of a goods invoice or credit note, and the stock that they move.
#pragma once

#include "document/documento.h"

namespace bor {

struct Contesto;

/// Marks the rows of the document as deleted and takes them back out of the stock figures of their articles.
bool togliscarico(const Documento& documento, const Contesto& contesto);

/// Writes a row for each goods line that has an article and no second code. The count of the rows is written
/// only after the last of them, so a crash leaves rows that the next append overwrites. False when a file
/// could not be written or is full.
bool mettiscarico(const Documento& documento, const Contesto& contesto);

} // namespace bor
