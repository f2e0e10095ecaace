// The documents of a company from their tables: heads, goods lines and fee lines, worked out as the program
// itself does it.
#pragma once

#include "archive/contesto.h"
#include "borcrea/anagrafiche.h"
#include "borcrea/datifpa.h"
#include "document/documento.h"

#include <vector>

namespace bor::crea {

/// Where the lines of a document are: in the file that a save writes, in one of the name from before those
/// files had numbers, or lost.
enum class FileRighe { Numerato, NomeVecchio, Nessuno };

/// A document ready to be stored, in the order of registration.
struct DocumentoPronto {
    Documento documento;
    bool eliminato = false;
    FileRighe righe = FileRighe::Numerato;
    std::optional<Fpa> fpa; ///< electronic invoice data to store with it
};

/// Reads `documenti.csv`, `righe.csv`, `prestazioni.csv` and `fpa.csv`. The customers, agents and settings
/// are already on file in `contesto`; totals, withholding, commission and instalments follow from the lines.
std::vector<DocumentoPronto> leggiDocumenti(const QString& cartella, const Anagrafiche& anagrafiche,
                                            const Contesto& contesto, Problemi& problemi);

} // namespace bor::crea
