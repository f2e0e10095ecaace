#include "register/elencofatture.h"

#include "archive/giornidifile.h"
#include "common/date.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// A day on file, `yyyymmdd`; what is none goes out as it is shown.
void giorno(CelleRiga& celle, const Text<8>& campo) {
    if (const QDate data = daAnnoMeseGiorno(campo); data.isValid())
        return celle.data(data);
    celle.testo(dataDaAnnoMeseGiorno(campo.text()));
}

/// A field on file as a person reads it; where its characters are plain, no text of its own is made of it.
template <std::size_t N>
void leggibile(CelleRiga& celle, const Text<N>& campo) {
    if (!std::ranges::all_of(campo.bytes, [](char c) { return c >= ' ' && c <= '~'; }))
        return celle.testo(campo.trimmed());
    std::array<char16_t, N> lettere{};
    std::ranges::copy(campo.bytes, lettere.begin());
    const auto nonBianca = [](char16_t c) { return c != u' '; };
    const auto prima = std::ranges::find_if(lettere, nonBianca);
    auto fine = lettere.end();
    while (fine != prima && !nonBianca(fine[-1]))
        --fine;
    celle.testo(QStringView(prima, fine));
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
        return celle.testo(r.pa ? QStringView(u"PA") : QStringView());
    case Colonna::Pdf:
        return celle.testo(r.pdf >= 0 ? QStringView(u"PDF") : QStringView());
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
        return leggibile(celle, r.numero);
    case Colonna::Chiave:
        return leggibile(celle, r.datareg);
    case Colonna::Pagamento:
        return celle.testo(nomePagamento(r));
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
