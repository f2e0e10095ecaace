#include "document/importidocumento.h"

#include "document/righeiva.h"

#include <algorithm>
#include <optional>

namespace bor {

namespace {

/// A field `ddmmyyyy` as `yyyymmdd`; nothing where it holds no date.
std::optional<Text<8>> girata(const Text<8>& campo) {
    const auto& c = campo.bytes;
    const bool cifre = std::ranges::all_of(c, [](char x) { return x >= '0' && x <= '9'; });
    if (!cifre || campo.raw() == "00000000")
        return std::nullopt;
    return Text<8>{{c[4], c[5], c[6], c[7], c[2], c[3], c[0], c[1]}};
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
            const auto giorno = girata(campo);
            if (giorno && (prima.bytes[0] == ' ' || giorno->bytes < prima.bytes))
                prima = *giorno;
        }
    };
    guarda(fte.scad);
    guarda(f2e.scad);
    return prima;
}

} // namespace bor
