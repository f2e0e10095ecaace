// Which screen the one window shows. Forms ask for the next screen here and never see a window.
#pragma once

namespace bor {

enum class Schermo {
    Borfte,
    Borftem,
    Borsel,
    Borftex,
    Borftek,
    Borftea,
    Borftec,
    Borftepa,
    Borftel,
    Scadenzario,
    DatiMensili
};

class Navigatore {
public:
    virtual ~Navigatore();
    /// Hides the screen in view and shows this one, which gets its activation.
    virtual void mostra(Schermo schermo) = 0;
    /// Ends the program.
    virtual void termina() = 0;
};

} // namespace bor
