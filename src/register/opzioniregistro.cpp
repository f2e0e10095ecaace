#include "register/opzioniregistro.h"

#include "common/posti.h"
#include "register/tabellaregistro.h"

#include <utility>

using namespace Qt::StringLiterals;

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
    : m_contesto(contesto), m_libero(std::move(libero)), m_cambiate(std::move(cambiate)),
      m_memoria(contesto.archivio.percorsi(), contesto.sessione.codiceazienda) {}

void OpzioniRegistro::ripristina() {
    m_vista = m_memoria.leggi();
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

void OpzioniRegistro::cambiaVista(const VistaRegistro& vista) {
    if (!m_libero() || vista == m_vista)
        return;
    const bool altriDocumenti = vista.documenti != m_vista.documenti;
    m_vista = vista;
    m_memoria.segna(vista);
    m_cambiate(altriDocumenti ? Effetto::Riempimento : Effetto::Colonne);
}

void OpzioniRegistro::cerca(const QString& testo) {
    if (!m_libero())
        return;
    m_scelte.cercato = testo;
    m_cambiate(Effetto::Ricerca);
}

QString OpzioniRegistro::descrizione() const {
    QStringList parti;
    if (const QString scelti = m_vista.documenti.descrizione(); !scelti.isEmpty())
        parti.append(scelti);
    switch (m_scelte.filtro) {
    case FiltroFatture::Tutte:
        break;
    case FiltroFatture::Normali:
        parti.append(u"solo le fatture normali"_s);
        break;
    case FiltroFatture::SoloPa:
        parti.append(u"solo le fatturePA"_s);
        break;
    case FiltroFatture::MovimentoDaControllare:
        parti.append(u"solo le fatture con movimento da controllare"_s);
        break;
    }
    if (m_scelte.selvis && *m_scelte.selvis != Selvis::Tutte)
        parti.append(*m_scelte.selvis == Selvis::Ultime1000 ? u"ultime 1000 registrazioni"_s
                                                            : u"ultime 5000 registrazioni"_s);
    if (!m_scelte.cercato.trimmed().isEmpty())
        parti.append(u"cercando \"%1\""_s.arg(m_scelte.cercato.trimmed()));
    return filtroRegistro(parti);
}

void OpzioniRegistro::salva() {
    Gnr& gnr = m_contesto.impostazioni.gnr;
    gnr.vistalista = breve(10 * cifra(m_scelte.visua) + cifra(m_scelte.selvis));
    salvagnr(m_contesto.archivio, gnr);
}

} // namespace bor
