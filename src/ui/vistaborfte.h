// The register on screen.
#pragma once

#include "ui/vista.h"

class QProgressBar;
class QTableView;

namespace bor {

class Borfte;
class ModelloGriglia;

class VistaBorfte : public Vista {
public:
    explicit VistaBorfte(Borfte& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;

private:
    QWidget* creaOpzioni();
    QWidget* creaElenco();
    QWidget* creaComandi();
    void aggiornaElenco();
    void apri();

    Borfte& m_form;
    ModelloGriglia* m_modello;
    QTableView* m_elenco = nullptr;
    QProgressBar* m_barra = nullptr;
    int m_riempimenti = -1;
    int m_ordinamenti = 0;
};

} // namespace bor
