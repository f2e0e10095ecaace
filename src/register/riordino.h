// Rewrites the documents in a chosen order and drops the deleted ones: the one operation that renumbers
// documents, and the archive's compaction.
#pragma once

#include "archive/archivio.h"

#include <functional>

namespace bor {

enum class TipoRiordino { PerNumero = 0, PerData = 1, PerProtocollo = 2 };

/// The stage of a reorder that failed. What then lies on file: before `Salvataggio` the records are as they
/// were, but the count is already lower by the deleted documents; in `Salvataggio` they are partly rewritten,
/// and the temporary copies `borlano.$$$` and `borlano.$2$` hold the old state.
enum class FaseRiordino { Riuscito, Caricamento, Duplicazione, Apertura, Salvataggio };

struct EsitoRiordino {
    FaseRiordino fase = FaseRiordino::Riuscito;
    int errore = 0; ///< number of the error, 70 when another computer uses the files
};

/// Called with the documents done so far, often enough for a bar to move.
using Avanzamento = std::function<void(int)>;

/// The entry by which a document is sorted: ten characters of key, then seven digits of record number, which
/// settle ties.
QByteArray voceRiordino(TipoRiordino tipo, const Fte& fte, int record);

/// Reorders. `contatore` is the documents' counter just read; it comes back without the deleted documents.
/// After a success `fte` and `f2e` stay open for this program alone until the end of the run.
EsitoRiordino riordina(Archivio& archivio, TipoRiordino tipo, Tot& contatore, const Avanzamento& avanzamento);

} // namespace bor
