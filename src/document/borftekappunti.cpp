// Rows that are copied out of a fee bill, rows of a text that are put in, and the choice of rows.
#include "document/borftek.h"
#include "document/testorighe.h"

#include <algorithm>
#include <span>

namespace bor {

void Borftek::entra(Cella cella) {
    if (cella.linea != m_lineafuoco)
        m_ancora.reset();
    m_lineafuoco = cella.linea;
}

void Borftek::scorri(int prima) {
    m_ancora.reset();
    m_finestra.scorri(prima);
}

void Borftek::modificato() {
    m_ancora.reset();
    m_modificato = true;
}

void Borftek::vaiARiga(int riga) {
    if (riga < m_finestra.prima())
        m_finestra.scorri(riga);
    else if (riga >= m_finestra.prima() + linee)
        m_finestra.scorri(riga - linee + 1);
    m_lineafuoco = riga - m_finestra.prima();
    vaiAllInizio();
}

void Borftek::scegli(int verso) {
    if (!m_ancora)
        m_ancora = rigaFuoco();
    vaiARiga(std::clamp(rigaFuoco() + verso, 1, righeParcella));
}

bool Borftek::scelta(int linea) const {
    if (!m_ancora)
        return false;
    const auto [prima, ultima] = std::minmax({*m_ancora, rigaFuoco()});
    return m_finestra.riga(linea) >= prima && m_finestra.riga(linea) <= ultima;
}

QString Borftek::copia() const {
    const auto [prima, ultima] = std::minmax({m_ancora.value_or(rigaFuoco()), rigaFuoco()});
    return testoRighe(std::span(m_righe).subspan(postoDaZero(prima - 1), postoDaZero(ultima - prima + 1)));
}

Incollate Borftek::provaIncolla(const QString& testo) const {
    TabellaRighep prova = m_righe;
    return incollaParcella(prova, rigaFuoco(), testo);
}

void Borftek::incolla(const QString& testo) {
    modificato();
    const int posto = rigaFuoco();
    vaiARiga(std::min(posto + incollaParcella(m_righe, posto, testo).inserite, righeParcella));
}

} // namespace bor
