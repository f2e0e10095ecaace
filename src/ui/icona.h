// The pictures of the buttons, in the colours of the desktop.
#pragma once

#include <QIcon>

namespace bor {

/// `nome` names a file of `src/ui/icone` without its ending.
QIcon icona(const QString& nome);

} // namespace bor
