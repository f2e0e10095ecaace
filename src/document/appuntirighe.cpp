#include "document/appuntirighe.h"

#include <algorithm>

namespace bor {

std::pair<int, int> AppuntiRighe::tratto() const {
    const int fuoco = m_form.fuoco();
    return std::minmax({m_ancora.value_or(fuoco), fuoco});
}

void AppuntiRighe::scegli(int verso) {
    const int fuoco = m_form.fuoco();
    const int ancora = m_ancora.value_or(fuoco);
    // Entering a row by itself ends the choice.
    m_form.vaiA(std::clamp(fuoco + verso, 1, m_form.righe));
    m_ancora = ancora;
}

bool AppuntiRighe::scelta(int riga) const {
    const auto [prima, ultima] = tratto();
    return m_ancora && riga >= prima && riga <= ultima;
}

QString AppuntiRighe::copia() const {
    const auto [prima, ultima] = tratto();
    return m_form.testo(prima, ultima);
}

Incollate AppuntiRighe::prova(const QString& testo) const {
    return m_form.prova(m_form.fuoco(), testo);
}

void AppuntiRighe::incolla(const QString& testo) {
    const int posto = m_form.fuoco();
    const int inserite = m_form.metti(posto, testo).inserite;
    m_form.vaiA(std::min(posto + inserite, m_form.righe));
}

} // namespace bor
