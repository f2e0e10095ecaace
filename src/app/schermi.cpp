#include "app/schermi.h"

#include "app/modulo.h"
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
    finestra.aggiungi(Schermo::Borfte, new VistaBorfte(modulo.borfte()));
    finestra.aggiungi(Schermo::Borftem, new VistaBorftem(modulo.borftem()));
    finestra.aggiungi(Schermo::Borsel, new VistaBorsel(modulo.borsel()));
    finestra.aggiungi(Schermo::Borftea, new VistaBorftea(modulo.borftea()));
    finestra.aggiungi(Schermo::Borftex, new VistaBorftex(modulo.borftex()));
    finestra.aggiungi(Schermo::Borftek, new VistaBorftek(modulo.borftek()));
    finestra.aggiungi(Schermo::Borftec, new VistaBorftec(modulo.borftec()));
    finestra.aggiungi(Schermo::Borftepa, new VistaBorftepa(modulo.borftepa()));
}

} // namespace bor
