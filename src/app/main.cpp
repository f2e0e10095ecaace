#include "app/modulo.h"
#include "app/schermi.h"
#include "ui/adattatori.h"
#include "ui/aspetto.h"
#include "ui/finestra.h"
#include "ui/stampanteqt.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

int main(int argc, char* argv[]) {
    using namespace bor;
    QApplication applicazione(argc, argv);
    applicaAspetto(applicazione);
    QTranslator italiano;
    if (italiano.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&italiano);

    OperatoreQt operatore;
    OrologioQt orologio;
    SistemaQt sistema;
    StampanteQt stampante;
    Finestra finestra;
    operatore.usa(&finestra);
    const auto modulo =
        Modulo::avvia(QCoreApplication::arguments().mid(1).join(u' '), Percorsi::predefiniti(),
                      {operatore, orologio, sistema, finestra, stampante});
    if (!modulo)
        return 0;
    aggiungiSchermi(finestra, *modulo);
    finestra.show();
    finestra.mostra(Schermo::Borfte);
    return QApplication::exec();
}
