#include "output/stampafattura.h"

#include "archive/contesto.h"
#include "output/pagina.h"

#include <QDir>

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

void avvisa(const Contesto& contesto, const QString& testo) {
    contesto.operatore.messaggio(testo, u"Attenzione"_s, Icona::Esclamazione);
}

void avvisaSenzaRighe(const Contesto& contesto) {
    avvisa(
        contesto,
        u"Il documento non ha righe: non c'è nulla da stampare. Inserite le righe, poi ripetete la stampa."_s);
}

void avvisaSenzaStampante(const Contesto& contesto) {
    avvisa(contesto, u"Nessuna stampante: il documento non è uscito su carta. Installate o collegate una "
                     "stampante, poi ripetete la stampa."_s);
}

void avvisaSenzaRapporto(const Contesto& contesto) {
    Disco& disco = contesto.archivio.disco();
    contesto.operatore.messaggio(
        u"Non è stato possibile scrivere il file di stampa \"%1\", da cui nascono PDF e anteprima. "
        u"Verificate "
        "lo spazio libero e i permessi della cartella, poi ripetete la stampa."_s.arg(
            QDir::toNativeSeparators(disco.nonScritto())),
        u"Attenzione"_s, Icona::Stop);
    disco.dimentica();
}

/// Everything that the pages of a document are made of.
struct Stampato {
    Stampato(const Documento& documento, const Contesto& contesto)
        : layout(caricaLayout(contesto.archivio, documento.parcella())),
          modello(caricamodello(contesto.archivio,
                                documento.parcella() ? CodiceModello::Parcella : CodiceModello::Fattura)),
          pianta(documento.parcella() ? piantaParcella() : piantaFattura()),
          dati(datiStampa(documento, contesto)) {}

    bool senzaPagine() const { return pagine(layout, pianta, dati) == 0; }
    void disegna(Foglio& foglio) const { disegnaPagine(layout, modello, pianta, dati, foglio); }

    Layout layout;
    Modello modello;
    const Pianta& pianta;
    DatiStampa dati;
};

/// Draws the document and tells what went wrong; `Niente` also when there was nothing to draw.
EsitoStampa esegui(const Documento& documento, const Contesto& contesto, Stampante& stampante,
                   Foglio::Uscita uscita) {
    const Attesa attesa(contesto.operatore);
    const Stampato stampato(documento, contesto);
    const bool senzaPagine = stampato.senzaPagine();
    if (senzaPagine) {
        // Nothing to print: the report file is emptied, and no blank sheet leaves the printer.
        avvisaSenzaRighe(contesto);
        if (uscita == Foglio::Uscita::SoloStampante)
            return EsitoStampa::Niente;
        uscita = Foglio::Uscita::SoloRapporto;
    }
    contesto.archivio.disco().dimentica();
    Foglio foglio(contesto, stampante, uscita, documento.estremi.numero);
    stampato.disegna(foglio);
    const bool scritto = foglio.termina();
    if (!scritto)
        avvisaSenzaRapporto(contesto);
    if (uscita != Foglio::Uscita::SoloRapporto && !foglio.suCarta())
        avvisaSenzaStampante(contesto);
    if (scritto && !senzaPagine && uscita != Foglio::Uscita::SoloStampante)
        return EsitoStampa::ConRapporto;
    return foglio.suCarta() ? EsitoStampa::SoloCarta : EsitoStampa::Niente;
}

} // namespace

EsitoStampa stampaDocumento(const Documento& documento, const Contesto& contesto, Stampante& stampante) {
    if (!confermata(documento, contesto))
        return EsitoStampa::Niente;
    const bool integrata = !documento.parcella() && documento.integrata != Integrata::No;
    return esegui(documento, contesto, stampante,
                  integrata ? Foglio::Uscita::SoloStampante : Foglio::Uscita::StampanteERapporto);
}

SuCarta stampaSuCarta(const Documento& documento, const Contesto& contesto, Stampante& stampante) {
    const Stampato stampato(documento, contesto);
    if (stampato.senzaPagine())
        return SuCarta::SenzaRighe;
    Foglio foglio(contesto, stampante, Foglio::Uscita::SoloStampante, documento.estremi.numero);
    if (!foglio.suCarta())
        return SuCarta::SenzaStampante;
    stampato.disegna(foglio);
    foglio.termina();
    return SuCarta::Stampato;
}

QByteArray componiRapporto(const Documento& documento, const Contesto& contesto, Stampante& stampante) {
    const Stampato stampato(documento, contesto);
    if (stampato.senzaPagine())
        return {};
    Foglio foglio(contesto, stampante, Foglio::Uscita::SoloRapporto, documento.estremi.numero);
    stampato.disegna(foglio);
    return foglio.rapporto();
}

bool preparaRapporto(const Documento& documento, const Contesto& contesto, Stampante& stampante) {
    return esegui(documento, contesto, stampante, Foglio::Uscita::SoloRapporto) == EsitoStampa::ConRapporto;
}

} // namespace bor
