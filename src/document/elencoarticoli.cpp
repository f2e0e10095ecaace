#include "document/elencoarticoli.h"

#include "archive/contesto.h"

using namespace Qt::StringLiterals;

namespace bor {

void ElencoArticoli::dimentica() {
    m_caricata = false;
    m_visibile = false;
}

bool ElencoArticoli::apri() {
    m_visibile = carica();
    return m_visibile;
}

bool ElencoArticoli::carica() {
    if (m_contesto.archivio.leggiTot(Conta::Art).numero < 1)
        return false;
    if (!m_caricata) {
        const Attesa attesa(m_contesto.operatore);
        m_lista.carica(m_contesto.archivio, OrdineArticoli::Codice);
        m_caricata = true;
        m_posizione = -1;
        ++m_edizione;
    }
    return true;
}

int ElencoArticoli::perCodice(const QString& codice) {
    constexpr qsizetype caratteri = 15;
    if (codice.size() > caratteri || !carica())
        return 0;
    const int posizione = m_lista.cerca(riempi(codice, caratteri) + u" - "_s);
    return posizione < 0 ? 0 : m_lista.recart(posizione);
}

int ElencoArticoli::cerca(QStringView inizio) {
    return m_caricata ? scegli(m_lista.cerca(inizio)) : 0;
}

int ElencoArticoli::scegli(int posizione) {
    if (!m_caricata || posizione < 0 || posizione >= m_lista.quanti())
        return 0;
    m_posizione = posizione;
    return m_lista.recart(posizione);
}

} // namespace bor
