#include "document/avvisi.h"

#include "archive/contesto.h"
#include "document/documento.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString motivo(const Disco& disco, EsitoRaffica esito) {
    switch (esito) {
    case EsitoRaffica::Occupata:
        return u"L'archivio è impegnato da un altro computer: riprovate fra qualche secondo."_s;
    case EsitoRaffica::NonLetta:
        return u"Non è stato possibile leggere il file \"%1\", e nulla è stato scritto. Verificate il disco "
               u"e i "
               "permessi della cartella, poi ripetete la registrazione: i dati sullo schermo non sono andati "
               "perduti."_s.arg(QDir::toNativeSeparators(disco.nonLetto()));
    case EsitoRaffica::Piena:
        return u"L'archivio è pieno: contiene già %1 registrazioni. Riordinatelo per togliere quelle "
               u"eliminate, "
               "poi ripetete la registrazione: i dati sullo schermo non sono andati perduti."_s.arg(
                   Archivio::massimo);
    case EsitoRaffica::NonScritta:
    case EsitoRaffica::Riuscita:
        break;
    }
    return u"Non è stato possibile scrivere il file \"%1\". Verificate lo spazio libero e i permessi della "
           "cartella, poi ripetete la registrazione: i dati sullo schermo non sono andati perduti."_s.arg(
               QDir::toNativeSeparators(disco.nonScritto()));
}

} // namespace

QString nomeDocumento(const Documento& documento) {
    const QString genere = documento.notaCredito() ? u"nota di credito"_s
                           : documento.parcella()  ? u"parcella"_s
                                                   : u"fattura"_s;
    return u"%1 %2 del %3"_s.arg(genere, documento.estremi.numero.trimmed(), documento.estremi.data);
}

void avvisaNonRegistrato(const Contesto& contesto, EsitoRaffica esito) {
    contesto.operatore.messaggio(motivo(contesto.archivio.disco(), esito), u"Attenzione"_s, Icona::Stop);
    contesto.archivio.disco().dimentica();
}

void avvisaRecuperi(const Contesto& contesto) {
    for (const Recupero& recupero : contesto.archivio.prendiRecuperi()) {
        const QString cosa = recupero.documento.isEmpty() ? u"una registrazione"_s : recupero.documento;
        QString testo = u"Un computer si era fermato durante la registrazione: %1. La registrazione è stata "
                        "completata."_s.arg(cosa);
        if (!recupero.lasciati.isEmpty())
            testo +=
                u"\n\nQuesti dati, cambiati nel frattempo da un altro programma, sono rimasti come erano e "
                "vanno controllati: %1."_s.arg(recupero.lasciati.join(u", "_s));
        contesto.operatore.messaggio(testo, u"Attenzione"_s, Icona::Esclamazione);
    }
}

bool uscireSenzaRegistrare(const Contesto& contesto) {
    return contesto.operatore.chiedi(u"Le modifiche non registrate andranno perse. Uscire comunque?"_s,
                                     u"Attenzione"_s, Icona::Domanda, Predefinita::No);
}

void avvisaRigheNonTenute(const Contesto& contesto, const QString& cartella) {
    contesto.operatore.messaggio(
        u"Non è stato possibile scrivere nella cartella \"%1\", che conserva le righe di questo documento "
        u"fino "
        "alla registrazione successiva. Prima di uscire dal programma aprite il documento e registratelo di "
        "nuovo."_s.arg(QDir::toNativeSeparators(cartella)),
        u"Attenzione"_s, Icona::Esclamazione);
}

} // namespace bor
