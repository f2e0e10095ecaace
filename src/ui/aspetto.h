// The look of the whole program: style, colours and the visible focus; Qt's own words in Italian.
#pragma once

#include "ui/tinte.h"

class QApplication;

namespace bor {

/// Light or dark as the desktop is, also when that changes while the program runs; light without a desktop.
void applicaAspetto(QApplication& applicazione);

void applicaTono(Tono tono);

} // namespace bor
