// Opens a document without any screen: what the document form shows, and what a batch, a check or a test
// works on.
#pragma once

#include "document/documento.h"

#include <optional>

namespace bor {

struct Contesto;
class RigheInSospeso;

/// A new invoice (`tipodocumento` 0) or credit note (1) for a `cli` record: the next number and protocol,
/// today's dates, and what a document takes from its customer. Nothing is written. A record that does not
/// exist gives a blank customer.
Documento nuovoDocumento(const Contesto& contesto, int tipodocumento, int recordcliente);

/// The document of an `fte` record with customer, lines and head texts; `sospese` holds the lines of one that
/// was new in this run. What is not on file is blank; nothing comes when a record or the lines file could not
/// be read, for a save would then write that over them.
std::optional<Documento> documentoEsistente(const Contesto& contesto, int recordfattura,
                                            RigheInSospeso& sospese);

} // namespace bor
