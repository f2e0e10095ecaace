#include "lotto/lavoro.h"

namespace bor {

ContestoMuto::ContestoMuto(const Contesto& vero)
    : contesto{vero.sessione, vero.archivio, vero.impostazioni, vero.tabelle, operatore,
               vero.orologio, sistema,       schermi,           vero.rapporto} {}

Lavoro::~Lavoro() = default;

std::vector<std::size_t> Lavoro::inizia(const std::vector<Candidato>& candidati) {
    std::vector<std::size_t> ordine;
    for (std::size_t i = 0; i < candidati.size(); ++i)
        if (candidati[i].dentro())
            ordine.push_back(i);
    return ordine;
}

} // namespace bor
