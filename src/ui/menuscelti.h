// The commands on the documents chosen in the register: a button with their menu, the same menu on the list,
// and a key for each.
#pragma once

#include "lotto/scelti.h"
#include "register/sceltadocumenti.h"

#include <QObject>

#include <functional>

class QMenu;
class QTableView;

namespace bor {

class BottoneComando;
class Vista;

class MenuScelti : public QObject {
public:
    struct Registro {
        const SceltaDocumenti& scelta;
        std::function<bool()> fermo;    ///< the list is not being put in order
        std::function<void()> cambiato; ///< documents have changed on file
        std::function<void(const Identita&)> apri;
    };

    MenuScelti(Scelti& scelti, Registro registro, QTableView* elenco, Vista* vista);

    BottoneComando* bottone() const { return m_bottone; }
    /// The menu above its button.
    void mostra() const;

private:
    void esegui(ComandoScelti comando);
    void esporta();
    void rapporto(const RapportoLotto& rapporto);
    bool chiamabile() const;

    Scelti& m_scelti;
    Registro m_registro;
    Vista* m_vista;
    QMenu* m_menu;
    BottoneComando* m_bottone;
};

} // namespace bor
