// A command on many documents from its question to its report: one document at a time, so that a screen stays
// alive between two of them and the operator can stop.
#pragma once

#include "lotto/lavoro.h"

#include <chrono>
#include <memory>

namespace bor {

class RigheInSospeso;

class Lotto {
public:
    enum class Passo {
        Avanza,  ///< to be called again at once
        Attende, ///< there is something to wait for: to be called again in a few milliseconds
        Finito
    };

    /// Looks at the chosen documents; nothing happens to them yet.
    Lotto(const Contesto& contesto, RigheInSospeso& sospese, std::unique_ptr<Lavoro> lavoro,
          const std::vector<Identita>& scelti);

    const QString& titolo() const { return m_rapporto.titolo; }
    /// What will happen, to how many, and which are left out.
    const QString& domanda() const { return m_domanda; }
    std::vector<OpzioneLotto>& opzioni() { return m_lavoro->opzioni(); }
    /// Documents that the command takes.
    int quanti() const { return m_quanti; }

    void inizia();
    /// Takes the next document or goes on with those taken, for some milliseconds.
    Passo passo();
    /// The document in hand is the last one.
    void interrompi();
    /// Documents that are through, done or not.
    int finiti() const { return m_finiti; }
    /// The document in hand, "fattura 12 del 15/03/2015"; empty between two.
    const QString& inMano() const { return m_inMano; }

    const RapportoLotto& rapporto() const { return m_rapporto; }

private:
    bool prossimo();
    void esito(std::size_t riga, EsitoRiga esito, const QString& testo);

    RigheInSospeso& m_sospese;
    std::unique_ptr<Lavoro> m_lavoro;
    ContestoMuto m_muto;
    std::vector<Candidato> m_candidati;
    RapportoLotto m_rapporto;
    QString m_domanda;
    QString m_inMano;
    std::vector<std::size_t> m_ordine;
    std::size_t m_seguente = 0; ///< in `m_ordine`
    int m_quanti = 0;
    int m_finiti = 0;
    bool m_concluso = false;
    std::chrono::steady_clock::time_point m_occupatoDa; ///< another program keeps registering; epoch: no
};

} // namespace bor
