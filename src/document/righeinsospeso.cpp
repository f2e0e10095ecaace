#include "document/righeinsospeso.h"

#include <algorithm>
#include <cmath>

namespace bor {

namespace {

/// The lines without the empty ones at the end.
template <class R>
std::vector<R> usate(const std::vector<R>& righe) {
    const auto vuota = [](const R& riga) { return riga == R(); };
    return {righe.begin(), std::find_if_not(righe.rbegin(), righe.rend(), vuota).base()};
}

} // namespace

void RigheInSospeso::tieni(const Documento& documento) {
    m_documenti.insert_or_assign(documento.coppia.fte.stamp,
                                 Sospesi{usate(documento.ddd), usate(documento.dddp),
                                         documento.testata.trasporto, documento.testata.pratica,
                                         documento.scorporo});
}

bool RigheInSospeso::riprendi(Documento& documento) const {
    // A garbled stamp that is no number has no place in the order of the others.
    const double stamp = documento.coppia.fte.stamp;
    const auto trovato = std::isnan(stamp) ? m_documenti.end() : m_documenti.find(stamp);
    if (trovato == m_documenti.end())
        return false;
    const Sospesi& sospesi = trovato->second;
    documento.ddd = sospesi.ddd;
    documento.ddd.resize(righeMerce);
    documento.dddp = sospesi.dddp;
    documento.dddp.resize(righeParcella);
    documento.testata.trasporto = sospesi.trasporto;
    documento.testata.pratica = sospesi.pratica;
    documento.scorporo = sospesi.scorporo;
    return true;
}

bool RigheInSospeso::vuoto() const {
    return std::ranges::none_of(
        m_documenti, [](const auto& voce) { return !voce.second.ddd.empty() || !voce.second.dddp.empty(); });
}

} // namespace bor
