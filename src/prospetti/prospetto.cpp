#include "prospetti/prospetto.h"

namespace bor {

Prospetto::Prospetto(Contesto& c)
    : contesto(c), m_lettura(c.archivio, [this](int record, const Fte& fte, const F2e& f2e) {
          prendi(record, fte, f2e);
      }) {}

Prospetto::~Prospetto() = default;

void Prospetto::attiva() {
    svuota();
    ++m_edizione;
    m_lettura.comincia();
    prosegui(LetturaDocumenti::primaFetta);
}

void Prospetto::prosegui(std::chrono::milliseconds tempo) {
    m_lettura.prosegui(tempo);
    if (m_lettura.inCorso())
        return;
    completa();
    mostra();
}

void Prospetto::esci() {
    if (m_lettura.inCorso()) {
        m_lettura.interrompi();
        prosegui({});
    } else {
        contesto.navigatore.mostra(Schermo::Borfte);
    }
}

void Prospetto::mostra() {
    if (m_lettura.inCorso())
        return;
    scegli();
    ++m_edizione;
}

} // namespace bor
