// The one window of the program: one screen in it at a time.
#pragma once

#include "common/navigatore.h"

#include <QMainWindow>

#include <functional>
#include <map>

class QStackedWidget;

namespace bor {

class Vista;

class Finestra : public QMainWindow, public Navigatore {
public:
    Finestra();

    using Crea = std::function<Vista*()>;
    using Completa = std::function<void(Vista&)>;

    /// `crea` makes the view when its screen is first asked for, and the window takes it over. Its last row
    /// is the command bar; what stands above it scrolls where there is too little room. What `completa` adds
    /// to the view stays in sight.
    void aggiungi(Schermo schermo, Crea crea, Completa completa);
    /// Null when the window has no such screen.
    Vista* vista(Schermo schermo);

    void mostra(Schermo schermo) override;
    void termina() override;

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    struct DaCreare {
        Crea crea;
        Completa completa;
    };

    QStackedWidget* m_pila;
    std::map<Schermo, DaCreare> m_daCreare;
    std::map<Schermo, Vista*> m_viste;
    bool m_terminata = false;
};

} // namespace bor
