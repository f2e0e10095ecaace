// What the grids that list records have in common on screen.
#pragma once

#include <QColor>

#include <span>

class QTableView;

namespace bor {

/// A colour as the archive has it: 0x00BBGGRR.
QColor coloreArchivio(int bgr);

/// Makes a grid a list of whole rows to choose from, without editing, with the columns' widths from the first
/// one on in 1/1440 inch. The column `elastica` takes the rest.
void preparaElenco(QTableView* elenco, std::span<const int> larghezze, int elastica);

} // namespace bor
