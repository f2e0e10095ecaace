// Deletes the document on screen, on request with its warehouse rows and its accounting movement.
#pragma once

#include "document/documento.h"

namespace bor {

struct Contesto;
class Registrazioni;
class RigheInSospeso;

/// Asks everything first; then, as one burst, marks the document as deleted, takes its warehouse rows back
/// and undoes its movement; last removes its lines file. False when the operator does not want to, or when
/// that failed: the operator was told why, and the archive is as it was, but for a lines file that would not
/// go.
bool eliminadoc(Documento& documento, const Contesto& contesto, Registrazioni& registrazioni,
                RigheInSospeso& sospese);

} // namespace bor
