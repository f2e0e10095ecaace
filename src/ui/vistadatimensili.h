// The figures of a year on screen: chart and table.
#pragma once

#include "ui/vistaprospetto.h"

namespace bor {

class DatiMensili;
class GraficoMesi;

class VistaDatiMensili : public VistaProspetto {
public:
    explicit VistaDatiMensili(DatiMensili& form);

protected:
    int rigaCorrente() const override;
    Figura figura() const override;

private:
    QWidget* creaScelte();
    void aggiornaGrafico();

    DatiMensili& m_form;
    GraficoMesi* m_grafico;
};

} // namespace bor
