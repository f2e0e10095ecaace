// Makes the PDF of a report and puts it on disk. Used by the command; the mail takes the same bytes, and the
// preview prints in the same way.
#pragma once

#include "borxpdf/paginestampate.h"

#include <QByteArray>
#include <QString>

#include <span>

class QPagedPaintDevice;

namespace bor::pdf {

class Disegnatore;
struct LayoutPdf;

/// Draws pages onto as many sheets of a PDF or a printer. False when that takes no drawing.
bool disegnaPagine(QPagedPaintDevice& fogli, std::span<const Pagina> pagine, const LayoutPdf& layout,
                   Disegnatore& disegnatore);

/// The whole PDF: one page a page of the report, text as text with its fonts embedded. Empty on failure.
QByteArray componiPdf(const PagineStampate& stampa, const LayoutPdf& layout, const QString& titolo,
                      Disegnatore& disegnatore);

/// Puts the author into a PDF that QPdfWriter has made, as an update at its end, the title with it.
/// A PDF without the expected closing lines stays as it is.
void aggiungiAutore(QByteArray& pdf, const QString& titolo, const QString& autore);

/// Writes the file whole or not at all, making its folder when it is missing. False on any failure; what
/// stood under that name then is still there.
bool scriviIntero(const QString& file, const QByteArray& dati);

} // namespace bor::pdf
