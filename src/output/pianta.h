// The plans of the printed pages, one table a kind of document: which items a page has and where the text of
// each comes from. The numbers are those of the company's layout file; docs/moduli.md lists them.
#pragma once

#include "output/datistampa.h"

#include <span>

namespace bor {

/// Where a text stands at the place that the layout gives it.
enum class Lato {
    Sinistra, ///< its left edge there
    Destra,   ///< its right edge there
    Coppie    ///< an amount at the right, the next item at the left, and so on
};

enum class SuPagine { Tutte, Ultima };

/// Consecutive items with one source.
struct GruppoVoci {
    int prima; ///< number of the first item, from 1
    int quante;
    SuPagine pagine;
    Lato lato;
    /// One text for each item. Where there are more, they are rows of so many, each 4 mm below the one
    /// before.
    QStringList (*testi)(const DatiStampa& dati);

    /// Of the item at an index from 0.
    bool aDestra(int indice) const {
        return lato == Lato::Destra || (lato == Lato::Coppie && indice % 2 == 0);
    }
};

struct ColonnaCorpo {
    int riga; ///< layout row of its x and font
    Lato lato;
    QString (*testo)(const DatiStampa& dati, int linea);
};

/// Lines of the document count from 1.
struct Pianta {
    std::span<const GruppoVoci> voci; ///< in the order they are drawn
    int rigaSopra;                    ///< layout row of the body's top
    int rigaSotto;                    ///< layout row of the body's bottom
    std::span<const ColonnaCorpo> colonne;
    int linee;                                                 ///< the most that a document has
    QString (*descrizione)(const DatiStampa& dati, int linea); ///< the last line with one ends the body
};

const Pianta& piantaFattura();
const Pianta& piantaParcella();

} // namespace bor
