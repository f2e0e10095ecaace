// The register on screen, with the documents that the test writes.
#pragma once

#include "register/borfte.h"
#include "ui/schermodiprova.h"
#include "ui/vistaborfte.h"

#include <QTableView>

namespace bor {

class RegistroInVista : public SchermoDiProva<Borfte, VistaBorfte> {
protected:
    void apri() {
        apriForm();
        form->carica();
        apriVista();
        mostra(*vista);
        griglia = controllo<QTableView>(*vista, QStringLiteral("elenco"));
    }

    QTableView* griglia = nullptr;
};

} // namespace bor
