#include "document/trovamovimento.h"

namespace bor {

bool appartiene(const Gio& gio, double stamp) {
    return gio.riferimentofattura == stamp && gio.tipomovimento != Gio::chiusura && gio.cancellato != 1;
}

int trovaMovimento(Raffica& raffica, double stamp) {
    int trovato = 0;
    raffica.scorri(raffica.archivio().gio, 1, raffica.leggiTot(Conta::Gio).numero,
                   [&](int n, const Gio& gio) {
                       if (appartiene(gio, stamp))
                           trovato = n;
                       return trovato == 0;
                   });
    return trovato;
}

std::optional<int> trovaMovimento(const Archivio& archivio, double stamp) {
    int trovato = 0;
    Tot contatore;
    const bool letto = archivio.leggiTot(Conta::Gio, contatore) != EsitoLettura::Guasta &&
                       archivio.gio.scorri(1, contatore.numero, [&](int n, const Gio& gio) {
                           if (appartiene(gio, stamp))
                               trovato = n;
                           return trovato == 0;
                       });
    return letto ? std::optional(trovato) : std::nullopt;
}

} // namespace bor
