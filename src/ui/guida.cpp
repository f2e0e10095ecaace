#include "ui/guida.h"

#include "common/installazione.h"
#include "common/operatore.h"
#include "common/sistema.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace bor {

QString capitolo(Schermo schermo) {
    switch (schermo) {
    case Schermo::Borfte:
        return u"registro"_s;
    case Schermo::Borftem:
        return u"testata"_s;
    case Schermo::Borsel:
        return u"clienti"_s;
    case Schermo::Borftex:
        return u"righe"_s;
    case Schermo::Borftek:
        return u"righe-parcella"_s;
    case Schermo::Borftea:
        return u"documento"_s;
    case Schermo::Borftec:
        return u"movimento"_s;
    case Schermo::Borftepa:
        return u"fattura-pa"_s;
    case Schermo::Borftel:
        return u"fattura-elettronica"_s;
    case Schermo::Scadenzario:
        return u"scadenzario"_s;
    case Schermo::DatiMensili:
        return u"dati-mensili"_s;
    }
    return u"indice"_s;
}

QKeySequence tastoGuida(Schermo schermo) {
    return schermo == Schermo::Borftex ? QKeySequence(Qt::SHIFT | Qt::Key_F1) : QKeySequence(Qt::Key_F1);
}

void apriGuida(Sistema& sistema, Operatore& operatore, const QString& capitolo) {
    const QString pagina = installato(u"guida"_s) + u'/' + capitolo + u".html"_s;
    if (sistema.apri(pagina) != EsitoApri::Riuscito)
        operatore.messaggio(
            u"La pagina della guida \"%1\" non si apre: manca, o su questo computer non c'è un "
            "programma per le pagine HTML."_s.arg(QDir::toNativeSeparators(pagina)),
            u"Guida"_s, Icona::Esclamazione);
}

} // namespace bor
