// A table on paper and as PDF: title and filter, the head on each page, amounts to the right, totals, "Pagina
// n di m". Beside it the windows by which the operator chooses a printer or a file.
#pragma once

#include "common/tabella.h"

class QPagedPaintDevice;
class QPainter;
class QRectF;
class QWidget;

namespace bor {

/// Told before each page, both counted from 1; false stops the print.
using AvanzaPagina = std::function<bool(int pagina, int pagine)>;

/// A drawing over the rows of the first page.
struct Figura {
    double altezza = 0; ///< millimetres; 0 for no drawing
    /// Draws with the font of the table.
    std::function<void(QPainter& penna, const QRectF& posto)> disegna = {};
};

/// Draws the table on A4, upright or across as its columns need. False when it was stopped or the device
/// takes no drawing.
bool disegnaTabella(const Tabella& tabella, QPagedPaintDevice& fogli, const AvanzaPagina& avanza = {},
                    const Figura& figura = {});

/// The table as PDF; false as `disegnaTabella`. A failed write is known to `uscita` alone, and to
/// `salvaFile`.
bool scriviPdf(const Tabella& tabella, QIODevice& uscita, const AvanzaPagina& avanza = {},
               const Figura& figura = {});

/// Asks for the printer, then prints; tells the operator what went wrong.
void stampaTabella(const Tabella& tabella, QWidget* finestra, const Figura& figura = {});

/// Asks for a file, whose ending chooses among CSV, PDF and JSON, then writes it; tells the operator what
/// went wrong. `nome` is proposed, without folder and ending.
void esportaTabella(const Tabella& tabella, const QString& nome, QWidget* finestra,
                    const Figura& figura = {});

} // namespace bor
