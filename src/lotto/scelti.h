// The commands on the documents chosen in the register. A screen asks for one, puts its question, and lets it
// run.
#pragma once

#include "lotto/estratto.h"
#include "lotto/lotto.h"
#include "lotto/strumentopdf.h"

#include <memory>

namespace bor {

class Stampante;

enum class ComandoScelti { Stampa, Pdf, Posta, Elettronica, Controlla };

class Scelti {
public:
    Scelti(Contesto& contesto, RigheInSospeso& sospese, Stampante& stampante,
           AvviaStrumento avvia = avviaStrumentoPdf)
        : m_contesto(contesto), m_sospese(sospese), m_stampante(stampante), m_avvia(std::move(avvia)) {}

    /// Looks at the documents; nothing happens to them yet.
    std::unique_ptr<Lotto> prepara(ComandoScelti comando, const std::vector<Identita>& documenti) const;
    /// The documents as a table, from their records as they are by now.
    Estratto estrai(const std::vector<Identita>& documenti) const {
        return bor::estrai(m_contesto.archivio, documenti);
    }
    /// Decimals of amounts.
    int decimali() const { return m_contesto.valuta().euro ? 2 : 0; }
    Operatore& operatore() const { return m_contesto.operatore; }

private:
    Contesto& m_contesto;
    RigheInSospeso& m_sospese;
    Stampante& m_stampante;
    AvviaStrumento m_avvia;
};

} // namespace bor
