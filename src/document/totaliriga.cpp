#include "document/totaliriga.h"

#include "common/numeri.h"

namespace bor {

namespace {

bool quantitaVera(const Riga& riga) {
    return riga.quantita != 0.0 && riga.quantita != Riga::soloPrezzo;
}

/// Takes the tax out of sums that include it.
void scorpora(TabellaIva& iva, int i, double aliquota, const Valuta& valuta) {
    const double lordo = iva.imponibili[i];
    if (lordo == 0.0)
        return;
    const double t = (aliquota + 100) / 100;
    const double netto = valuta.euro ? tronca(lordo / t + 0.005) : valuta.arrotonda(lordo / t - 0.5);
    iva.imposte[i] = lordo - netto;
    iva.imponibili[i] = lordo - iva.imposte[i];
}

void sommaRighe(const TabellaRighe& righe, const Valuta& valuta, TotaliRighe& t) {
    for (const Riga& riga : righe) {
        if (quantitaVera(riga)) {
            t.pezzi += riga.quantita;
            t.pesototale += riga.peso * riga.quantita;
        }
        const double importo = importoRiga(riga, valuta);
        const CodiceIva codice = codiceContato(riga);
        (codice.tassato() ? t.iva.imponibili : t.iva.esenti)[codice.riga()] += importo;
    }
}

} // namespace

CodiceIva codiceContato(const Riga& riga) {
    return riga.iva.valido() ? riga.iva : CodiceIva(1);
}

double importoRiga(const Riga& riga, const Valuta& valuta) {
    double importo = riga.prezzo;
    if (quantitaVera(riga))
        importo = valuta.arrotonda(importo * riga.quantita);
    importo -= valuta.percentuale(importo, riga.sconto1);
    importo -= valuta.percentuale(importo, riga.sconto2);
    return importo;
}

TotaliRighe ricalcola(const TabellaRighe& righe, bool scorporo, const Tabelle& tabelle,
                      const Valuta& valuta) {
    TotaliRighe t;
    sommaRighe(righe, valuta, t);
    for (int i = 1; i <= righeIva; ++i) {
        const double aliquota = tabelle.aliquota(i);
        if (scorporo)
            scorpora(t.iva, i, aliquota, valuta);
        else
            t.iva.imposte[i] = valuta.percentualeecc(t.iva.imponibili[i], aliquota);
    }
    double imposta = 0;
    for (int i = 1; i <= righeIva; ++i) {
        t.totimp += t.iva.imponibili[i] + t.iva.esenti[i];
        imposta += t.iva.imposte[i];
    }
    t.totale = t.totimp + imposta;
    for (int i = 1; i <= righeIva; ++i) {
        const double aliquota = tabelle.ritenuta(i);
        if (aliquota > 0) {
            t.aliquotarit = aliquota;
            t.importorit += valuta.percentuale(t.iva.imponibili[i], aliquota);
            t.baserit += t.iva.imponibili[i];
        }
    }
    return t;
}

} // namespace bor
