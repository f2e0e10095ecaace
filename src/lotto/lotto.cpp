#include "lotto/lotto.h"

#include "lotto/apertura.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// As long as a registration would wait for another one.
constexpr std::chrono::seconds attesaMassima{5};

} // namespace

Lotto::Lotto(const Contesto& contesto, RigheInSospeso& sospese, std::unique_ptr<Lavoro> lavoro,
             const std::vector<Identita>& scelti)
    : m_sospese(sospese), m_lavoro(std::move(lavoro)), m_muto(contesto),
      m_candidati(candidati(contesto.archivio, scelti)) {
    const QString proposta = m_lavoro->proposta(m_candidati);
    m_rapporto.titolo = m_lavoro->titolo();
    for (const Candidato& c : m_candidati)
        m_rapporto.righe.push_back(
            {c.identita, c.nome, c.ragione, c.dentro() ? EsitoRiga::Attesa : EsitoRiga::NonFatta, c.fuori});
    m_quanti = quantiDentro(m_candidati);
    const QString fuori = testoFuori(m_candidati);
    m_domanda = m_quanti == 0 ? fuori : fuori.isEmpty() ? proposta : proposta + u"\n\n"_s + fuori;
    m_lavoro->suEsito(
        [this](std::size_t riga, EsitoRiga comeVa, const QString& testo) { esito(riga, comeVa, testo); });
}

void Lotto::inizia() {
    m_ordine = m_lavoro->inizia(m_candidati);
}

Lotto::Passo Lotto::passo() {
    const bool girato = m_lavoro->gira();
    if (m_seguente < m_ordine.size() && m_lavoro->pronto())
        return prossimo() ? Passo::Avanza : Passo::Attende;
    if (m_seguente >= m_ordine.size() && !m_concluso) {
        m_concluso = true;
        m_inMano.clear();
        m_lavoro->concludi();
        return Passo::Avanza;
    }
    if (girato)
        return Passo::Avanza;
    return m_concluso && m_lavoro->fermo() ? Passo::Finito : Passo::Attende;
}

/// Opens the next document and hands it on; false while another program is registering.
bool Lotto::prossimo() {
    using Ora = std::chrono::steady_clock;
    const std::size_t riga = m_ordine[m_seguente];
    Aperto aperto = apriScelto(m_muto.contesto, m_sospese, m_candidati[riga].identita);
    if (aperto.occupato) {
        if (m_occupatoDa == Ora::time_point())
            m_occupatoDa = Ora::now();
        if (Ora::now() - m_occupatoDa < attesaMassima)
            return false;
        aperto.motivo = u"l'archivio è impegnato da un altro computer"_s;
    } else {
        m_occupatoDa = {};
    }
    ++m_seguente;
    m_inMano = m_candidati[riga].nome;
    if (aperto.documento)
        m_lavoro->prendi(riga, *std::move(aperto.documento));
    else
        esito(riga, EsitoRiga::NonFatta, aperto.motivo);
    return true;
}

void Lotto::interrompi() {
    if (m_rapporto.interrotto)
        return;
    m_rapporto.interrotto = true;
    m_lavoro->interrompi();
    for (; m_seguente < m_ordine.size(); ++m_seguente)
        esito(m_ordine[m_seguente], EsitoRiga::NonFatta, motivoInterrotto);
}

void Lotto::esito(std::size_t riga, EsitoRiga esito, const QString& testo) {
    RigaLotto& r = m_rapporto.righe[riga];
    if (r.esito == EsitoRiga::Attesa && esito != EsitoRiga::Attesa)
        ++m_finiti;
    r.esito = esito;
    r.testo = testo;
}

} // namespace bor
