#include "prospetti/sommemensili.h"

#include "archive/giornidifile.h"
#include "document/importidocumento.h"

namespace bor {

SommeDocumenti& SommeDocumenti::operator+=(const SommeDocumenti& altre) {
    documenti += altre.documenti;
    imponibile += altre.imponibile;
    imposta += altre.imposta;
    esente += altre.esente;
    ritenuta += altre.ritenuta;
    return *this;
}

void SommeMensili::aggiungi(const Fte& fte, const F2e& f2e) {
    const ImportiDocumento importi = importiDi(fte, f2e);
    const SommeDocumenti d{1, importi.imponibile, importi.imposta, importi.esente, importi.ritenuta};
    const QDate data = daAnnoMeseGiorno(fte.datareg);
    const bool vuoto = d.imponibile == 0.0 && d.imposta == 0.0 && d.esente == 0.0 && d.ritenuta == 0.0;
    if (vuoto && !data.isValid())
        return;
    const int registro = fte.registro >= 0 && fte.registro < registri ? int{fte.registro} : 0;
    m_somme[data.isValid() ? chiave(data.year(), data.month(), registro)
                           : chiave(nessuno, nessuno, registro)] += d;
}

QList<int> SommeMensili::anni() const {
    QList<int> anni;
    for (auto voce = m_somme.rbegin(); voce != m_somme.rend(); ++voce) {
        const int anno = voce->first / (100 * registri);
        if (anno != nessuno && (anni.isEmpty() || anni.last() != anno))
            anni.append(anno);
    }
    return anni;
}

QList<int> SommeMensili::registriDi(int anno) const {
    std::array<bool, registri> usati{};
    for (const auto& [numero, somme] : m_somme) {
        const int suo = numero / (100 * registri);
        if (suo == anno || suo == nessuno)
            usati[static_cast<std::size_t>(numero % registri)] = true;
    }
    QList<int> quali;
    for (int i = 0; i < registri; ++i) {
        if (usati[static_cast<std::size_t>(i)])
            quali.append(i);
    }
    return quali;
}

SommeDocumenti SommeMensili::somme(int anno, int mese, int registro) const {
    const auto voce = m_somme.find(chiave(anno, mese, registro));
    return voce == m_somme.end() ? SommeDocumenti() : voce->second;
}

} // namespace bor
