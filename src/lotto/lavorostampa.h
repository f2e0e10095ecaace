// Prints the chosen documents, in one job of the printer or in one each.
#pragma once

#include "common/stampante.h"
#include "lotto/lavoro.h"

namespace bor {

/// A printer to which the jobs of many documents are one.
class StampanteUnica : public Stampante {
public:
    explicit StampanteUnica(Stampante& vera) : m_vera(vera) {}

    bool inizia(const QString& titolo) override;
    double larghezza(const QString& testo, const Carattere& carattere) override {
        return m_vera.larghezza(testo, carattere);
    }
    void testo(double x, double y, const QString& testo, const Carattere& carattere, int colore) override {
        m_vera.testo(x, y, testo, carattere, colore);
    }
    void linea(double x1, double y1, double x2, double y2, int colore) override {
        m_vera.linea(x1, y1, x2, y2, colore);
    }
    void riquadro(double x1, double y1, double x2, double y2, int colore, bool pieno) override {
        m_vera.riquadro(x1, y1, x2, y2, colore, pieno);
    }
    void immagine(double x1, double y1, double x2, double y2, const QString& percorso) override {
        m_vera.immagine(x1, y1, x2, y2, percorso);
    }
    void nuovaPagina() override { m_vera.nuovaPagina(); }
    void termina() override {}
    /// Ends the job, if one was begun.
    void chiudi();

private:
    Stampante& m_vera;
    bool m_iniziata = false;
};

class LavoroStampa : public Lavoro {
public:
    LavoroStampa(const Contesto& contesto, Stampante& stampante);

    QString titolo() const override;
    QString proposta(std::vector<Candidato>& candidati) override;
    void prendi(std::size_t riga, Documento documento) override;
    void concludi() override { m_unica.chiudi(); }

private:
    Stampante& m_stampante;
    StampanteUnica m_unica;
};

} // namespace bor
