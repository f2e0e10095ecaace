#include "prospetti/letturadocumenti.h"

#include "archive/blocchi.h"
#include "common/posti.h"

#include <algorithm>
#include <thread>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

using Orario = BloccoDiLettura::Orario;

constexpr int documentiPerBlocco = 256;
constexpr auto attesaMassima = std::chrono::seconds(5);
constexpr auto passo = std::chrono::milliseconds(1);

} // namespace

LetturaDocumenti::LetturaDocumenti(const Archivio& archivio, Visita visita)
    : m_archivio(archivio), m_visita(std::move(visita)) {}

void LetturaDocumenti::comincia() {
    Tot contatore;
    const bool contati = m_archivio.leggiTot(Conta::Fte, contatore) != EsitoLettura::Guasta;
    m_teste.resize(documentiPerBlocco);
    m_code.resize(documentiPerBlocco);
    m_letti = 0;
    m_quanti = contati ? std::max<int>(contatore.numero, 0) : 0;
    m_inAttesa = false;
    m_inCorso = true;
    m_difetto.clear();
    if (!contati)
        termina(u"Il contatore dei documenti non si può leggere"_s);
    else if (m_quanti == 0)
        termina({});
}

void LetturaDocumenti::prosegui(std::chrono::milliseconds tempo) {
    const auto fine = Orario::now() + tempo;
    do {
        if (m_inCorso)
            leggiBlocco();
    } while (m_inCorso && Orario::now() < fine);
}

void LetturaDocumenti::finisci() {
    while (m_inCorso)
        leggiBlocco();
}

void LetturaDocumenti::interrompi() {
    if (m_inCorso)
        termina(u"Lettura interrotta: mancano i documenti dalla registrazione %1 in poi"_s.arg(m_letti + 1));
}

void LetturaDocumenti::leggiBlocco() {
    const int nelBlocco = std::min(documentiPerBlocco, m_quanti - m_letti);
    const std::span teste = std::span(m_teste).first(postoDaZero(nelBlocco));
    const std::span code = std::span(m_code).first(postoDaZero(nelBlocco));
    bool letti = false;
    {
        const BloccoDiLettura blocco(m_archivio.tot);
        if (!blocco.occupato()) {
            m_inAttesa = false;
            letti = m_archivio.fte.leggiBlocco(m_letti + 1, teste) >= 0 &&
                    m_archivio.f2e.leggiBlocco(m_letti + 1, code) >= 0;
        } else if (!std::exchange(m_inAttesa, true)) {
            m_inAttesaDa = Orario::now();
        }
    }
    if (m_inAttesa) {
        if (Orario::now() - m_inAttesaDa > attesaMassima)
            termina(u"Un altro computer sta scrivendo: premete F5 fra poco"_s);
        else
            std::this_thread::sleep_for(passo);
        return;
    }
    if (!letti) {
        termina(u"I documenti dalla registrazione %1 in poi non si possono leggere"_s.arg(m_letti + 1));
        return;
    }
    static const F2e vuota = f2eVuoto();
    for (int i = 0; i < nelBlocco; ++i) {
        const Fte& fte = elemento(teste, i);
        const F2e& f2e = elemento(code, i);
        if (fte.annullata != 1)
            m_visita(m_letti + i + 1, fte, f2e.marca == F2e::marcaValida ? f2e : vuota);
    }
    m_letti += nelBlocco;
    if (m_letti == m_quanti)
        termina({});
}

void LetturaDocumenti::termina(const QString& difetto) {
    m_inCorso = false;
    m_difetto = difetto;
    m_teste = {};
    m_code = {};
}

} // namespace bor
