// The customer and the head of a document on screen.
#pragma once

#include "common/serie.h"
#include "document/borftem.h"
#include "ui/campilegati.h"
#include "ui/vista.h"

#include <vector>

class QComboBox;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLineEdit;
class QRadioButton;
class QScrollBar;

namespace bor {

class Storico;

class VistaBorftem : public Vista {
public:
    explicit VistaBorftem(Borftem& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;
    /// From then on Ctrl+H shows what the customer has had.
    void usa(Storico& storico) { m_storico = &storico; }

protected:
    /// In `nome` the keys of a list move the customer bar.
    void keyPressEvent(QKeyEvent* evento) override;

private:
    /// Fields in the order in which Enter walks them.
    using Percorso = std::vector<QWidget*>;

    QWidget* creaSede(Percorso& percorso);
    QWidget* creaDatiCommerciali(Percorso& percorso);
    QWidget* creaContabili();
    QWidget* creaSpedizione();
    QWidget* creaPratica();
    QWidget* creaRicerca();
    QWidget* creaComandi();
    void apriStorico();
    void creaCursore(QHBoxLayout* barra);
    void creaMezzo(QGridLayout* griglia, int numero, Percorso& percorso);
    void collegaPercorsi(const Percorso& cliente);

    /// A box for one text of the head.
    template <class... Membri>
    QLineEdit* campo(Percorso& percorso, const QString& nome, const QString& didascalia, int caratteri,
                     Membri... membri);
    QComboBox* lista(Percorso& percorso, const QString& nome, const QString& didascalia,
                     const QStringList& voci, const Legame<int>& dato);
    /// One account: three boxes from `Text2(indice)` on.
    void conto(QGridLayout* griglia, int numero, Percorso& percorso, int indice, const QString& didascalia,
               ContoTesti DatiCliente::*dato);
    QGroupBox* riquadro(const QString& nome, const QString& titolo, RiquadroTestata quale);
    Percorso& percorso(RiquadroTestata quale) { return m_percorsi[quale]; }

    Borftem& m_form;
    Storico* m_storico = nullptr;
    CampiLegati m_campi{legami, m_form.bordata()};
    Serie<Percorso, RiquadroTestata::Contabili, RiquadroTestata::Pratica> m_percorsi;
    Serie<QRadioButton*, Mezzo::Vettore, Mezzo::Mittente> m_mezzo;
    QLineEdit* m_nome = nullptr;
    QScrollBar* m_cursore = nullptr;
};

} // namespace bor
