// The posting as a saved document reaches it.
#pragma once

#include "document/registrazioni.h"
#include "posting/borftec.h"

namespace bor {

class RegistrazioniContabili : public Registrazioni {
public:
    RegistrazioniContabili(Contesto& contesto, Borftec& editor) : m_contesto(contesto), m_editor(editor) {}

    bool togliscarico(const Documento& documento) override;
    bool mettiscarico(const Documento& documento) override;
    void preparaMovimento(const Documento& documento) override;
    bool stornaconti(const Gio& movimento) override;

private:
    Contesto& m_contesto;
    Borftec& m_editor;
};

} // namespace bor
