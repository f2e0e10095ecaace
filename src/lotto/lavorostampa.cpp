#include "lotto/lavorostampa.h"

#include "output/stampafattura.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

bool StampanteUnica::inizia(const QString& titolo) {
    m_iniziata = m_iniziata || m_vera.inizia(u"Documenti dal n. %1"_s.arg(titolo));
    return m_iniziata;
}

void StampanteUnica::chiudi() {
    if (std::exchange(m_iniziata, false))
        m_vera.termina();
}

LavoroStampa::LavoroStampa(const Contesto& contesto, Stampante& stampante)
    : Lavoro(contesto), m_stampante(stampante), m_unica(stampante) {
    m_opzioni = {{u"unica"_s, u"In un solo lavoro di stampa"_s}};
}

QString LavoroStampa::titolo() const {
    return u"Stampa dei documenti scelti"_s;
}

QString LavoroStampa::proposta(std::vector<Candidato>& candidati) {
    const auto pa = std::ranges::count_if(candidati, [](const Candidato& c) { return c.dentro() && c.pa; });
    QString testo = u"Stampare %1, nell'ordine dell'elenco?"_s.arg(contoDocumenti(quantiDentro(candidati)));
    if (pa > 0)
        testo += u"\nFatture PA, di cui esce una copia per uso interno: %1."_s.arg(pa);
    return testo;
}

void LavoroStampa::prendi(std::size_t riga, Documento documento) {
    Stampante& stampante = m_opzioni.front().scelta ? static_cast<Stampante&>(m_unica) : m_stampante;
    switch (stampaSuCarta(documento, contesto(), stampante)) {
    case SuCarta::Stampato:
        return racconta(riga, EsitoRiga::Fatta, u"affidato alla stampante"_s);
    case SuCarta::SenzaRighe:
        return racconta(riga, EsitoRiga::NonFatta, u"non ha righe: non c'è nulla da stampare"_s);
    case SuCarta::SenzaStampante:
        return racconta(riga, EsitoRiga::NonFatta, u"nessuna stampante: installarne o collegarne una"_s);
    }
}

} // namespace bor
