// The lines of a fee bill on screen.
#pragma once

#include "document/borftek.h"
#include "ui/vista.h"

#include <array>

class QGridLayout;
class QLineEdit;
class QListWidget;
class QScrollBar;

namespace bor {

class VistaBorftek : public Vista {
public:
    explicit VistaBorftek(Borftek& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;

private:
    static constexpr std::size_t campiPerLinea = 5;

    QWidget* creaRighe();
    void creaLinea(QGridLayout* griglia, int linea);
    QWidget* creaPrestazioni();
    QWidget* creaTotali();
    QWidget* creaComandi();
    void lega(Borftek::Cella cella, QLineEdit* casella);
    void aggiornaPrestazioni();

    Borftek& m_form;
    std::array<std::array<QLineEdit*, campiPerLinea>, Borftek::linee> m_campi{};
    QScrollBar* m_cursore = nullptr;
    QListWidget* m_prestazioni = nullptr;
    int m_edizione = 0;
};

} // namespace bor
