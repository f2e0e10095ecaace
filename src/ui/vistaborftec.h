// The movement editor on screen.
#pragma once

#include "posting/borftec.h"
#include "ui/vista.h"

#include <array>

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
    static constexpr std::size_t campiPerRiga = 5;

    QWidget* creaTestata();
    QWidget* creaRighe();
    void creaRiga(QGridLayout* griglia, int riga);
    QWidget* creaConti();
    QWidget* creaTotali();
    QWidget* creaComandi();
    void prendiConto();
    void vai(Borftec::Posto posto);

    Borftec& m_form;
    std::array<std::array<QLineEdit*, campiPerRiga>, Borftec::righe> m_campi{};
    QLineEdit* m_cerca = nullptr;
    QListWidget* m_conti = nullptr;
};

} // namespace bor
