// Rows of a document as text and back, as the clipboard of a spreadsheet has them: a row a line, its cells
// parted by tabs in the order of the screen, numbers the Italian way.
#pragma once

#include "document/righe.h"

#include <QList>
#include <QStringList>

#include <optional>
#include <span>

namespace bor {

/// The text has more than a cell; any other belongs into the box that it is pasted into.
bool testoDiRighe(QStringView testo);

/// Rows and cells of a text. A cell in quotes may hold tabs, line ends and doubled quotes; all kinds of
/// blanks in it become one blank each, and those around it go.
QList<QStringList> celleDi(const QString& testo);

struct NumeroLetto {
    double valore = 0;
    bool dubbio = false; ///< "1.250": thousands by the Italian rule, a decimal point by another
};

/// "1.250,00", "1250,5", "-3", "12.5" with a euro sign, a percent sign or hard blanks in it. Nothing for any
/// other text, an empty one and more than fifteen digits included.
std::optional<NumeroLetto> leggiNumeroItaliano(const QString& testo);

/// The number with a decimal comma and nothing between the thousands, all its digits; empty for 0.
QString numeroPerTabella(double x);

/// As `celleDi` reads them. A text that a spreadsheet would take for a formula gets an apostrophe, which the
/// reading takes away again.
QString testoRighe(std::span<const Riga> righe);
QString testoRighe(std::span<const Rigap> righe);

} // namespace bor
