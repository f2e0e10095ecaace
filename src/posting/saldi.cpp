#include "posting/saldi.h"

#include "common/numeri.h"
#include "common/testo.h"

#include <cmath>

namespace bor {

int trovaconto(Raffica& raffica, QStringView codice) {
    const double cercato = valore(codice);
    int trovato = 0;
    raffica.scorri(raffica.archivio().con, 1, raffica.leggiTot(Conta::Con).numero,
                   [&](int n, const Con& conto) {
                       if (valore(conto.codice.text()) == cercato)
                           trovato = n;
                       return trovato == 0;
                   });
    return trovato;
}

void aggiornaconto(Raffica& raffica, int record, double dare, double avere) {
    RecordFile<Con>& con = raffica.archivio().con;
    Con conto = raffica.leggi(con, record);
    conto.progressivodare += dare;
    conto.progressivoavere += avere;
    raffica.scrivi(con, record, conto);
}

namespace {

void togli(Raffica& raffica, const VoceGio& voce, bool inDare) {
    const int n = std::isfinite(voce.importo) ? trovaconto(raffica, voce.conto.text()) : 0;
    if (n > 0)
        aggiornaconto(raffica, n, inDare ? -voce.importo : 0.0, inDare ? 0.0 : -voce.importo);
}

} // namespace

void applicaconto(Raffica& raffica, const VoceGio& voce) {
    if (valore(voce.conto.text()) > 0)
        togli(raffica, voce, voce.segno == 0);
}

void stornaconto(Raffica& raffica, const VoceGio& voce) {
    if (voce.importo > 0)
        togli(raffica, voce, voce.segno == 1);
}

void stornaconti(Raffica& raffica, const Gio& movimento) {
    for (const VoceGio& voce : movimento.voce) {
        if (!puliscitesto(voce.conto.text()).isEmpty())
            stornaconto(raffica, voce);
    }
}

} // namespace bor
