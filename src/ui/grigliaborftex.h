// The twelve lines of boxes of the goods lines screen, with their scroll bar and the floating list of VAT
// codes.
#pragma once

#include "common/serie.h"
#include "document/borftex.h"

#include <QWidget>

class QGridLayout;
class QListWidget;
class QLineEdit;
class QScrollBar;

namespace bor {

class Legami;
class PercorsoInvio;

class GrigliaBorftex : public QWidget {
public:
    GrigliaBorftex(Borftex& form, Legami& legami, PercorsoInvio& invio, QWidget* parent = nullptr);

    /// Reads the texts of the VAT list anew.
    void caricaVociIva();
    void vaiA(Borftex::Cella cella);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;

private:
    using Campo = Borftex::Campo;

    void creaTestate(QGridLayout* griglia);
    void creaLinea(QGridLayout* griglia, int linea);
    QLineEdit* creaCampo(Borftex::Cella cella);
    void creaListaIva();
    void aggiornaListaIva();
    bool tastoIva(int tasto, const QString& testo);
    QLineEdit* campo(Borftex::Cella cella) const;

    Borftex& m_form;
    Legami& m_legami;
    PercorsoInvio& m_invio;
    Serie<Serie<QLineEdit*, Campo::Artic, Campo::Civ>, 0, Borftex::linee - 1> m_campi;
    QScrollBar* m_cursore;
    QListWidget* m_listaIva;
};

} // namespace bor
