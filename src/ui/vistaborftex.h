// The goods lines on screen: the grid, the article list beside it, totals and commands.
#pragma once

#include "ui/vista.h"

class QListView;

namespace bor {

class Borftex;
class GrigliaBorftex;
class ModelloArticoli;
class Storico;

class VistaBorftex : public Vista {
public:
    explicit VistaBorftex(Borftex& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;
    /// From then on Ctrl+H shows what the customer has had.
    void usa(Storico& storico) { m_storico = &storico; }

private:
    QWidget* creaOpzioni();
    QWidget* creaLista();
    QWidget* creaTotali();
    QWidget* creaComandi();
    void apriStorico();
    void aggiornaLista();
    void scegliArticolo();

    Borftex& m_form;
    Storico* m_storico = nullptr;
    GrigliaBorftex* m_griglia;
    ModelloArticoli* m_modello;
    QListView* m_lista = nullptr;
    int m_edizione = 0;
};

} // namespace bor
