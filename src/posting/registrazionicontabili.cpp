#include "posting/registrazionicontabili.h"

#include "posting/saldi.h"
#include "posting/scarico.h"
#include "posting/setfat.h"

namespace bor {

void RegistrazioniContabili::togliscarico(const Documento& documento, Raffica& raffica) {
    bor::togliscarico(documento, raffica);
}

void RegistrazioniContabili::mettiscarico(const Documento& documento, Raffica& raffica) {
    bor::mettiscarico(documento, m_contesto, raffica);
}

void RegistrazioniContabili::stornaconti(const Gio& movimento, Raffica& raffica) {
    bor::stornaconti(raffica, movimento);
}

void RegistrazioniContabili::preparaMovimento(const Documento& documento) {
    m_editor.prepara(documento.parcella() ? setpar(documento, m_contesto) : setfat(documento, m_contesto));
}

} // namespace bor
