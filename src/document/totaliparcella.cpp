#include "document/totaliparcella.h"

#include "common/numeri.h"
#include "common/testo.h"

#include <algorithm>

namespace bor {

namespace {

/// Rates of one row of the VAT table.
struct Regime {
    int riga;
    double aliquota;
    double ra;
    double ci;
    double cp;
};

Regime regime(const Tabelle& tabelle, int posizione) {
    const int riga = std::clamp(posizione + 1, 1, righeIva);
    const RigaAliquota& r = tabelle.aliquote[riga];
    return {riga, valore(r.aliquota), valore(r.ritenuta), valore(r.contributoci), valore(r.contributocp)};
}

} // namespace

TotaliParcella sommaParcella(const TabellaRighep& righe) {
    TotaliParcella t;
    for (const Rigap& riga : righe) {
        t.totanticipazioni += riga.anticipazioni;
        t.totspese += riga.spese;
        t.totonorari += riga.onorari;
    }
    return t;
}

TotaliParcella totaliParcella(const TabellaRighep& righe, const Pratica& pratica, const Tabelle& tabelle,
                              const Valuta& valuta) {
    TotaliParcella t = sommaParcella(righe);
    const Regime o = regime(tabelle, pratica.ivaono);
    const Regime s = regime(tabelle, pratica.ivaspe);
    const double To = t.totonorari;
    const double Ts = t.totspese;
    t.contributoci = valuta.percentuale(To, o.ci) + valuta.percentuale(Ts, s.ci);
    t.contributocp = valuta.percentuale(To, o.cp) + valuta.percentuale(Ts, s.cp);
    t.ivaspese = valuta.percentualeecc(Ts, s.aliquota);
    t.ivaonorari = valuta.percentualeecc(To, o.aliquota);
    t.ivacp = valuta.percentualeecc(t.contributocp, o.aliquota);
    t.ritenuta = valuta.percentuale(To, o.ra) + valuta.percentuale(t.contributocp, o.ra) +
                 valuta.percentuale(Ts, s.ra);
    if (s.ra > 0)
        t.baseritenuta += Ts;
    if (o.ra > 0)
        t.baseritenuta += t.contributocp + To;
    t.totaledocumento =
        t.totanticipazioni + Ts + To + t.contributoci + t.contributocp + t.ivaspese + t.ivaonorari + t.ivacp;
    t.nettodocumento = t.totaledocumento - t.ritenuta;
    t.imponibile = To + Ts + t.contributocp;
    t.imposta = t.ivaonorari + t.ivaspese + t.ivacp;
    t.iva.imponibili[o.riga] += To + t.contributoci + t.contributocp;
    t.iva.imposte[o.riga] += t.ivaonorari + t.ivacp;
    t.iva.imponibili[s.riga] += Ts;
    t.iva.imposte[s.riga] += t.ivaspese;
    return t;
}

} // namespace bor
