#include "archive/gnr.h"

#include "archive/tabelle.h"
#include "common/numeri.h"

namespace bor {

int Gnr::codiceIvaRighe() const {
    return valoreIntero(righemodulo.text());
}

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
    constexpr int ultimoCodice = 2 * righeIva; // taxed and exempt
    const double codice = valore(gnr.righemodulo.text());
    if (codice >= 1 && codice <= ultimoCodice)
        return false;
    gnr.righemodulo.set(u"01");
    return true;
}

} // namespace bor
