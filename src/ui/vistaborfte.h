// The register on screen.
#pragma once

#include "ui/vista.h"

class QGroupBox;
class QLabel;
class QLayout;
class QTableView;

namespace bor {

class Borfte;
struct Identita;
class CampoTesto;
class ColonneRegistro;
class Flusso;
class ModelloGriglia;
class Scelti;
class SceltaRighe;

class VistaBorfte : public Vista {
public:
    explicit VistaBorfte(Borfte& form, QWidget* parent = nullptr);

    /// Puts the commands on the chosen documents into the command bar and the list's menu.
    void offri(Scelti& scelti);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;

protected:
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QWidget* creaOpzioni();
    QGroupBox* creaFiltro();
    QWidget* creaElenco();
    void creaPiede(QLayout& layout);
    QWidget* creaComandi();
    void creaBottoni(Flusso* layout);
    void creaScorciatoie();
    void mostraInformazioni();
    void aggiornaElenco();
    void aggiornaNota();
    void mostraVista();
    void mostraUltima();
    void apri(const Identita& documento);

    Borfte& m_form;
    ColonneRegistro* m_colonne;
    ModelloGriglia* m_modello;
    QLabel* m_nota = nullptr;
    QLabel* m_mostrati = nullptr;
    QTableView* m_elenco = nullptr;
    SceltaRighe* m_scelta = nullptr;
    CampoTesto* m_cerca = nullptr;
    int m_edizione = -1;
};

} // namespace bor
