// The names of the PDFs of many documents: which a batch may make without taking another document's, and
// their way into the records.
#pragma once

#include "lotto/candidati.h"

#include <QString>

#include <functional>
#include <vector>

namespace bor {

class Archivio;

/// Leaves out every document whose PDF would replace that of another one, stored in the archive or standing
/// before it among the candidates. `nomi`: DOS paths by the row of the candidate.
void escludiPdfAltrui(std::vector<Candidato>& candidati, const std::vector<QString>& nomi,
                      const Archivio& archivio);

/// A PDF that was made, whose name its document has not yet.
struct NomePdf {
    std::size_t riga = 0;
    Identita documento;
    QString pdf;
};

/// Puts the names into the records, all in one burst: as a save stores that field, with the same lock and the
/// same recovery, and nothing else of the record changes. `rifiuta` hears of each document for which this was
/// not done, and why.
void registraNomi(Archivio& archivio, const std::vector<NomePdf>& nomi,
                  const std::function<void(std::size_t riga, const QString& motivo)>& rifiuta);

} // namespace bor
