#include "posting/registrazionicontabili.h"

#include "posting/saldi.h"
#include "posting/scarico.h"
#include "posting/setfat.h"

namespace bor {

bool RegistrazioniContabili::togliscarico(const Documento& documento) {
    return bor::togliscarico(documento, m_contesto);
}

bool RegistrazioniContabili::mettiscarico(const Documento& documento) {
    return bor::mettiscarico(documento, m_contesto);
}

void RegistrazioniContabili::preparaMovimento(const Documento& documento) {
    m_editor.prepara(documento.parcella() ? setpar(documento, m_contesto) : setfat(documento, m_contesto));
}

bool RegistrazioniContabili::stornaconti(const Gio& movimento) {
    return bor::stornaconti(m_contesto.archivio, movimento);
}

} // namespace bor
