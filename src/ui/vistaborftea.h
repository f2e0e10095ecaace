// The document form on screen.
#pragma once

#include "common/serie.h"
#include "document/borftea.h"
#include "ui/riquadritea.h"
#include "ui/vista.h"

class QStackedWidget;
class QToolButton;

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
    using Prospetto = Borftea::Prospetto;

    QWidget* creaProspetti(const BancoTea& banco);
    QWidget* creaScelta();
    QWidget* creaTotali();
    QWidget* creaPdf(const BancoTea& banco);
    QWidget* creaComandi();
    void offriNotaCredito(QToolButton& duplica);
    void collegaPercorso(const RiquadroTea& estremi, const RiquadroTea& scadenze, const RiquadroTea& ricavi);
    void mostraProspetto(Prospetto prospetto);
    void comando(Flusso* barra, int indice, Borftea::Comando quale, const QString& testo,
                 const QString& icona, const QString& tasto);
    void esegui(Borftea::Comando comando);
    void seguiFuoco();
    QWidget* controllo(const QString& nome) const;

    Borftea& m_form;
    Serie<RiquadroTea, Prospetto::RigheIva, Prospetto::Spesometro> m_prospetti;
    QStackedWidget* m_pila = nullptr;
};

} // namespace bor
