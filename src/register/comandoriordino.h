// The reorder as an operator gives it: chosen, confirmed, watched, and explained where it failed.
#pragma once

#include "archive/contesto.h"
#include "register/riordino.h"

#include <functional>

namespace bor {

class ComandoRiordino {
public:
    explicit ComandoRiordino(Contesto& contesto) : m_contesto(contesto) {}

    /// Neither being chosen nor running.
    bool fermo() const { return m_stato == Stato::Fermo; }
    /// The operator is to say by what.
    bool scelta() const { return m_stato == Stato::Scelta; }
    /// Running: no command may be given.
    bool inCorso() const { return m_stato == Stato::InCorso; }
    const QString& etichetta() const { return m_etichetta; } ///< `Label3`
    int avanzamento() const { return m_avanzamento; }
    /// 0 until the operator has said yes.
    int massimo() const { return m_massimo; }
    /// Called while a reorder runs, so that the bar is drawn.
    void suAvanzamento(std::function<void()> funzione) { m_suAvanzamento = std::move(funzione); }

    void scegli();
    /// Asks, then reorders; without effect unless the kind was being chosen. `numero` becomes the count of
    /// documents. False when nothing was asked, or when it failed, which the operator was told.
    bool esegui(TipoRiordino tipo, int& numero);

private:
    enum class Stato { Fermo, Scelta, InCorso };

    void avanza(int fatti);
    void mostraErrore(const EsitoRiordino& esito);

    Contesto& m_contesto;
    std::function<void()> m_suAvanzamento;
    QString m_etichetta = QStringLiteral("Inserisci:");
    Stato m_stato = Stato::Fermo;
    int m_avanzamento = 0;
    int m_massimo = 0;
};

} // namespace bor
