// All live documents of a company, read in one pass of blocks, which can be taken in slices so that a screen
// stays alive meanwhile.
#pragma once

#include "archive/archivio.h"

#include <chrono>
#include <functional>
#include <vector>

namespace bor {

class LetturaDocumenti {
public:
    /// Gets a document that is not deleted. A second half that was never written comes in its empty state.
    using Visita = std::function<void(int record, const Fte&, const F2e&)>;

    /// How long a screen may wait for its list when it comes into view.
    static constexpr std::chrono::milliseconds primaFetta{100};

    LetturaDocumenti(const Archivio& archivio, Visita visita);

    /// Begins with the first document; how many there are is counted now.
    void comincia();
    bool inCorso() const { return m_inCorso; }
    /// Reads on for about this time, and at least one block. The two halves of a document are read under the
    /// lock of the company, so that they are of one save; while another program has it, the time passes with
    /// nothing read.
    void prosegui(std::chrono::milliseconds tempo);
    /// Reads on to the end.
    void finisci();
    /// Leaves it at what was read.
    void interrompi();

    int letti() const { return m_letti; }
    int quanti() const { return m_quanti; }
    /// Why not all documents were read, in words; empty when they were, or while they are being read.
    const QString& difetto() const { return m_difetto; }

private:
    void leggiBlocco();
    void termina(const QString& difetto);

    const Archivio& m_archivio;
    Visita m_visita;
    std::vector<Fte> m_teste;
    std::vector<F2e> m_code;
    std::chrono::steady_clock::time_point m_inAttesaDa;
    bool m_inAttesa = false; ///< another program has the lock
    bool m_inCorso = false;
    int m_letti = 0;
    int m_quanti = 0;
    QString m_difetto;
};

} // namespace bor
