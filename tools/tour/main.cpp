// Plays the tour of the screens on a demo company of its own and saves a picture of each. The first argument
// is the folder of the pictures.
#include "app/schermi.h"
#include "borcrea/creaazienda.h"
#include "common/avvio.h"
#include "common/installazione.h"
#include "common/versione.h"
#include "tour/giro.h"
#include "ui/adattatori.h"
#include "ui/aspetto.h"
#include "ui/stampanteqt.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Answers yes to everything and says nothing: nobody sits before the tour.
class OperatoreDelGiro : public bor::OperatoreQt {
public:
    void messaggio(const QString& testo, const QString&, bor::Icona) override {
        std::fprintf(stderr, "tour: %s\n", qPrintable(testo));
    }
    bool chiedi(const QString&, const QString&, bor::Icona, bor::Predefinita) override { return true; }
};

/// Other programs are started by the tour alone, where it waits for them.
class SistemaDelGiro : public bor::Sistema {
public:
    int apri(const QString&) override { return 33; }
    bool avvia(const QString&, const QStringList&) override { return true; }
};

/// The tour always happens on the same day, so that its pictures do not change by themselves.
class GiornoDelGiro : public bor::Orologio {
public:
    QDateTime adesso() const override { return {QDate(2015, 12, 30), QTime(10, 0)}; }
};

} // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication applicazione(argc, argv);
    bor::applicaAspetto(applicazione);
    QCoreApplication::setApplicationVersion(bor::versione());
    QCommandLineParser opzioni;
    opzioni.addVersionOption();
    opzioni.addPositionalArgument(u"cartella"_s, u"Dove salvare le immagini."_s);
    opzioni.process(applicazione);
    const QDir cartella(opzioni.positionalArguments().value(0, u"."_s));
    cartella.mkpath(u"."_s);

    const QTemporaryDir unita;
    // Drive c: lies where the PDF tool looks for it too.
    qputenv("XDG_DATA_HOME", unita.path().toLocal8Bit());
    const QString unitaC = unita.path() + u"/borfte/c"_s;
    QDir().mkpath(unitaC);
    const bor::crea::Problemi problemi = bor::crea::creaAzienda({bor::installato(u"demo"), unita.path(), 1});
    if (!problemi.empty()) {
        std::fprintf(stderr, "%s\n", qPrintable(problemi.front().testo()));
        return 1;
    }
    OperatoreDelGiro operatore;
    GiornoDelGiro orologio;
    SistemaDelGiro sistema;
    bor::StampanteQt stampante;
    bor::Finestra finestra;
    const auto modulo = bor::Modulo::avvia(bor::rigaAvvio(1), bor::Percorsi(unita.path(), unitaC),
                                           {operatore, orologio, sistema, finestra, stampante});
    bor::aggiungiSchermi(finestra, *modulo);
    finestra.resize(1280, 720); // of one size whatever the screen
    finestra.show();
    finestra.activateWindow();
    if (!QTest::qWaitForWindowActive(&finestra))
        return 1;
    finestra.mostra(bor::Schermo::Borfte);
    bor::tour::Giro giro(finestra, cartella, unita.path());
    bor::tour::percorri(giro);
    return giro.riuscito() ? 0 : 1;
}
