#include "document/apripdf.h"

#include "archive/contesto.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// What the desktop answers to the opening of a file; above all errors it has opened it.
enum Risposta {
    FileMancante = 2,
    CartellaMancante = 3,
    Vietato = 5,
    SenzaMemoria = 8,
    SenzaProgramma = 31,
    SenzaDll = 32,
    Riuscito
};

QString testoErrore(int codice) {
    switch (codice) {
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
    default:
        return u"Errore sconosciuto"_s;
    }
}

} // namespace

void ApriPDF(const Contesto& contesto, const QString& nome) {
    const QString percorso = contesto.archivio.reale(puliscitesto(nome));
    const int esito = percorso.isEmpty() ? CartellaMancante : contesto.sistema.apri(percorso);
    if (esito < Riuscito)
        contesto.operatore.messaggio(u"Si è verificato l'errore "_s + QString::number(esito) + u" - "_s +
                                         testoErrore(esito),
                                     u"ApriPDF"_s, Icona::Stop);
}

} // namespace bor
