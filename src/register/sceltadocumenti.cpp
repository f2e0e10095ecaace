#include "register/sceltadocumenti.h"

#include <algorithm>
#include <unordered_map>

namespace bor {

void SceltaDocumenti::scegli(const std::vector<TrattoRighe>& righe) {
    dimentica();
    m_righe = righe;
    for (const TrattoRighe& tratto : righe) {
        const int ultima = std::min(tratto.ultima, m_elenco.quante() - 1);
        for (int riga = std::max(tratto.prima, 0); riga <= ultima; ++riga)
            m_documenti.push_back(m_elenco.identita(riga));
    }
}

void SceltaDocumenti::dimentica() {
    m_documenti.clear();
    m_righe.clear();
}

const std::vector<TrattoRighe>& SceltaDocumenti::ritrova() {
    std::unordered_map<int, Identita> scelti;
    for (const Identita& documento : m_documenti)
        scelti.emplace(documento.record, documento);
    dimentica();
    for (int riga = 0; riga < m_elenco.quante() && !scelti.empty(); ++riga) {
        const auto scelto = scelti.find(m_elenco.record(riga));
        if (scelto == scelti.end() || !stesso(scelto->second, m_elenco.identita(riga)))
            continue;
        if (!m_righe.empty() && m_righe.back().ultima == riga - 1)
            m_righe.back().ultima = riga;
        else
            m_righe.push_back({riga, riga});
        m_documenti.push_back(m_elenco.identita(riga));
    }
    return m_righe;
}

} // namespace bor
