// Opens one of the chosen documents when its turn has come, and makes sure that it is the one that was
// chosen.
#pragma once

#include "document/documento.h"
#include "document/identita.h"

#include <optional>

namespace bor {

struct Contesto;
class RigheInSospeso;

struct Aperto {
    std::optional<Documento> documento;
    QString motivo;        ///< why there is none, as "è eliminato"
    bool occupato = false; ///< another program is registering: to be tried again
};

/// Records and lines of one moment: no registration of another program comes between their reads. Nothing is
/// waited for. The operator in `contesto` is told nothing.
Aperto apriScelto(const Contesto& contesto, RigheInSospeso& sospese, const Identita& scelto);

} // namespace bor
