#include "register/elencofatture.h"

#include "common/date.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// A day on file, `yyyymmdd`; what is none goes out as it is shown.
void giorno(CelleRiga& celle, const Text<8>& campo) {
    const auto& c = campo.bytes;
    if (std::ranges::all_of(c, [](char x) { return x >= '0' && x <= '9'; })) {
        const auto numero = [&c](std::size_t da, std::size_t quante) {
            int n = 0;
            for (std::size_t i = da; i < da + quante; ++i)
                n = 10 * n + (c[i] - '0');
            return n;
        };
        const QDate data(numero(0, 4), numero(4, 2), numero(6, 2));
        if (data.isValid())
            return celle.data(data);
    }
    celle.testo(dataDaAnnoMeseGiorno(campo.text()));
}

} // namespace

void ElencoFatture::cella(int riga, Colonna colonna, CelleRiga& celle) const {
    if (!esiste(riga))
        return celle.vuota();
    const Riga& r = mostrata(riga);
    switch (colonna) {
    case Colonna::Registrazione:
        return celle.numero(r.record);
    case Colonna::DataRegistrazione:
        return giorno(celle, r.datareg);
    case Colonna::DataDocumento:
        return giorno(celle, r.datadoc);
    case Colonna::PrimaScadenza:
        return giorno(celle, r.scadenza);
    case Colonna::Cliente:
        return celle.testo(nomeCliente(r));
    case Colonna::Pa:
        return celle.testo(r.pa ? u"PA" : u"");
    case Colonna::Pdf:
        return celle.testo(r.pdf >= 0 ? u"PDF" : u"");
    case Colonna::Importo:
        return celle.importo(r.importi.totale);
    case Colonna::Imponibile:
        return celle.importo(r.importi.imponibile);
    case Colonna::Imposta:
        return celle.importo(r.importi.imposta);
    case Colonna::Esente:
        return celle.importo(r.importi.esente);
    case Colonna::Ritenuta:
        return celle.importo(r.importi.ritenuta);
    case Colonna::NomePdf:
        return celle.testo(puliscitesto(nomePdf(r)));
    case Colonna::Numero:
    case Colonna::Chiave:
    case Colonna::Pagamento:
        return celle.testo(testo(r, colonna, {}));
    }
}

SommeElenco ElencoFatture::somma(const std::vector<TrattoRighe>& tratti) const {
    SommeElenco somme;
    for (const TrattoRighe& tratto : tratti) {
        const int ultima = std::min(tratto.ultima, quante() - 1);
        for (int i = std::max(tratto.prima, 0); i <= ultima; ++i) {
            const Riga& r = mostrata(i);
            ++somme.documenti;
            somme.eliminati += r.annullata ? 1 : 0;
            // One ruined record does not ruin the sum of the others.
            if (r.annullata || !std::isfinite(r.importi.totale + r.importi.ritenuta))
                continue;
            somme.imponibile += r.importi.imponibile;
            somme.imposta += r.importi.imposta;
            somme.esente += r.importi.esente;
            somme.ritenuta += r.importi.ritenuta;
            somme.totale += r.importi.totale;
        }
    }
    return somme;
}

SommeElenco ElencoFatture::somma() const {
    return somma({{0, quante() - 1}});
}

} // namespace bor
