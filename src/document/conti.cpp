#include "document/conti.h"

#include "common/numeri.h"

namespace bor {

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

int trovaMovimento(const Archivio& archivio, double stamp) {
    int trovato = 0;
    archivio.gio.scorri(1, archivio.leggiTot(Conta::Gio).numero, [&](int n, const Gio& gio) {
        if (gio.riferimentofattura == stamp && gio.tipomovimento != Gio::chiusura && gio.cancellato != 1)
            trovato = n;
        return trovato == 0;
    });
    return trovato;
}

bool stornaconto(Archivio& archivio, const VoceGio& voce) {
    if (voce.importo <= 0)
        return true;
    const int n = trovaconto(archivio, voce.conto.text());
    if (n == 0)
        return true;
    Con conto = archivio.con.leggi(n);
    Reale& progressivo = voce.segno == 1 ? conto.progressivodare : conto.progressivoavere;
    progressivo -= voce.importo;
    return archivio.con.scrivi(n, conto);
}

} // namespace bor
