// The lines of a fee bill on screen.
#pragma once

#include "common/serie.h"
#include "document/borftek.h"
#include "ui/vista.h"

class QGridLayout;
class QLineEdit;
class QListWidget;
class QScrollBar;

namespace bor {

class Storico;

class VistaBorftek : public Vista {
public:
    explicit VistaBorftek(Borftek& form, QWidget* parent = nullptr);

    void attiva() override;
    void lascia() override;
    QString titolo() const override;
    /// From then on Ctrl+H shows what the customer has had.
    void usa(Storico& storico) { m_storico = &storico; }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;

private:
    using Campo = Borftek::Campo;

    QWidget* creaRighe();
    void creaLinea(QGridLayout* griglia, int linea);
    QWidget* creaPrestazioni();
    QWidget* creaTotali();
    QWidget* creaComandi();
    void apriStorico();
    void lega(Borftek::Cella cella, QLineEdit* casella);
    void aggiornaPrestazioni();

    Borftek& m_form;
    Storico* m_storico = nullptr;
    Serie<Serie<QLineEdit*, Campo::Data, Campo::Onorari>, 0, Borftek::linee - 1> m_campi;
    QScrollBar* m_cursore = nullptr;
    QListWidget* m_prestazioni = nullptr;
    int m_edizione = 0;
};

} // namespace bor
