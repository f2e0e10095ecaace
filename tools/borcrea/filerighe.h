// The text file with the detail lines of a stored document.
#pragma once

#include "document/documento.h"

namespace bor {

/// Writes `f<nfile>`, or `p<nfile>` of a fee bill, into the company's folder. False when it failed.
bool scriviFileRighe(Archivio& archivio, const Documento& documento);

} // namespace bor
