// A command on many documents: what it says before it begins, what it does to each. `Lotto` hands it one
// document at a time.
#pragma once

#include "archive/contesto.h"
#include "common/portemute.h"
#include "document/documento.h"
#include "lotto/candidati.h"
#include "lotto/rapportolotto.h"

#include <functional>
#include <vector>

namespace bor {

/// Something about the command that the operator may choose before it begins.
struct OpzioneLotto {
    QString nome; ///< of the control
    QString testo;
    bool scelta = true;
};

/// The run's context with nobody to talk to: a batch asks once, and tells at its end.
class ContestoMuto {
public:
    explicit ContestoMuto(const Contesto& vero);
    ContestoMuto(const ContestoMuto&) = delete;
    ContestoMuto& operator=(const ContestoMuto&) = delete;

    SenzaOperatore operatore;
    SenzaSistema sistema;
    SenzaSchermi schermi;
    Contesto contesto;
};

class Lavoro {
public:
    using Racconta = std::function<void(std::size_t riga, EsitoRiga esito, const QString& testo)>;

    explicit Lavoro(const Contesto& contesto) : m_muto(contesto) {}
    virtual ~Lavoro();
    Lavoro(const Lavoro&) = delete;
    Lavoro& operator=(const Lavoro&) = delete;

    virtual QString titolo() const = 0;
    /// What will happen to the documents that the command takes, as the operator reads it; leaves out more of
    /// them.
    virtual QString proposta(std::vector<Candidato>& candidati) = 0;
    std::vector<OpzioneLotto>& opzioni() { return m_opzioni; }

    /// Begins, the options chosen. The order in which the documents are to come, by their rows.
    virtual std::vector<std::size_t> inizia(const std::vector<Candidato>& candidati);
    /// It takes another document by now.
    virtual bool pronto() const { return true; }
    virtual void prendi(std::size_t riga, Documento documento) = 0;
    /// Goes on with what was taken, for a few milliseconds; false when there was nothing to do.
    virtual bool gira() { return false; }
    /// No more documents come.
    virtual void concludi() {}
    /// The operator stops it: what has not begun does not begin.
    virtual void interrompi() {}
    /// Nothing of what was taken is still to be done.
    virtual bool fermo() const { return true; }

    void suEsito(Racconta racconta) { m_racconta = std::move(racconta); }

protected:
    Contesto& contesto() { return m_muto.contesto; }
    const Contesto& contesto() const { return m_muto.contesto; }
    /// What the operator would have been told meanwhile.
    QStringList prendiMessaggi() { return std::exchange(m_muto.operatore.messaggi, {}); }
    void racconta(std::size_t riga, EsitoRiga esito, const QString& testo) const {
        m_racconta(riga, esito, testo);
    }

    std::vector<OpzioneLotto> m_opzioni;

private:
    ContestoMuto m_muto;
    Racconta m_racconta;
};

inline const QString motivoInterrotto = QStringLiteral("interrotto prima che venisse il suo turno");

} // namespace bor
