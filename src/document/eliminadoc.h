// Deletes the document on screen, on request with its warehouse rows and its accounting movement.
#pragma once

#include "document/documento.h"

namespace bor {

struct Contesto;
class Registrazioni;
class RigheInSospeso;

/// Asks, then marks the document as deleted, takes its warehouse rows back, removes its lines file and undoes
/// its movement. False when the operator does not want to, or when a file could not be written: the operator
/// was told which, and what was done before stays.
bool eliminadoc(Documento& documento, const Contesto& contesto, Registrazioni& registrazioni,
                RigheInSospeso& sospese);

} // namespace bor
