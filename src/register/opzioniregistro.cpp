#include "register/opzioniregistro.h"

#include "common/posti.h"

#include <utility>

namespace bor {

namespace {

/// The digit of an option in the stored preference; where none is chosen it is that of the first.
template <class Opzione>
int cifra(std::optional<Opzione> opzione) {
    return opzione ? ordinale(*opzione) : 0;
}

} // namespace

OpzioniRegistro::OpzioniRegistro(Contesto& contesto, std::function<bool()> libero,
                                 std::function<void(Effetto)> cambiate)
    : m_contesto(contesto), m_libero(std::move(libero)), m_cambiate(std::move(cambiate)) {}

void OpzioniRegistro::ripristina() {
    const int vista = m_contesto.impostazioni.gnr.vistalista;
    const int selvis = vista % 10;
    const int visua = vista / 10;
    if (vista < 0 || selvis > 2 || visua > 1)
        return;
    m_scelte.selvis = enumeratore<Selvis>(selvis);
    m_scelte.visua = enumeratore<Visua>(visua);
}

void OpzioniRegistro::cambiaFiltro(FiltroFatture filtro) {
    if (!m_libero())
        return;
    m_scelte.filtro = filtro;
    m_cambiate(Effetto::Riempimento);
}

void OpzioniRegistro::cambiaSelvis(Selvis scelta) {
    if (!m_libero())
        return;
    m_scelte.selvis = scelta;
    salva();
    m_cambiate(Effetto::Riempimento);
}

void OpzioniRegistro::cambiaVisua(Visua scelta) {
    if (!m_libero())
        return;
    m_scelte.visua = scelta;
    salva();
    m_cambiate(Effetto::Posizione);
}

void OpzioniRegistro::cerca(const QString& testo) {
    if (!m_libero())
        return;
    m_scelte.cercato = testo;
    m_cambiate(Effetto::Ricerca);
}

void OpzioniRegistro::salva() {
    Gnr& gnr = m_contesto.impostazioni.gnr;
    gnr.vistalista = breve(10 * cifra(m_scelte.visua) + cifra(m_scelte.selvis));
    salvagnr(m_contesto.archivio, gnr);
}

} // namespace bor
