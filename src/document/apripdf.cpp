#include "document/apripdf.h"

#include "archive/contesto.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString testoErrore(EsitoApri esito) {
    using enum EsitoApri;
    switch (esito) {
    case FileMancante:
        return u"File PDF non trovato"_s;
    case CartellaMancante:
        return u"Cartella o Percorso non trovato"_s;
    case Vietato:
        return u"Accesso negato"_s;
    case SenzaMemoria:
        return u"Memoria esaurita"_s;
    case SenzaProgramma:
        return u"Programma Acrobat Reader non installato o non disponibile"_s;
    case SenzaDll:
        return u"DLL non trovata"_s;
    case Riuscito:
        break;
    }
    return u"Errore sconosciuto"_s;
}

} // namespace

void ApriPDF(const Contesto& contesto, const QString& nome) {
    const QString percorso = contesto.archivio.reale(puliscitesto(nome));
    const EsitoApri esito =
        percorso.isEmpty() ? EsitoApri::CartellaMancante : contesto.sistema.apri(percorso);
    if (esito != EsitoApri::Riuscito)
        contesto.operatore.messaggio(u"Si è verificato l'errore "_s +
                                         QString::number(static_cast<int>(esito)) + u" - "_s +
                                         testoErrore(esito),
                                     u"ApriPDF"_s, Icona::Stop);
}

} // namespace bor
