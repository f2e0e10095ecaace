#include "app/modulo.h"
#include "ui/adattatori.h"
#include "ui/aspetto.h"
#include "ui/finestra.h"
#include "ui/vistaborfte.h"
#include "ui/vistaborftem.h"
#include "ui/vistaborsel.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    using namespace bor;
    QApplication applicazione(argc, argv);
    applicaAspetto(applicazione);

    OperatoreQt operatore;
    OrologioQt orologio;
    SistemaQt sistema;
    Finestra finestra;
    operatore.usa(&finestra);
    const auto modulo = Modulo::avvia(QCoreApplication::arguments().mid(1).join(u' '),
                                      Percorsi::predefiniti(), {operatore, orologio, sistema, finestra});
    if (!modulo)
        return 0;
    finestra.aggiungi(Schermo::Borfte, new VistaBorfte(modulo->borfte()));
    finestra.aggiungi(Schermo::Borftem, new VistaBorftem(modulo->borftem()));
    finestra.aggiungi(Schermo::Borsel, new VistaBorsel(modulo->borsel()));
    finestra.show();
    finestra.mostra(Schermo::Borfte);
    return QApplication::exec();
}
