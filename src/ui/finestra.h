// The one window of the program: one screen in it at a time.
#pragma once

#include "common/navigatore.h"

#include <QMainWindow>

#include <map>

class QStackedWidget;

namespace bor {

class Vista;

class Finestra : public QMainWindow, public Navigatore {
public:
    Finestra();

    /// The window takes the view over. Its last row is the command bar; what stands above it scrolls where
    /// there is too little room.
    void aggiungi(Schermo schermo, Vista* vista);
    Vista* vista(Schermo schermo) const;

    void mostra(Schermo schermo) override;
    void termina() override;

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    QStackedWidget* m_pila;
    std::map<Schermo, Vista*> m_viste;
    bool m_terminata = false;
};

} // namespace bor
