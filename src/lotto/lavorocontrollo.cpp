#include "lotto/lavorocontrollo.h"

#include "lotto/rilievilotto.h"

using namespace Qt::StringLiterals;

namespace bor {

LavoroControllo::LavoroControllo(const Contesto& contesto)
    : Lavoro(contesto), m_generatore(this->contesto(), {}) {}

QString LavoroControllo::titolo() const {
    return u"Controllo dei documenti scelti"_s;
}

QString LavoroControllo::proposta(std::vector<Candidato>& candidati) {
    return u"Controllare la fattura elettronica di %1 come uscirebbe ora?\nNon si scrive nulla."_s.arg(
        contoDocumenti(quantiDentro(candidati)));
}

void LavoroControllo::prendi(std::size_t riga, Documento documento) {
    const ProvaFel prova = m_generatore.prova(documento, m_generatore.datiPropri(documento));
    if (prova.xml.isEmpty())
        racconta(riga, EsitoRiga::NonFatta, u"non può uscire: "_s + primoRilievo(prova.rilievi));
    else if (prova.rilievi.empty())
        racconta(riga, EsitoRiga::Fatta, u"nessun rilievo"_s);
    else
        racconta(riga, EsitoRiga::ConRilievi, riassunto(prova.rilievi));
}

} // namespace bor
