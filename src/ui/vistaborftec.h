// The movement editor on screen.
#pragma once

#include "common/serie.h"
#include "posting/borftec.h"
#include "ui/vista.h"

class QGridLayout;
class QHBoxLayout;
class QLineEdit;
class QListWidget;

namespace bor {

class VistaBorftec : public Vista {
public:
    explicit VistaBorftec(Borftec& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;

private:
    using Campo = Borftec::Campo;

    QWidget* creaTestata();
    QWidget* creaRighe();
    void creaLinea(QGridLayout* griglia, int linea);
    QWidget* creaConti();
    QWidget* creaTotali();
    QWidget* creaComandi();
    void prendiConto();
    void aggiornaConti();
    void vai(Borftec::Cella cella);

    Borftec& m_form;
    Serie<Serie<QLineEdit*, Campo::Mastro, Campo::Avere>, 0, Borftec::righe - 1> m_campi;
    QLineEdit* m_cerca = nullptr;
    QListWidget* m_conti = nullptr;
    int m_edizione = 0;
};

} // namespace bor
