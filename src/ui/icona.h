// The pictures of the buttons, in the colours of the desktop.
#pragma once

#include <QIcon>

namespace bor {

enum class ColoriIcona { DelDesktop, DelDisegno };

/// `nome` names a file of `src/ui/icone`, or the program's own picture, without its ending.
QIcon icona(const QString& nome, ColoriIcona colori = ColoriIcona::DelDesktop);

} // namespace bor
