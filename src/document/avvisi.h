// Messages that several procedures give in the same words.
#pragma once

#include "archive/recupero.h"

#include <QString>

namespace bor {

struct Contesto;
struct Documento;

/// "fattura 12/A del 15/03/2015", or credit note, or fee bill.
QString nomeDocumento(const Documento& documento);

/// Tells the operator why nothing was registered, and that what is on screen is still there: which file could
/// not be read or written, that an archive is full, or that another computer is writing.
void avvisaNonRegistrato(const Contesto& contesto, EsitoRaffica esito);

/// Tells which registrations, left unfinished by a run that was stopped, have been completed meanwhile.
void avvisaRecuperi(const Contesto& contesto);

/// Asks whether to leave a screen although what was typed in it will be lost; No is the default.
bool uscireSenzaRegistrare(const Contesto& contesto);

/// Tells that the lines of a new document could not be kept in the user's folder, and what to do.
void avvisaRigheNonTenute(const Contesto& contesto, const QString& cartella);

} // namespace bor
