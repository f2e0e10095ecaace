#include "register/sceltadocumenti.h"

#include "register/elencofatture.h"

#include <algorithm>
#include <unordered_map>

namespace bor {

void SceltaDocumenti::scegli(const std::vector<TrattoRighe>& righe) {
    m_documenti.clear();
    for (const TrattoRighe& tratto : righe) {
        const int ultima = std::min(tratto.ultima, m_elenco.quante() - 1);
        for (int riga = std::max(tratto.prima, 0); riga <= ultima; ++riga)
            m_documenti.push_back(m_elenco.identita(riga));
    }
}

std::vector<TrattoRighe> SceltaDocumenti::ritrova() {
    std::unordered_map<int, Identita> scelti;
    for (const Identita& documento : m_documenti)
        scelti.emplace(documento.record, documento);
    m_documenti.clear();
    std::vector<TrattoRighe> tratti;
    for (int riga = 0; riga < m_elenco.quante() && !scelti.empty(); ++riga) {
        const auto scelto = scelti.find(m_elenco.record(riga));
        if (scelto == scelti.end() || !stesso(scelto->second, m_elenco.identita(riga)))
            continue;
        if (!tratti.empty() && tratti.back().ultima == riga - 1)
            tratti.back().ultima = riga;
        else
            tratti.push_back({riga, riga});
        m_documenti.push_back(m_elenco.identita(riga));
    }
    return tratti;
}

} // namespace bor
