// The warehouse rows of a goods invoice or credit note, and the stock that they move.
#pragma once

#include "archive/raffica.h"
#include "document/documento.h"

namespace bor {

struct Contesto;

/// Plans the mark of deletion on the rows of the document, and the way back of their stock figures. A row of
/// an article that does not exist moves no stock.
void togliscarico(const Documento& documento, Raffica& raffica);

/// Plans a row for each goods line that has an article and no second code, the stock that it moves, and the
/// count of the rows behind them.
void mettiscarico(const Documento& documento, const Contesto& contesto, Raffica& raffica);

} // namespace bor
