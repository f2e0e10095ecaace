// A screen and the form behind it, over a company that the test writes.
#pragma once

#include "support/azienda.h"
#include "ui/gesti.h"

#include <memory>

namespace bor {

template <class Form, class VistaForm>
class SchermoDiProva : public testing::Test {
protected:
    /// On what the company has on file now.
    void apriForm() {
        vista.reset();
        prova = std::make_unique<ContestoDiProva>(azienda);
        form = std::make_unique<Form>(prova->contesto, documento);
    }
    void apriVista() { vista = std::make_unique<VistaForm>(*form); }

    AziendaDiProva azienda;
    std::unique_ptr<ContestoDiProva> prova;
    Documento documento;
    std::unique_ptr<Form> form;
    std::unique_ptr<VistaForm> vista;
};

} // namespace bor
