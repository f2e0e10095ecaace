#include "lotto/rilievilotto.h"

#include "xmlcheck/elementiinparole.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

QString primoRilievo(const std::vector<Rilievo>& rilievi) {
    if (rilievi.empty())
        return {};
    const auto errore = std::ranges::find(rilievi, Gravita::Errore, &Rilievo::gravita);
    const Rilievo& primo = errore == rilievi.end() ? rilievi.front() : *errore;
    return (motivoInParole(primo) + u' ' + primo.rimedio).simplified();
}

QString riassunto(const std::vector<Rilievo>& rilievi) {
    return contoRilievi(rilievi) + u": "_s + primoRilievo(rilievi);
}

} // namespace bor
