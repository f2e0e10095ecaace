// A table on paper and as PDF: title and filter, the head on each page, amounts to the right, totals, "Pagina
// n di m". Beside it the windows by which the operator chooses a printer or a file.
#pragma once

#include "common/tabella.h"

class QPagedPaintDevice;
class QWidget;

namespace bor {

/// Told before each page, both counted from 1; false stops the print.
using AvanzaPagina = std::function<bool(int pagina, int pagine)>;

/// Draws the table on A4, upright or across as its columns need. False when it was stopped or the device
/// takes no drawing.
bool disegnaTabella(const Tabella& tabella, QPagedPaintDevice& fogli, const AvanzaPagina& avanza = {});

/// The table as PDF; false as `disegnaTabella`. A failed write is known to `uscita` alone, and to
/// `salvaFile`.
bool scriviPdf(const Tabella& tabella, QIODevice& uscita, const AvanzaPagina& avanza = {});

/// Asks for the printer, then prints; tells the operator what went wrong.
void stampaTabella(const Tabella& tabella, QWidget* finestra);

/// Asks for a file, whose ending chooses among CSV, PDF and JSON, then writes it; tells the operator what
/// went wrong. `nome` is proposed, without folder and ending.
void esportaTabella(const Tabella& tabella, const QString& nome, QWidget* finestra);

} // namespace bor
