#include "archive/gnr.h"

#include "common/numeri.h"

namespace bor {

Gnr gnrPredefinito() {
    Gnr gnr = vuoto<Gnr>();
    gnr.righemodulo.set(u"01");
    migraGnr(gnr);
    return gnr;
}

bool migraGnr(Gnr& gnr) {
    if (gnr.marcagnr.text() == u"9")
        return false;
    gnr.marcagnr.set(u"9");
    gnr.aggiornalista.set(u"1");
    gnr.colorelista1 = Gnr::colorePari;
    gnr.colorelista2 = Gnr::coloreDispari;
    gnr.listacolorata.set(u"1");
    gnr.opzionegnr.set(u"1");
    return true;
}

bool riparaRighemodulo(Gnr& gnr) {
    const double codice = valore(gnr.righemodulo.text());
    if (codice >= 1 && codice <= 24)
        return false;
    gnr.righemodulo.set(u"01");
    return true;
}

} // namespace bor
