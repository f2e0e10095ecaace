#include "document/eliminadoc.h"

#include "archive/contesto.h"
#include "archive/raffica.h"
#include "document/avvisi.h"
#include "document/filerighe.h"
#include "document/registrazioni.h"
#include "document/riassunto.h"
#include "document/righeinsospeso.h"
#include "document/trovamovimento.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

bool chiedi(const Contesto& contesto, const QString& domanda) {
    return contesto.operatore.chiedi(domanda, u"Eliminazione fattura"_s, Icona::Domanda, Predefinita::No);
}

void informa(const Contesto& contesto, const QString& testo) {
    contesto.operatore.messaggio(testo, u"Eliminazione fattura"_s, Icona::Informazione);
}

/// What the operator wants deleted beside the document.
struct Scelta {
    bool scarico = false;
    bool movimento = false;
};

/// Asks about what the archive may hold of the document; nothing when the counters could not be read.
std::optional<Scelta> scegli(const Documento& documento, const Contesto& contesto) {
    Tot mag;
    Tot gio;
    const Archivio& archivio = contesto.archivio;
    contesto.archivio.disco().dimentica();
    if (archivio.leggiTot(Conta::Mag, mag) == EsitoLettura::Guasta ||
        archivio.leggiTot(Conta::Gio, gio) == EsitoLettura::Guasta)
        return std::nullopt;
    Scelta scelta;
    if (documento.coppia.fte.stamp == 0.0)
        return scelta;
    scelta.scarico = !documento.parcella() && mag.numero >= 1 &&
                     chiedi(contesto, u"Desideri eliminare anche gli eventuali movimento di magazzino?"_s);
    scelta.movimento =
        gio.numero >= 1 && chiedi(contesto, u"Desideri eliminare anche l'eventuale movimento contabile?"_s);
    return scelta;
}

void segnaCancellato(Raffica& raffica, Conta quale) {
    Tot contatore = raffica.leggiTot(quale);
    contatore.cancellato = 1;
    if (quale == Conta::Fte)
        contatore.modificato = 1;
    raffica.scriviTot(quale, contatore);
}

/// Marks the record as it is on file: what was typed over it on screen is not stored on this occasion.
void annulla(const Documento& documento, Raffica& raffica) {
    segnaCancellato(raffica, Conta::Fte);
    Fte fte;
    if (raffica.leggi(raffica.archivio().fte, documento.recordfattura, fte) != EsitoLettura::Letta)
        fte = documento.coppia.fte;
    fte.annullata = 1;
    raffica.scrivi(raffica.archivio().fte, documento.recordfattura, fte);
}

/// Takes the movement's amounts out of its accounts and marks it; its record, or 0 when there is none.
int storna(const Documento& documento, Raffica& raffica, Registrazioni& registrazioni) {
    const int movimento = trovaMovimento(raffica, documento.coppia.fte.stamp);
    if (movimento == 0)
        return 0;
    Gio gio = raffica.leggi(raffica.archivio().gio, movimento);
    registrazioni.stornaconti(gio, raffica);
    gio.cancellato = 1;
    raffica.scrivi(raffica.archivio().gio, movimento, gio);
    segnaCancellato(raffica, Conta::Gio);
    return movimento;
}

bool eliminaRighe(const Documento& documento, Archivio& archivio, RigheInSospeso& sospese) {
    const Fte& fte = documento.coppia.fte;
    if (fte.nfile > 0.0F && !archivio.disco().elimina(archivio.reale(percorsoRighe(archivio, fte))))
        return false;
    sospese.dimentica(documento);
    return true;
}

} // namespace

bool eliminadoc(Documento& documento, const Contesto& contesto, Registrazioni& registrazioni,
                RigheInSospeso& sospese) {
    if (!chiedi(contesto, riassunto(documento, contesto) + u"\n\nSei proprio sicuro?"_s))
        return false;
    const auto scelta = scegli(documento, contesto);
    EsitoRaffica esito = EsitoRaffica::NonLetta;
    bool righe = true;
    int movimento = 0;
    if (scelta) {
        const Attesa attesa(contesto.operatore);
        // All questions come first, so that one burst holds everything, in the order of the suite.
        Raffica raffica(contesto.archivio, u"eliminazione, "_s + nomeDocumento(documento));
        annulla(documento, raffica);
        if (scelta->scarico) {
            registrazioni.togliscarico(documento, raffica);
            segnaCancellato(raffica, Conta::Mag);
        }
        if (scelta->movimento)
            movimento = storna(documento, raffica, registrazioni);
        esito = raffica.esegui([&] {
            documento.coppia.fte.annullata = 1;
            // Behind the burst: a document that is still live keeps its lines.
            righe = eliminaRighe(documento, contesto.archivio, sospese);
        });
    }
    avvisaRecuperi(contesto);
    if (!righe)
        esito = EsitoRaffica::NonScritta;
    if (esito != EsitoRaffica::Riuscita) {
        avvisaNonRegistrato(contesto, esito);
        return false;
    }
    if (movimento > 0)
        informa(contesto, u"Il movimento associato alla fattura è stato eliminato. Riordinare l'archivio dei "
                          "movimenti contabili."_s);
    else if (scelta->movimento)
        informa(contesto, u"Non è stato trovato alcun movimento contabile associato alla fattura"_s);
    return true;
}

} // namespace bor
