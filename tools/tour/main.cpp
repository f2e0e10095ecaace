// Plays the tour of the screens on a demo company of its own and saves a picture of each. The first argument
// is the folder of the pictures; --tutte plays it for every size, density and colour that a desktop may have.
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
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <vector>

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
    bor::EsitoApri apri(const QString&) override { return bor::EsitoApri::Riuscito; }
    bool avvia(const QString&, const QStringList&) override { return true; }
};

/// The tour always happens on the same day, so that its pictures do not change by themselves.
class GiornoDelGiro : public bor::Orologio {
public:
    QDateTime adesso() const override { return {QDate(2015, 12, 30), QTime(10, 0)}; }
};

/// How the desktop of a tour looks.
struct Scrivania {
    QSize finestra{1280, 720};
    double scala = 1;     ///< pixels a point
    double carattere = 1; ///< times the usual size
    bool scura = false;

    static Scrivania leggi(const QCommandLineParser& opzioni) {
        const QStringList lati = opzioni.value(u"formato"_s).split(u'x');
        return {.finestra = {lati.value(0).toInt(), lati.value(1).toInt()},
                .scala = opzioni.value(u"scala"_s).toDouble(),
                .carattere = opzioni.value(u"carattere"_s).toDouble(),
                .scura = opzioni.isSet(u"scuro"_s)};
    }
    QStringList argomenti() const {
        QStringList argomenti = {u"--formato"_s,   u"%1x%2"_s.arg(finestra.width()).arg(finestra.height()),
                                 u"--scala"_s,     QString::number(scala),
                                 u"--carattere"_s, QString::number(carattere)};
        if (scura)
            argomenti.append(u"--scuro"_s);
        return argomenti;
    }
    QString nome() const {
        return u"%1x%2-%3%4%5"_s.arg(finestra.width())
            .arg(finestra.height())
            .arg(scala)
            .arg(carattere > 1 ? u"-grande"_s : QString(), scura ? u"-scuro"_s : QString());
    }
    bool lecita() const { return finestra.isValid() && scala >= 1 && scala <= 4 && carattere >= 1; }
};

/// Every desktop that the screens are made for: three screens, light and dark, plain and of double density; a
/// dense screen of 1920 x 1080 pixels; large letters.
std::vector<Scrivania> tutteLeScrivanie() {
    std::vector<Scrivania> tutte;
    for (const QSize finestra : {QSize(1024, 768), QSize(1366, 768), QSize(1920, 1080)}) {
        for (const double scala : {1.0, 2.0}) {
            for (const bool scura : {false, true})
                tutte.push_back({finestra, scala, 1, scura});
        }
        tutte.push_back({finestra, 1, 1.5, false});
    }
    tutte.push_back({QSize(1280, 720), 1.5, 1, false});
    tutte.push_back({QSize(960, 540), 2, 1, false});
    return tutte;
}

/// Each in a run of its own: the density of a run is fixed before it has a window.
int giraTutte(const QDir& cartella) {
    int esito = 0;
    for (const Scrivania& scrivania : tutteLeScrivanie()) {
        const QStringList argomenti = scrivania.argomenti() << cartella.filePath(scrivania.nome());
        if (QProcess::execute(QCoreApplication::applicationFilePath(), argomenti) != 0)
            esito = 1;
    }
    return esito;
}

void descriviOpzioni(QCommandLineParser& opzioni) {
    opzioni.addVersionOption();
    opzioni.addOptions({{u"formato"_s, u"Misura della finestra in punti."_s, u"LxA"_s, u"1280x720"_s},
                        {u"scala"_s, u"Pixel per punto dello schermo."_s, u"numero"_s, u"1"_s},
                        {u"carattere"_s, u"Ingrandimento dei caratteri."_s, u"numero"_s, u"1"_s},
                        {u"scuro"_s, u"Come su una scrivania scura."_s},
                        {u"tutte"_s, u"Ogni formato, scala e tinta, in una cartella ciascuno."_s}});
    opzioni.addPositionalArgument(u"cartella"_s, u"Dove salvare le immagini."_s);
}

void applica(const Scrivania& scrivania, QApplication& applicazione) {
    QFont carattere = QApplication::font();
    carattere.setPointSizeF(carattere.pointSizeF() * scrivania.carattere);
    QApplication::setFont(carattere);
    bor::applicaAspetto(applicazione);
    if (scrivania.scura)
        bor::applicaTono(bor::Tono::Scuro);
}

/// The tour on a fresh demo company; what the program returns.
int gira(const Scrivania& scrivania, const QDir& cartella) {
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
    finestra.resize(scrivania.finestra);
    finestra.show();
    finestra.activateWindow();
    if (!QTest::qWaitForWindowActive(&finestra))
        return 1;
    finestra.mostra(bor::Schermo::Borfte);
    bor::tour::Giro giro(finestra, cartella, unita.path());
    bor::tour::percorri(giro);
    return giro.riuscito() ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCommandLineParser opzioni;
    descriviOpzioni(opzioni);
    QStringList argomenti;
    for (int i = 0; i < argc; ++i)
        argomenti.append(QString::fromLocal8Bit(argv[i]));
    opzioni.parse(argomenti);
    const Scrivania scrivania = Scrivania::leggi(opzioni);
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scrivania.scala));
    QApplication applicazione(argc, argv);
    QCoreApplication::setApplicationVersion(bor::versione());
    opzioni.process(applicazione);
    if (!scrivania.lecita()) {
        std::fprintf(stderr, "tour: --formato 1024x768, --scala da 1 a 4, --carattere da 1\n");
        return 1;
    }
    applica(scrivania, applicazione);
    const QDir cartella(opzioni.positionalArguments().value(0, u"."_s));
    return opzioni.isSet(u"tutte"_s) ? giraTutte(cartella) : gira(scrivania, cartella);
}
