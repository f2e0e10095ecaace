// What the electronic invoice reads out of the company's tables beyond their plain columns.
#pragma once

#include "archive/tabelle.h"

namespace bor {

struct Fpa;

/// Reason of an exempt row: "N" and its number, which stands behind the 100th character of the row's
/// description. `riga` counts from 1 to 16; empty for any other row.
QString naturaEsente(const Tabelle& tabelle, int riga);

/// Puts the carrier of a row of the table (1 to 40) into the document's data: its name, and its codes from
/// the row's last column.
void mettiVettore(Fpa& documento, const Tabelle& tabelle, int riga);

} // namespace bor
