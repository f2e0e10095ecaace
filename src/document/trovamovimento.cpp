#include "document/trovamovimento.h"

namespace bor {

int trovaMovimento(const Archivio& archivio, double stamp) {
    int trovato = 0;
    archivio.gio.scorri(1, archivio.leggiTot(Conta::Gio).numero, [&](int n, const Gio& gio) {
        if (gio.riferimentofattura == stamp && gio.tipomovimento != Gio::chiusura && gio.cancellato != 1)
            trovato = n;
        return trovato == 0;
    });
    return trovato;
}

} // namespace bor
