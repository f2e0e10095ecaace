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

/// Stores the documents as the next records, each with its detail-lines file. False when a file could not be
/// written.
bool scriviDocumenti(Archivio& archivio, std::vector<DocumentoPronto>& documenti);

/// Goes on repeating the stored documents, spread over all customers, until there are `quanti`: an archive
/// for measuring. The repeated ones have no detail lines.
bool ripetiDocumenti(Archivio& archivio, int quanti);

} // namespace bor
