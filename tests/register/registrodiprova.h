// The register without its screen, over the documents that the test writes.
#pragma once

#include "register/borfte.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

#include <memory>

namespace bor {

class RegistroDiProva : public testing::Test {
protected:
    void apri() {
        m_prova = std::make_unique<ContestoDiProva>(azienda);
        m_form = std::make_unique<Borfte>(m_prova->contesto, documento);
        m_form->carica();
    }
    Borfte& form() { return *m_form; }
    ContestoDiProva& prova() { return *m_prova; }

    AziendaDiProva azienda;
    Documento documento;

private:
    std::unique_ptr<ContestoDiProva> m_prova;
    std::unique_ptr<Borfte> m_form;
};

} // namespace bor
