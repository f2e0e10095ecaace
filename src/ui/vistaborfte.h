// The register on screen.
#pragma once

#include "ui/vista.h"

class QGroupBox;
class QLabel;
class QTableView;

namespace bor {

class Borfte;
class CampoTesto;
class Flusso;
class ModelloGriglia;
class SceltaRighe;

class VistaBorfte : public Vista {
public:
    explicit VistaBorfte(Borfte& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QWidget* creaOpzioni();
    QGroupBox* creaFiltro();
    QWidget* creaElenco();
    QWidget* creaComandi();
    void creaBottoni(Flusso* layout);
    void creaScorciatoie();
    void mostraInformazioni();
    void aggiornaElenco();
    void mostraUltima();

    Borfte& m_form;
    ModelloGriglia* m_modello;
    QLabel* m_nota = nullptr;
    QTableView* m_elenco = nullptr;
    SceltaRighe* m_scelta = nullptr;
    CampoTesto* m_cerca = nullptr;
    int m_edizione = -1;
};

} // namespace bor
