#include "document/eliminadoc.h"

#include "archive/contesto.h"
#include "document/avvisi.h"
#include "document/filerighe.h"
#include "document/registrazioni.h"
#include "document/righeinsospeso.h"
#include "document/trovamovimento.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

bool chiedi(const Contesto& contesto, const QString& domanda) {
    return contesto.operatore.chiedi(domanda, u"Eliminazione fattura"_s);
}

void informa(const Contesto& contesto, const QString& testo) {
    contesto.operatore.messaggio(testo, u"Eliminazione fattura"_s, Icona::Informazione);
}

bool segnaCancellato(Archivio& archivio, Conta quale) {
    const BloccoByte blocco = archivio.bloccaContatori();
    Tot contatore = archivio.leggiTot(quale);
    contatore.cancellato = 1;
    if (quale == Conta::Fte)
        contatore.modificato = 1;
    return archivio.scriviTot(quale, contatore);
}

/// Marks the record as it is on file: what was typed over it on screen is not stored on this occasion.
bool annulla(Documento& documento, Archivio& archivio) {
    Fte fte;
    if (!archivio.fte.leggi(documento.recordfattura, fte))
        fte = documento.coppia.fte;
    fte.annullata = 1;
    if (!segnaCancellato(archivio, Conta::Fte) || !archivio.fte.scrivi(documento.recordfattura, fte))
        return false;
    documento.coppia.fte.annullata = 1;
    return true;
}

bool eliminaScarico(const Documento& documento, const Contesto& contesto, Registrazioni& registrazioni) {
    Archivio& archivio = contesto.archivio;
    if (documento.coppia.fte.stamp == 0.0 || documento.parcella() ||
        archivio.leggiTot(Conta::Mag).numero < 1 ||
        !chiedi(contesto, u"Desideri eliminare anche gli eventuali movimento di magazzino?"_s))
        return true;
    const Attesa attesa(contesto.operatore);
    return registrazioni.togliscarico(documento) && segnaCancellato(archivio, Conta::Mag);
}

bool eliminaRighe(const Documento& documento, Archivio& archivio, RigheInSospeso& sospese) {
    const Fte& fte = documento.coppia.fte;
    if (fte.nfile > 0.0F && !archivio.disco().elimina(archivio.reale(percorsoRighe(archivio, fte))))
        return false;
    sospese.dimentica(documento);
    return true;
}

/// Takes the movement's amounts out of its accounts and marks it.
bool storna(Archivio& archivio, int movimento, Registrazioni& registrazioni) {
    Gio gio = archivio.gio.leggi(movimento);
    if (!registrazioni.stornaconti(gio))
        return false;
    gio.cancellato = 1;
    return archivio.gio.scrivi(movimento, gio) && segnaCancellato(archivio, Conta::Gio);
}

bool eliminaMovimento(const Documento& documento, const Contesto& contesto, Registrazioni& registrazioni) {
    Archivio& archivio = contesto.archivio;
    const double stamp = documento.coppia.fte.stamp;
    if (stamp == 0.0 || archivio.leggiTot(Conta::Gio).numero < 1 ||
        !chiedi(contesto, u"Desideri eliminare anche l'eventuale movimento contabile?"_s))
        return true;
    const int movimento = trovaMovimento(archivio, stamp);
    if (movimento == 0) {
        informa(contesto, u"Non è stato trovato alcun movimento contabile associato alla fattura"_s);
        return true;
    }
    {
        const Attesa attesa(contesto.operatore);
        if (!storna(archivio, movimento, registrazioni))
            return false;
    }
    informa(contesto, u"Il movimento associato alla fattura è stato eliminato. Riordinare l'archivio dei "
                      "movimenti contabili."_s);
    return true;
}

} // namespace

bool eliminadoc(Documento& documento, const Contesto& contesto, Registrazioni& registrazioni,
                RigheInSospeso& sospese) {
    if (!chiedi(contesto, u"Sei proprio sicuro?"_s))
        return false;
    contesto.archivio.disco().dimentica();
    if (annulla(documento, contesto.archivio) && eliminaScarico(documento, contesto, registrazioni) &&
        eliminaRighe(documento, contesto.archivio, sospese) &&
        eliminaMovimento(documento, contesto, registrazioni))
        return true;
    avvisaNonScritto(contesto);
    return false;
}

} // namespace bor
