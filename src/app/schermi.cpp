#include "app/schermi.h"

#include "app/modulo.h"
#include "document/riassunto.h"
#include "ui/finestra.h"
#include "ui/vistaborfte.h"
#include "ui/vistaborftea.h"
#include "ui/vistaborftec.h"
#include "ui/vistaborftek.h"
#include "ui/vistaborftem.h"
#include "ui/vistaborftepa.h"
#include "ui/vistaborftex.h"
#include "ui/vistaborsel.h"

namespace bor {

void aggiungiSchermi(Finestra& finestra, Modulo& modulo) {
    // Whose document it is stands at the top of every screen that edits one.
    const auto aggiungi = [&](Schermo schermo, Vista* vista) {
        finestra.aggiungi(schermo, vista);
        vista->intesta([&modulo] { return riassunto(modulo.documento(), modulo.contesto()); });
    };
    finestra.aggiungi(Schermo::Borfte, new VistaBorfte(modulo.borfte()));
    finestra.aggiungi(Schermo::Borftem, new VistaBorftem(modulo.borftem()));
    finestra.aggiungi(Schermo::Borsel, new VistaBorsel(modulo.borsel()));
    aggiungi(Schermo::Borftea, new VistaBorftea(modulo.borftea()));
    aggiungi(Schermo::Borftex, new VistaBorftex(modulo.borftex()));
    aggiungi(Schermo::Borftek, new VistaBorftek(modulo.borftek()));
    aggiungi(Schermo::Borftec, new VistaBorftec(modulo.borftec()));
    aggiungi(Schermo::Borftepa, new VistaBorftepa(modulo.borftepa()));
}

} // namespace bor
