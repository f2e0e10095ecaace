#include "output/stampafattura.h"

#include "archive/contesto.h"
#include "document/avvisi.h"
#include "output/pagina.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

bool confermata(const Documento& documento, const Contesto& contesto) {
    if (documento.parcella())
        return contesto.operatore.chiedi(u"Iniziare la stampa?"_s, u"Stampa parcella"_s);
    if (documento.fatturaPa())
        return contesto.operatore.chiedi(u"Stampare una copia per uso interno?"_s, u"Emissione fatturaPA"_s);
    return contesto.operatore.chiedi(u"Iniziare la stampa?"_s, u"Stampa fattura"_s);
}

/// Draws the document; false when there is nothing to draw or the report file could not be written.
bool esegui(const Documento& documento, const Contesto& contesto, Stampante& stampante,
            Foglio::Uscita uscita) {
    const Attesa attesa(contesto.operatore);
    const bool parcella = documento.parcella();
    const Layout layout = caricaLayout(contesto.archivio, parcella);
    const Modello modello =
        caricamodello(contesto.archivio, parcella ? CodiceModello::Parcella : CodiceModello::Fattura);
    const Pianta& pianta = parcella ? piantaParcella() : piantaFattura();
    const DatiStampa dati = datiStampa(documento, contesto);
    const bool senzaPagine = pagine(layout, pianta, dati) == 0;
    if (senzaPagine) {
        // Nothing to print: the report file is emptied, and no blank sheet leaves the printer.
        if (uscita == Foglio::Uscita::SoloStampante)
            return false;
        uscita = Foglio::Uscita::SoloRapporto;
    }
    contesto.archivio.disco().dimentica();
    Foglio foglio(contesto, stampante, uscita, documento.estremi.numero);
    disegnaPagine(layout, modello, pianta, dati, foglio);
    if (!foglio.termina()) {
        avvisaNonRegistrato(contesto, EsitoRaffica::NonScritta);
        return false;
    }
    return !senzaPagine;
}

} // namespace

bool stampaDocumento(const Documento& documento, const Contesto& contesto, Stampante& stampante) {
    if (!confermata(documento, contesto))
        return false;
    const bool integrata = !documento.parcella() && documento.integrata != Integrata::No;
    const bool scritto =
        esegui(documento, contesto, stampante,
               integrata ? Foglio::Uscita::SoloStampante : Foglio::Uscita::StampanteERapporto);
    return scritto && !integrata;
}

bool preparaRapporto(const Documento& documento, const Contesto& contesto, Stampante& stampante) {
    return esegui(documento, contesto, stampante, Foglio::Uscita::SoloRapporto);
}

} // namespace bor
