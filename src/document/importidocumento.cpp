#include "document/importidocumento.h"

#include "document/righeiva.h"

#include <algorithm>

namespace bor {

namespace {

/// A field `ddmmyyyy` as `yyyymmdd`; blank where it holds no date.
Text<8> girata(const Text<8>& campo) {
    const auto& c = campo.bytes;
    const bool cifre = std::ranges::all_of(c, [](char x) { return x >= '0' && x <= '9'; });
    Text<8> giorno;
    giorno.blank();
    if (cifre && campo.raw() != "00000000")
        giorno.bytes = {c[4], c[5], c[6], c[7], c[2], c[3], c[0], c[1]};
    return giorno;
}

} // namespace

ImportiDocumento importiDi(const Fte& fte, const F2e& f2e) {
    ImportiDocumento importi{.imponibile = sommaIva(fte, f2e, VoceIva::Imponibile),
                             .imposta = sommaIva(fte, f2e, VoceIva::Imposta),
                             .esente = sommaIva(fte, f2e, VoceIva::Esente)};
    // Position by position, the order in which the suite adds the total.
    for (std::size_t i = 0; i < fte.impon.size(); ++i)
        importi.totale = importi.totale + fte.impon[i] + fte.iva[i] + fte.esen[i];
    for (std::size_t i = 0; i < f2e.impon.size(); ++i)
        importi.totale = importi.totale + f2e.impon[i] + f2e.iva[i] + f2e.esen[i];
    for (const double ritenuta : f2e.raimp)
        importi.ritenuta += ritenuta;
    if (fte.tipo == 1)
        importi = {-importi.imponibile, -importi.imposta, -importi.esente, -importi.ritenuta,
                   -importi.totale};
    return importi;
}

Text<8> primaScadenza(const Fte& fte, const F2e& f2e) {
    Text<8> prima;
    prima.blank();
    const auto guarda = [&prima](const auto& scadenze) {
        for (const Text<8>& campo : scadenze) {
            const Text<8> giorno = girata(campo);
            if (giorno.bytes[0] != ' ' && (prima.bytes[0] == ' ' || giorno.raw() < prima.raw()))
                prima = giorno;
        }
    };
    guarda(fte.scad);
    guarda(f2e.scad);
    return prima;
}

} // namespace bor
