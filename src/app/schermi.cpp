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

namespace bor {

void aggiungiSchermi(Finestra& finestra, Modulo& modulo) {
    const auto aggiungi = [&](Schermo schermo, Vista* vista) {
        finestra.aggiungi(schermo, vista);
        vista->offriGuida(tastoGuida(schermo), [&modulo, schermo] {
            apriGuida(modulo.contesto().sistema, modulo.contesto().operatore, capitolo(schermo));
        });
    };
    // Whose document it is stands at the top of every screen that edits one.
    const auto aggiungiIntestato = [&](Schermo schermo, Vista* vista) {
        aggiungi(schermo, vista);
        vista->intesta([&modulo] { return riassunto(modulo.documento(), modulo.contesto()); });
    };
    aggiungi(Schermo::Borfte, new VistaBorfte(modulo.borfte()));
    aggiungi(Schermo::Borftem, new VistaBorftem(modulo.borftem()));
    aggiungi(Schermo::Borsel, new VistaBorsel(modulo.borsel()));
    aggiungiIntestato(Schermo::Borftea, new VistaBorftea(modulo.borftea()));
    aggiungiIntestato(Schermo::Borftex, new VistaBorftex(modulo.borftex()));
    aggiungiIntestato(Schermo::Borftek, new VistaBorftek(modulo.borftek()));
    aggiungiIntestato(Schermo::Borftec, new VistaBorftec(modulo.borftec()));
    aggiungiIntestato(Schermo::Borftepa, new VistaBorftepa(modulo.borftepa()));
    aggiungiIntestato(Schermo::Borftel, new VistaBorftel(modulo.borftel()));
}

} // namespace bor
