// Opens a document's PDF with the desktop's own program. The register and the document form share it.
#pragma once

#include <QString>

namespace bor {

struct Contesto;

/// `nome`: the stored name, a DOS path, with or without blanks around it. A failure is told to the operator.
void ApriPDF(const Contesto& contesto, const QString& nome);

} // namespace bor
