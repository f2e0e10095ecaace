// Writes the electronic invoices of the chosen documents: today's of each, and that of 2014 where a document
// has the data of it.
#pragma once

#include "fatturapa/generafattura.h"
#include "lotto/lavoro.h"

namespace bor {

class LavoroElettroniche : public Lavoro {
public:
    /// `cartellaPdf`: DOS path of the folder for the files where the company names none of its own.
    LavoroElettroniche(const Contesto& contesto, const QString& cartellaPdf);

    QString titolo() const override;
    QString proposta(std::vector<Candidato>& candidati) override;
    bool pronto() const override { return !m_emette; }
    void prendi(std::size_t riga, Documento documento) override;
    bool gira() override;
    void concludi() override { nomina(); }
    void interrompi() override;
    bool fermo() const override { return m_presi.empty(); }

private:
    struct Preso {
        std::size_t riga;
        Documento documento;
        InUscitaFel uscita;
    };

    void nomina();
    void emetti(Preso& preso);

    GeneratoreFel m_generatore;
    std::vector<Preso> m_presi; ///< their names are given out together
    std::size_t m_seguente = 0; ///< of those, to be written next
    bool m_emette = false;
};

} // namespace bor
