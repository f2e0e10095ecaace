// Draws the pages of a document by the plan of its kind: numbered items over a template, and a body of lines.
#pragma once

#include "output/layout.h"
#include "output/modello.h"
#include "output/pianta.h"

namespace bor {

/// Lines of the body on one page: one every four millimetres.
int righePerPagina(const Layout& layout, const Pianta& pianta);

/// Pages that the document takes; 0 for a document without lines.
int pagine(const Layout& layout, const Pianta& pianta, const DatiStampa& dati);

/// Draws all pages.
void disegnaPagine(const Layout& layout, Modello modello, const Pianta& pianta, const DatiStampa& dati,
                   Foglio& foglio);

} // namespace bor
