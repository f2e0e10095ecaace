// The row of picture buttons at the foot of a screen; two rows where the window is too narrow for one.
#pragma once

#include "ui/campi.h"

#include <functional>

class QHBoxLayout;

namespace bor {

class Flusso;
class Legami;

class BarraComandi : public QWidget {
public:
    explicit BarraComandi(Legami& legami);

    /// Adds a button behind the others, and in front of the room that is left; the arguments are those of
    /// `BottoneComando` and what a click does.
    BottoneComando* comando(const QString& nome, const QString& testo, const QString& icona,
                            const QString& tasto, std::function<void()> azione);
    /// Room between two groups of buttons.
    void spazio();

private:
    Legami& m_legami;
    Flusso* m_layout;
};

/// The row of buttons above the panels that share one place: that of the panel in view is down.
class BarraProspetti : public QWidget {
public:
    BarraProspetti(Legami& legami, const QString& nome);

    BottoneComando* prospetto(const QString& nome, const QString& testo, const QString& tasto,
                              std::function<bool()> inVista, const std::function<void()>& mostra);

private:
    Legami& m_legami;
    QHBoxLayout* m_layout;
};

} // namespace bor
