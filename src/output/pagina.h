// The plan that invoices and fee bills are printed by: numbered items over a template, and a body of lines.
#pragma once

#include "output/layout.h"
#include "output/modello.h"

#include <functional>

namespace bor {

struct Contesto;

/// A text of a page; numbers stand with their right edge at the item's place.
struct TestoVoce {
    QString testo;
    bool adestra = false;
};

/// What tells a kind of printed document from another. Items and layout rows count from 1.
struct Pianta {
    int voci;        ///< items of a page
    int primaUltima; ///< first and last of the items that stand on the last page only
    int ultimaUltima;
    std::size_t rigaSopra; ///< layout row whose place is the top of the body; the one after it is the bottom
    int colonne;           ///< columns of the body; column j is layout row `rigaSopra` + 1 + j
    int righe;             ///< the most lines of the document
    int primaRigaIva;      ///< the first of the seven items that print one row for each VAT row
};

/// The texts of one document.
struct ContenutoPagina {
    std::function<TestoVoce(int voce)> voce;
    std::function<TestoVoce(int linea, int colonna)> cella;
    std::function<bool(int linea)> usata; ///< the line has a description
    std::vector<std::array<TestoVoce, 7>> righeIva;
};

/// Lines of the body on one page: one every four millimetres.
int righePerPagina(const Layout& layout, const Pianta& pianta);

/// Pages that the document takes; 0 for a document without lines.
int pagine(const Layout& layout, const Pianta& pianta, const ContenutoPagina& contenuto);

/// Draws all pages.
void disegnaPagine(const Layout& layout, Modello modello, const Pianta& pianta,
                   const ContenutoPagina& contenuto, int tipo, Foglio& foglio);

} // namespace bor
