// The due list on screen.
#pragma once

#include "ui/vistaprospetto.h"

namespace bor {

class Scadenzario;

class VistaScadenzario : public VistaProspetto {
public:
    explicit VistaScadenzario(Scadenzario& form);

protected:
    int rigaCorrente() const override;
    QString riepilogo() const override;

private:
    QWidget* creaScelte();

    Scadenzario& m_form;
};

} // namespace bor
