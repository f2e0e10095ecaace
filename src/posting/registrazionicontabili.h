// The posting as a saved document reaches it.
#pragma once

#include "document/registrazioni.h"
#include "posting/borftec.h"

namespace bor {

class RegistrazioniContabili : public Registrazioni {
public:
    RegistrazioniContabili(Contesto& contesto, Borftec& editor) : m_contesto(contesto), m_editor(editor) {}

    void togliscarico(const Documento& documento, Raffica& raffica) override;
    void mettiscarico(const Documento& documento, Raffica& raffica) override;
    void preparaMovimento(const Documento& documento) override;
    void stornaconti(const Gio& movimento, Raffica& raffica) override;

private:
    Contesto& m_contesto;
    Borftec& m_editor;
};

} // namespace bor
