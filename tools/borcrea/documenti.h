// The documents of a company from their tables: heads, goods lines and fee lines, worked out as the program
// itself does it.
#pragma once

#include "archive/contesto.h"
#include "borcrea/anagrafiche.h"
#include "borcrea/datifpa.h"
#include "document/documento.h"

#include <vector>

namespace bor {

/// A document ready to be stored, in the order of registration.
struct DocumentoPronto {
    Documento documento;
    bool eliminato = false;
    std::optional<Fpa> fpa; ///< electronic invoice data to store with it
};

/// Reads `documenti.csv`, `righe.csv`, `prestazioni.csv` and `fpa.csv`. The customers, agents and settings
/// are already on file in `contesto`; totals, withholding, commission and instalments follow from the lines.
std::vector<DocumentoPronto> leggiDocumenti(const QString& cartella, const Anagrafiche& anagrafiche,
                                            const Contesto& contesto, Problemi& problemi);

} // namespace bor
