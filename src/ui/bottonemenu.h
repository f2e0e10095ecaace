// A picture button that opens a menu of commands above it, each of which has a key of its own.
#pragma once

#include "ui/campi.h"

#include <functional>

class QMenu;

namespace bor {

class Legami;

class BottoneMenu : public BottoneComando {
public:
    BottoneMenu(const QString& nome, const QString& didascalia, const QString& icona, Legami& legami);

    /// Adds a command; `testo` with "&" in front of its letter. Its key works as long as the button can be
    /// pressed.
    void voce(const QString& testo, const QString& tasto, const std::function<void()>& azione);

private:
    Legami& m_legami;
    QMenu* m_menu;
};

} // namespace bor
