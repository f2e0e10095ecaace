// Rewrites the documents in a chosen order and drops the deleted ones: the one operation that renumbers
// documents, and the archive's compaction.
#pragma once

#include "archive/raffica.h"

#include <functional>

namespace bor {

enum class TipoRiordino { PerNumero = 0, PerData = 1, PerProtocollo = 2 };

/// The stage of a reorder that failed. The documents and their count are then as they were, but from
/// `Duplicazione` on `fte` and `f2e` may be closed, or open for this program alone, until it ends.
enum class FaseRiordino { Riuscito, Caricamento, Duplicazione, Apertura, Salvataggio };

struct EsitoRiordino {
    FaseRiordino fase = FaseRiordino::Riuscito;
    int errore = 0;        ///< number of the error, 70 when another computer uses the files
    bool occupato = false; ///< another computer was writing: nothing was begun
    int documenti = 0;     ///< the count, without the deleted documents after a success
};

/// Called with the documents done so far, often enough for a bar to move.
using Avanzamento = std::function<void(int)>;

/// The entry by which a document is sorted: ten characters of key, then seven digits of record number, which
/// settle ties.
QByteArray voceRiordino(TipoRiordino tipo, const Fte& fte, int record);

/// Reorders, as one burst: a run that is stopped leaves the old order or, completed by the next one, the new.
/// The counter is read under the lock, and only its count changes. After a success `fte` and `f2e` stay open
/// for this program alone until the end of the run.
EsitoRiordino riordina(Archivio& archivio, TipoRiordino tipo, const Avanzamento& avanzamento);

} // namespace bor
