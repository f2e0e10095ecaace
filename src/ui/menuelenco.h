// The commands on the list of the register as a whole: how it is shown, its print, its file. A button with
// their menu, and a key for each.
#pragma once

#include <QObject>

#include <functional>

class QMenu;

namespace bor {

class Borfte;
class BottoneComando;
class Vista;

class MenuElenco : public QObject {
public:
    /// `cambiata`: the view of the list was chosen anew.
    MenuElenco(Borfte& form, Vista* schermo, std::function<void()> cambiata);

    BottoneComando* bottone() const { return m_bottone; }

private:
    void apriMenu() const;
    void scegliVista();
    void comePrima();
    void stampa();
    void esporta();
    bool fermo() const;

    Borfte& m_form;
    Vista* m_schermo;
    std::function<void()> m_cambiata;
    QMenu* m_menu;
    BottoneComando* m_bottone;
};

} // namespace bor
