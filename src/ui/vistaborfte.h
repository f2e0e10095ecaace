// The register on screen.
#pragma once

#include "ui/vista.h"

class QHBoxLayout;
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
    void creaBottoni(QHBoxLayout* layout);
    void aggiornaElenco();
    void apri();

    Borfte& m_form;
    ModelloGriglia* m_modello;
    QTableView* m_elenco = nullptr;
    int m_edizione = -1;
};

} // namespace bor
