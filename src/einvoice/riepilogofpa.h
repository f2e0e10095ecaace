// The lines and the VAT summary of the electronic invoice, from the goods lines of a document. The form of
// the electronic invoice keeps them while it is open; the XML is made of them.
#pragma once

#include "document/totaliriga.h"

namespace bor {

struct RiepilogoFpa {
    TabellaIva iva;                 ///< the three columns of `riepilogoiva`
    double totaleritenuta = 0;      ///< withholding
    double imponibileritenuta = 0;  ///< its base
    double percentualeritenuta = 0; ///< rate of the last VAT code that carries a withholding; 0 for none
};

/// The goods lines with their texts trimmed and cut to the widths of `righepa`.
TabellaRighe caricarighe(const TabellaRighe& ddd);

/// The summary by VAT code. Lines without a code count under code 1.
RiepilogoFpa calcolaiva(const TabellaRighe& righepa, bool scorporo, const Tabelle& tabelle,
                        const Valuta& valuta);

/// True for a line that the XML shows.
bool rigaInFattura(const Riga& riga);

/// Gives the lines of the XML that have no VAT code the one of the first taxed line. It comes after the
/// summary: only a second generation sums them under that code.
void completaCodici(TabellaRighe& righepa);

} // namespace bor
