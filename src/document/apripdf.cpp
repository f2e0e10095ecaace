#include "document/apripdf.h"

#include "archive/contesto.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int riuscito = 33;
constexpr int cartellaMancante = 3;

QString testoErrore(int codice) {
    switch (codice) {
    case 2:
        return u"File PDF non trovato"_s;
    case 3:
        return u"Cartella o Percorso non trovato"_s;
    case 5:
        return u"Accesso negato"_s;
    case 8:
        return u"Memoria esaurita"_s;
    case 31:
        return u"Programma Acrobat Reader non installato o non disponibile"_s;
    case 32:
        return u"DLL non trovata"_s;
    default:
        return u"Errore sconosciuto"_s;
    }
}

} // namespace

void ApriPDF(const Contesto& contesto, const QString& nome) {
    const QString percorso = contesto.archivio.reale(puliscitesto(nome));
    const int esito = percorso.isEmpty() ? cartellaMancante : contesto.sistema.apri(percorso);
    if (esito < riuscito)
        contesto.operatore.messaggio(u"Si è verificato l'errore "_s + QString::number(esito) + u" - "_s +
                                         testoErrore(esito),
                                     u"ApriPDF"_s, Icona::Stop);
}

} // namespace bor
