// The document form on screen.
#pragma once

#include "document/borftea.h"
#include "ui/riquadritea.h"
#include "ui/vista.h"

#include <array>

class QStackedWidget;

namespace bor {

class Flusso;

class VistaBorftea : public Vista {
public:
    explicit VistaBorftea(Borftea& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;

private:
    static constexpr std::size_t prospetti = 4;

    QWidget* creaProspetti(const BancoTea& banco);
    QWidget* creaScelta();
    QWidget* creaTotali();
    QWidget* creaPdf(const BancoTea& banco);
    QWidget* creaComandi();
    void collegaPercorso(const RiquadroTea& estremi, const RiquadroTea& scadenze, const RiquadroTea& ricavi);
    void mostraProspetto(Borftea::Prospetto prospetto);
    void comando(Flusso* barra, int indice, Borftea::Comando quale, const QString& testo,
                 const QString& icona, const QString& tasto);
    void esegui(Borftea::Comando comando);
    void seguiFuoco();
    QWidget* controllo(const QString& nome) const;

    Borftea& m_form;
    std::array<RiquadroTea, prospetti> m_prospetti{}; ///< in the order of `Borftea::Prospetto`
    QStackedWidget* m_pila = nullptr;
};

} // namespace bor
