// What an operator has chosen last in the lists over all documents, for each company among his own data.
#pragma once

#include "common/periodo.h"
#include "prospetti/elencoscadenze.h"
#include "prospetti/limitiscadenze.h"

namespace bor {

class Percorsi;

/// Of the due list what one chooses once for all; whom or what he searches is not of them.
struct ScelteScadenzario {
    std::optional<PeriodoScadenze> periodo; ///< nothing while the program proposes one
    Giorni giorni;                          ///< of `PeriodoScadenze::DalAl`
    GruppiScadenze gruppi = GruppiScadenze::PerGiorno;
    SceltaRiba riba = SceltaRiba::Tutte;

    friend bool operator==(const ScelteScadenzario&, const ScelteScadenzario&) = default;
};

/// What cannot be read counts as not chosen, what cannot be written is not remembered.
class MemoriaProspetti {
public:
    MemoriaProspetti(const Percorsi& percorsi, double codiceazienda);

    ScelteScadenzario scadenzario() const;
    void segna(const ScelteScadenzario& scelte) const;

    /// Year of the figures by month; 0 for the one that the program proposes.
    int anno() const;
    void segnaAnno(int anno) const;

private:
    QString m_file;
};

} // namespace bor
