// From a print to a PDF and to a mailbox: the external tool makes and sends it, this module only starts the
// tool.
#pragma once

#include "document/documento.h"

namespace bor {

struct Contesto;

/// After a print, where the company's settings ask for it: starts the tool on the report file and puts the
/// PDF's name into the document, whose save carries it on file. An e-mail address that is none is refused
/// with a message; a file that is another document's PDF is replaced only on request.
void generapdf(Documento& documento, const Contesto& contesto);

/// Shows the report file on screen as the tool would turn it into pages.
void anteprima(const Documento& documento, const Contesto& contesto);

/// Lets the operator choose a PDF for the document. Its name is stored without the drive.
void scegliPdf(Documento& documento, const Contesto& contesto);

} // namespace bor
