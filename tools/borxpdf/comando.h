// Does what the program is asked on its command line, without any window. Used by main.
#pragma once

#include "borxpdf/disegno.h"
#include "borxpdf/layoutpdf.h"
#include "borxpdf/paginestampate.h"
#include "common/comandopdf.h"

#include <QString>

#include <optional>

namespace bor {
class Percorsi;
}

namespace bor::pdf {

/// Layout, pages and pictures of one command, read from disk.
struct DocumentoPdf {
    LayoutPdf layout;
    PagineStampate stampa;
    Disegnatore disegnatore;
};

/// A missing layout means A4 and defaults; a report that cannot be used gives nothing and fills `errore`.
std::optional<DocumentoPdf> apri(const ComandoPdf& comando, const Percorsi& percorsi, QString& errore);

/// Writes the PDF and sends it. False with `errore` in Italian; a PDF that was written stays.
bool esegui(const ComandoPdf& comando, const Percorsi& percorsi, QString& errore);

} // namespace bor::pdf
