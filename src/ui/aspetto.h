// The look of the whole program: style, palette and the visible focus.
#pragma once

class QApplication;

namespace bor {

void applicaAspetto(QApplication& applicazione);

} // namespace bor
