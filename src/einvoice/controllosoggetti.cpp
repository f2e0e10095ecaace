#include "common/codicifiscali.h"
#include "einvoice/controllifattura.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

void controllaIdItaliano(const Nodo& padre, const QString& nome, bool (*valido)(QStringView),
                         std::vector<Rilievo>& rilievi) {
    const Nodo* id = padre.figlio(nome);
    const Nodo* codice = id ? id->figlio(u"IdCodice") : nullptr;
    if (codice && !codice->testo.isEmpty() && id->valore(u"IdPaese") == u"IT" && !valido(codice->testo))
        rilievi.push_back(
            rilievoA(codice->percorso, *codice,
                     u"Non è un codice italiano valido: cifre mancanti o cifre di controllo errate."_s,
                     u"Ricontrollare il codice"_s));
}

void controllaNome(const Nodo& dati, std::vector<Rilievo>& rilievi) {
    const Nodo* anagrafica = dati.figlio(u"Anagrafica");
    if (!anagrafica)
        return;
    const bool impresa = anagrafica->figlio(u"Denominazione");
    const bool persona = anagrafica->figlio(u"Nome") && anagrafica->figlio(u"Cognome");
    if (impresa == persona)
        rilievi.push_back(rilievoA(anagrafica->percorso, *anagrafica,
                                   u"Ci vuole o la denominazione o nome e cognome, e non tutti e tre."_s,
                                   u"Correggere l'intestazione"_s));
}

} // namespace

void controllaSoggetti(const Nodo& testata, std::vector<Rilievo>& rilievi) {
    if (const Nodo* trasmissione = testata.figlio(u"DatiTrasmissione"))
        controllaIdItaliano(*trasmissione, u"IdTrasmittente"_s, codiceFiscaleValido, rilievi);
    for (const QString& nome : {u"CedentePrestatore"_s, u"CessionarioCommittente"_s}) {
        const Nodo* soggetto = testata.figlio(nome);
        const Nodo* dati = soggetto ? soggetto->figlio(u"DatiAnagrafici") : nullptr;
        if (!dati)
            continue;
        controllaIdItaliano(*dati, u"IdFiscaleIVA"_s, partitaIvaValida, rilievi);
        controllaNome(*dati, rilievi);
        if (!dati->figlio(u"IdFiscaleIVA") && dati->valore(u"CodiceFiscale").isEmpty())
            rilievi.push_back(rilievoA(dati->percorso, *dati,
                                       u"Mancano sia la partita IVA sia il codice fiscale."_s,
                                       u"Compilarne almeno uno"_s));
    }
}

} // namespace bor
