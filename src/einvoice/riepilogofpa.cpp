#include "einvoice/riepilogofpa.h"

#include "archive/tabelle.h"
#include "common/testo.h"

#include <algorithm>

namespace bor {

namespace {

/// Widths of the fields of `righepa`.
constexpr qsizetype larghezzaDescrizione = 60;
constexpr qsizetype larghezzaUnita = 2;

QString campo(const QString& testo, qsizetype larghezza) {
    return testo.trimmed().left(larghezza).trimmed();
}

} // namespace

TabellaRighe caricarighe(const TabellaRighe& ddd) {
    TabellaRighe righepa = ddd;
    for (Riga& riga : righepa) {
        riga.descrizione = campo(riga.descrizione, larghezzaDescrizione);
        riga.um = campo(riga.um, larghezzaUnita);
    }
    return righepa;
}

RiepilogoFpa calcolaiva(const TabellaRighe& righepa, bool scorporo, const Tabelle& tabelle,
                        const Valuta& valuta) {
    RiepilogoFpa r;
    r.iva = ricalcola(righepa, scorporo, tabelle, valuta).iva;
    for (int i = 1; i <= righeIva; ++i) {
        double& imponibile = r.iva.imponibili[i];
        imponibile = valuta.arrotonda(imponibile);
        r.iva.imposte[i] = valuta.arrotonda(r.iva.imposte[i]);
        r.iva.esenti[i] = valuta.arrotonda(r.iva.esenti[i]);
        const double percento = tabelle.ritenuta(i);
        if (percento > 0 && imponibile != 0.0) {
            r.percentualeritenuta = percento;
            r.totaleritenuta += valuta.percentuale(imponibile, percento);
            r.imponibileritenuta += imponibile;
        }
    }
    return r;
}

bool rigaInFattura(const Riga& riga) {
    return !riga.descrizione.isEmpty() || riga.prezzo != 0.0 || riga.quantita != 0.0;
}

void completaCodici(TabellaRighe& righepa) {
    const auto tassata = std::ranges::find_if(righepa, [](const Riga& r) { return r.iva.tassato(); });
    if (tassata == righepa.end())
        return;
    for (Riga& riga : righepa) {
        if (riga.iva.nessuno() && rigaInFattura(riga))
            riga.iva = tassata->iva;
    }
}

} // namespace bor
