#include "document/integrata.h"

#include "archive/tabelle.h"
#include "common/testo.h"
#include "document/righeiva.h"

#include <algorithm>

namespace bor {

Integrata cercaIntegrata(const CoppiaFte& coppia, const Tabelle& tabelle) {
    const double marca = coppia.f2e.resy2;
    if (!(marca > 0.0))
        return Integrata::No;
    int posizione = 1;
    for (int r = 2; r <= righeIva; ++r) {
        if (importoIva(coppia, VoceIva::Imposta, r) != 0.0)
            posizione = r;
    }
    const auto& tipi = tabelle.tipiiva;
    const int tipo = static_cast<int>(std::min<double>(marca, tipi.ultimo));
    const QString segno = pezzo(tipi[tipo], posizione, 1);
    if (segno == u"1")
        return Integrata::ReverseCharge;
    return segno == u"2" ? Integrata::Intracomunitaria : Integrata::No;
}

} // namespace bor
