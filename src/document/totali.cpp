#include "document/totali.h"

#include "archive/contesto.h"
#include "common/numeri.h"
#include "document/righeiva.h"
#include "document/scadenze.h"

namespace bor {

namespace {

double sommaRitenute(const Documento& documento) {
    double somma = 0;
    for (const Ritenuta& r : documento.prospetti.ritenute)
        somma += valore(r.raimp);
    return somma;
}

} // namespace

Totali totali(const Documento& documento) {
    Totali t;
    t.somma1 = sommaIva(documento.coppia, VoceIva::Imponibile);
    t.somma2 = sommaIva(documento.coppia, VoceIva::Imposta);
    t.somma3 = sommaIva(documento.coppia, VoceIva::Esente);
    t.totaledoc = t.somma2 + t.somma1 + t.somma3;
    t.ritenuta = sommaRitenute(documento);
    t.nettodoc = t.totaledoc - t.ritenuta;
    return t;
}

void calcolaProvvigione(Documento& documento, const Contesto& contesto) {
    Scadenze& scadenze = documento.scadenze;
    if (scadenze.provaliq.trimmed().isEmpty())
        return;
    const Totali t = totali(documento);
    scadenze.provimp =
        testoDecimale(contesto.valuta().percentuale(t.somma1 + t.somma3, valorevirgola(scadenze.provaliq)));
}

void ricalcolaDocumento(Documento& documento, const Contesto& contesto) {
    calcolaProvvigione(documento, contesto);
    calcolarate(documento, contesto);
}

void riportaTotali(Documento& documento, const TabellaIva& iva, double base, double ritenuta,
                   const Contesto& contesto) {
    auto& ritenute = documento.prospetti.ritenute;
    if (sommaRitenute(documento) != ritenuta) {
        ritenute[0].raimpo = testoDecimale(base);
        ritenute[0].raimp = testoDecimale(ritenuta);
        for (std::size_t k = 1; k < ritenute.size(); ++k) {
            ritenute[k].raimpo.clear();
            ritenute[k].raimp.clear();
        }
    }
    for (int r = 1; r <= righeIva; ++r) {
        // The amounts pass through the boxes of the form, that is through their plain decimal text.
        const auto daCasella = [](double x) { return valore(testoDecimale(x)); };
        mettiImportoIva(documento.coppia, VoceIva::Imponibile, r, daCasella(iva.imponibili[r]));
        mettiImportoIva(documento.coppia, VoceIva::Imposta, r, daCasella(iva.imposte[r]));
        mettiImportoIva(documento.coppia, VoceIva::Esente, r, daCasella(iva.esenti[r]));
    }
    ricalcolaDocumento(documento, contesto);
}

} // namespace bor
