#include "posting/movimento.h"

#include "common/date.h"
#include "common/numeri.h"

namespace bor {

bool RigaMovimento::senzaImporti() const {
    return valorevirgola(dare) == 0.0 && valorevirgola(avere) == 0.0;
}

Movimento Movimento::da(const Gio& gio) {
    Movimento m;
    m.descrizione = gio.descrizione.trimmed();
    m.data = dataDaAnnoMeseGiorno(gio.data.text());
    m.riferimento = gio.riferimento.trimmed();
    for (std::size_t i = 0; i < m.righe.size(); ++i) {
        const VoceGio& voce = gio.voce[i];
        if (voce.importo == 0.0)
            continue;
        m.righe[i].conto = ContoTesti::da(voce.conto.text());
        (voce.segno == 0 ? m.righe[i].dare : m.righe[i].avere) = testoDecimale(voce.importo);
    }
    return m;
}

void Movimento::riempi(Gio& gio) const {
    gio.data.set(annoMeseGiorno(data));
    gio.descrizione.set(descrizione);
    gio.riferimento.set(riferimento);
    gio.statogio.set(u"1");
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const double dare = valorevirgola(righe[i].dare);
        gio.voce[i].conto.set(righe[i].conto.unito());
        gio.voce[i].importo = dare + valorevirgola(righe[i].avere);
        gio.voce[i].segno = dare > 0 ? 0 : 1;
    }
}

} // namespace bor
