#include "document/avvisi.h"

#include "archive/contesto.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace bor {

void avvisaNonScritto(const Contesto& contesto) {
    Disco& disco = contesto.archivio.disco();
    if (disco.nonScritto().isEmpty()) {
        contesto.operatore.messaggio(
            u"L'archivio è pieno: contiene già %1 registrazioni. Riordinatelo per togliere quelle eliminate, "
            "poi ripetete la registrazione: i dati sullo schermo non sono andati perduti."_s.arg(
                Archivio::massimo),
            u"Attenzione"_s, Icona::Stop);
        return;
    }
    contesto.operatore.messaggio(
        u"Non è stato possibile scrivere il file \"%1\". Verificate lo spazio libero e i "
        "permessi della cartella, poi ripetete la registrazione: i dati sullo schermo non "
        "sono andati perduti."_s.arg(QDir::toNativeSeparators(disco.nonScritto())),
        u"Attenzione"_s, Icona::Stop);
    disco.dimentica();
}

} // namespace bor
