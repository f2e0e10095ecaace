// Saves the document on screen: its records, its counter, its lines file, and what follows from it.
#pragma once

#include "document/documento.h"

#include <optional>

namespace bor {

struct Contesto;
class Registrazioni;
class RigheInSospeso;

/// A box that the operator is sent to; `indice` counts the due dates from 0.
enum class CampoTea { Numero, Data, DataReg, Scadenza };
struct PostoTea {
    CampoTea campo;
    int indice = 0;
};

/// What comes after a save: the form stays (at a box where one was refused), the register, or the editor of
/// the movement.
enum class DopoSalva { Resta, Registro, Movimento };
struct EsitoSalva {
    DopoSalva dopo = DopoSalva::Resta;
    std::optional<PostoTea> fuoco;
    bool modificamovimento = false; ///< the prepared movement replaces the one that the document has
};

/// Checks and stores the document. A new one gets the next record number, its movement is prepared, and its
/// lines wait in `sospese` for the next save; one that is on file also gets its lines file and, where the
/// operator wants it, its warehouse rows anew and its movement prepared.
///
/// The form stays when a check refuses a box (which the result names), when the operator does not want to go
/// on, or when a burst of writes failed: then the operator was told why, the document keeps everything
/// typed, that burst wrote nothing, and those before it stay. The bursts follow in a fixed order, so that the
/// records are never behind what depends on them: records with their counter, lines file, warehouse rows with
/// their stock, accounting.
EsitoSalva salvadoc(Documento& documento, const Contesto& contesto, Registrazioni& registrazioni,
                    RigheInSospeso& sospese);

} // namespace bor
