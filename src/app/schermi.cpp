#include "app/schermi.h"

#include "app/modulo.h"
#include "document/riassunto.h"
#include "ui/finestra.h"
#include "ui/guida.h"
#include "ui/vistaborfte.h"
#include "ui/vistaborftea.h"
#include "ui/vistaborftec.h"
#include "ui/vistaborftek.h"
#include "ui/vistaborftel.h"
#include "ui/vistaborftem.h"
#include "ui/vistaborftepa.h"
#include "ui/vistaborftex.h"
#include "ui/vistaborsel.h"
#include "ui/vistadatimensili.h"
#include "ui/vistascadenzario.h"

namespace bor {

namespace {

enum class Intestazione { No, DelDocumento };

/// What a screen has beside its form.
void corredo(Vista&, Modulo&) {}
void corredo(VistaBorfte& registro, Modulo& modulo) {
    registro.offri(modulo.scelti());
}

/// `form` is the one of the screen; the view is made when the screen is first shown.
template <class VistaDelloSchermo, class Form>
void aggiungi(Finestra& finestra, Modulo& modulo, Schermo schermo, Form& form,
              Intestazione intestazione = Intestazione::DelDocumento) {
    const auto completa = [&modulo, schermo, intestazione](Vista& vista) {
        vista.offriGuida(tastoGuida(schermo), capitolo(schermo), [&modulo](const QString& quale) {
            apriGuida(modulo.contesto().sistema, modulo.contesto().operatore, quale);
        });
        if constexpr (requires(VistaDelloSchermo & sua) { sua.usa(modulo.storico()); })
            static_cast<VistaDelloSchermo&>(vista).usa(modulo.storico());
        if (intestazione == Intestazione::DelDocumento)
            vista.intesta([&modulo] { return riassunto(modulo.documento(), modulo.contesto()); });
    };
    finestra.aggiungi(
        schermo,
        [&form, &modulo] {
            auto* vista = new VistaDelloSchermo(form);
            corredo(*vista, modulo);
            return vista;
        },
        completa);
}

} // namespace

void aggiungiSchermi(Finestra& finestra, Modulo& modulo) {
    aggiungi<VistaBorfte>(finestra, modulo, Schermo::Borfte, modulo.borfte(), Intestazione::No);
    aggiungi<VistaBorftem>(finestra, modulo, Schermo::Borftem, modulo.borftem(), Intestazione::No);
    aggiungi<VistaBorsel>(finestra, modulo, Schermo::Borsel, modulo.borsel(), Intestazione::No);
    aggiungi<VistaScadenzario>(finestra, modulo, Schermo::Scadenzario, modulo.scadenzario(),
                               Intestazione::No);
    aggiungi<VistaDatiMensili>(finestra, modulo, Schermo::DatiMensili, modulo.datiMensili(),
                               Intestazione::No);
    // Whose document it is stands at the top of every screen that edits one.
    aggiungi<VistaBorftea>(finestra, modulo, Schermo::Borftea, modulo.borftea());
    aggiungi<VistaBorftex>(finestra, modulo, Schermo::Borftex, modulo.borftex());
    aggiungi<VistaBorftek>(finestra, modulo, Schermo::Borftek, modulo.borftek());
    aggiungi<VistaBorftec>(finestra, modulo, Schermo::Borftec, modulo.borftec());
    aggiungi<VistaBorftepa>(finestra, modulo, Schermo::Borftepa, modulo.borftepa());
    aggiungi<VistaBorftel>(finestra, modulo, Schermo::Borftel, modulo.borftel());
}

} // namespace bor
