// The look of the whole program: style, colours and the visible focus; Qt's own words in Italian.
#pragma once

#include "ui/tinte.h"

#include <QPalette>

#include <functional>

class QApplication;

namespace bor {

/// Light or dark as the desktop is, also when that changes while the program runs; light without a desktop.
void applicaAspetto(QApplication& applicazione);

/// The same in two steps, for a screen that is made in between: once there is a style sheet, each widget that
/// gets a parent has Qt go through all that it holds.
class Aspetto {
public:
    /// The style and the words. The desktop is asked for its colours.
    explicit Aspetto(QApplication& applicazione);
    /// Colours and style sheet.
    void completa();

private:
    QApplication& m_applicazione;
    QPalette m_ricevuta; ///< the desktop's own
    std::function<Tono()> m_tono;
};

void applicaTono(Tono tono);

/// Has the machine's fonts looked up, which Qt would do before the first text. May run in a thread of its
/// own, before there is an application.
void preparaCaratteri();

} // namespace bor
