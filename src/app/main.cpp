#include "app/modulo.h"
#include "app/schermi.h"
#include "archive/impostazioni.h"
#include "common/avvertenze.h"
#include "common/avvio.h"
#include "ui/adattatori.h"
#include "ui/aspetto.h"
#include "ui/finestra.h"
#include "ui/guardiabozze.h"
#include "ui/stampanteqt.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    using namespace bor;
    QStringList argomenti;
    for (int i = 1; i < argc; ++i)
        argomenti.append(QString::fromLocal8Bit(argv[i]));
    const QString riga = argomenti.join(u' ');
    // What no launcher started ends before it asks for a display or touches a folder.
    if (controllaAvvio(riga).esito == EsitoAvvio::Rifiutato)
        return 0;
    raccogliAvvertenze();
    QApplication applicazione(argc, argv);
    applicaAspetto(applicazione);

    OperatoreQt operatore;
    OrologioQt orologio;
    SistemaQt sistema;
    StampanteQt stampante;
    Finestra finestra;
    operatore.usa(&finestra);
    const auto modulo =
        Modulo::avvia(riga, Percorsi::predefiniti(), {operatore, orologio, sistema, finestra, stampante});
    if (!modulo)
        return 0;
    // The desktop adds it to the title of each window: an office may have several companies open.
    QGuiApplication::setApplicationDisplayName(nomeAzienda(modulo->contesto().archivio));
    aggiungiSchermi(finestra, *modulo);
    finestra.show();
    finestra.mostra(Schermo::Borfte);
    const GuardiaBozze guardia([&modulo] { modulo->bozze().conserva(); });
    modulo->bozze().riprendi();
    return QApplication::exec();
}
