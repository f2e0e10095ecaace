// The customer picker on screen.
#pragma once

#include "ui/vista.h"

class QLineEdit;
class QTableView;

namespace bor {

class Borsel;
class ModelloGriglia;

class VistaBorsel : public Vista {
public:
    explicit VistaBorsel(Borsel& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    /// What is typed in the list goes on in the search box.
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QWidget* creaRicerca();
    QWidget* creaElenco();
    void aggiornaElenco();
    void scegli();

    Borsel& m_form;
    ModelloGriglia* m_modello;
    QLineEdit* m_selnome = nullptr;
    QTableView* m_elenco = nullptr;
    int m_edizione = -1;
};

} // namespace bor
