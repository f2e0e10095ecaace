#include "document/righeiva.h"

#include "common/posti.h"

#include <span>

namespace bor {

namespace {

template <class Coppia>
auto* cella(Coppia& coppia, VoceIva voce, int riga) {
    auto& fte = coppia.fte;
    auto& f2e = coppia.f2e;
    const std::size_t i = postoDaZero(riga - 1);
    if (i < fte.impon.size())
        return voce == VoceIva::Imponibile ? &fte.impon[i]
               : voce == VoceIva::Imposta  ? &fte.iva[i]
                                           : &fte.esen[i];
    const auto j = i - fte.impon.size();
    return voce == VoceIva::Imponibile ? &f2e.impon[j]
           : voce == VoceIva::Imposta  ? &f2e.iva[j]
                                       : &f2e.esen[j];
}

bool esiste(int riga) {
    return riga >= 1 && riga <= righeIva;
}

} // namespace

double importoIva(const CoppiaFte& coppia, VoceIva voce, int riga) {
    return esiste(riga) ? double{*cella(coppia, voce, riga)} : 0.0;
}

void mettiImportoIva(CoppiaFte& coppia, VoceIva voce, int riga, double importo) {
    if (esiste(riga))
        *cella(coppia, voce, riga) = importo;
}

double sommaIva(const CoppiaFte& coppia, VoceIva voce) {
    return sommaIva(coppia.fte, coppia.f2e, voce);
}

double sommaIva(const Fte& fte, const F2e& f2e, VoceIva voce) {
    const auto somma = [](const auto& prime, const auto& ultime) {
        double tutte = double{prime[1]} + prime[0];
        for (const double importo : std::span(prime).subspan(2))
            tutte += importo;
        for (const double importo : ultime)
            tutte += importo;
        return tutte;
    };
    switch (voce) {
    case VoceIva::Imponibile:
        return somma(fte.impon, f2e.impon);
    case VoceIva::Imposta:
        return somma(fte.iva, f2e.iva);
    case VoceIva::Esente:
        return somma(fte.esen, f2e.esen);
    }
    return 0;
}

} // namespace bor
