#include "posting/saldi.h"

#include "common/numeri.h"
#include "common/testo.h"

#include <algorithm>

namespace bor {

namespace {

bool togli(Archivio& archivio, const VoceGio& voce, Reale Con::*progressivo) {
    const int n = trovaconto(archivio, voce.conto.text());
    if (n == 0)
        return true;
    Con conto = archivio.con.leggi(n);
    conto.*progressivo -= voce.importo;
    return archivio.con.scrivi(n, conto);
}

} // namespace

int trovaconto(const Archivio& archivio, QStringView codice) {
    const double cercato = valore(codice);
    int trovato = 0;
    archivio.con.scorri(1, archivio.leggiTot(Conta::Con).numero, [&](int n, const Con& conto) {
        if (valore(conto.codice.text()) == cercato)
            trovato = n;
        return trovato == 0;
    });
    return trovato;
}

bool applicaconto(Archivio& archivio, const VoceGio& voce) {
    if (valore(voce.conto.text()) <= 0)
        return true;
    return togli(archivio, voce, voce.segno == 0 ? &Con::progressivodare : &Con::progressivoavere);
}

bool stornaconto(Archivio& archivio, const VoceGio& voce) {
    if (voce.importo <= 0)
        return true;
    return togli(archivio, voce, voce.segno == 1 ? &Con::progressivodare : &Con::progressivoavere);
}

bool stornaconti(Archivio& archivio, const Gio& movimento) {
    return std::ranges::all_of(movimento.voce, [&archivio](const VoceGio& voce) {
        return puliscitesto(voce.conto.text()).isEmpty() || stornaconto(archivio, voce);
    });
}

} // namespace bor
