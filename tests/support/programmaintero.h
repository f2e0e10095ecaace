// The whole program at work on a company of the test: its window, over an operator, a clock, a desktop and a
// printer that are not real.
#pragma once

#include "app/modulo.h"
#include "app/schermi.h"
#include "common/avvio.h"
#include "support/azienda.h"
#include "support/stampante_finta.h"
#include "ui/finestra.h"
#include "ui/vista.h"

#include <memory>

namespace bor {

struct ProgrammaIntero {
    /// Starts it on the company as it is by now, with the register in view.
    void avvia() {
        modulo = Modulo::avvia(rigaAvvio(7), azienda.percorsi(),
                               {operatore, orologio, sistema, finestra, stampante});
        aggiungiSchermi(finestra, *modulo);
        finestra.show();
        finestra.activateWindow();
        finestra.mostra(Schermo::Borfte);
    }
    Vista& vista(Schermo schermo) { return *finestra.vista(schermo); }

    AziendaDiProva azienda;
    OperatoreFinto operatore;
    OrologioFermo orologio;
    SistemaFinto sistema;
    StampanteFinta stampante;
    Finestra finestra;
    std::unique_ptr<Modulo> modulo;
};

} // namespace bor
