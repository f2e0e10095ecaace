// The launcher: lists the companies of a drive and starts the module on the chosen one.
#include "common/versione.h"
#include "lanciatore/scelta.h"
#include "ui/aspetto.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Tells why nothing was started: in a window where there is a display, and to the terminal.
int rifiuta(int argc, char* argv[], const QString& motivo) {
    qCritical("%s", qUtf8Printable(motivo));
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland;offscreen");
    QApplication applicazione(argc, argv);
    bor::applicaAspetto(applicazione);
    if (const QString schermo = QGuiApplication::platformName();
        schermo != u"offscreen" && schermo != u"minimal")
        QMessageBox::critical(nullptr, u"Attenzione"_s, motivo);
    return 1;
}

/// Starts the module on a company of the drive, without a window. The reason why not; empty when it started.
QString avvia(const bor::Percorsi& percorsi, int codice) {
    if (const QString motivo = bor::lancia::ostacolo(percorsi, codice); !motivo.isEmpty())
        return motivo;
    if (!bor::lancia::avviaModulo(percorsi, QCoreApplication::applicationDirPath(), codice))
        return u"Il programma borfte non si avvia."_s;
    return {};
}

QString avviaDimostrazione(const bor::Percorsi& percorsi) {
    const QList<bor::lancia::Azienda> aziende = bor::lancia::elencaAziende(percorsi);
    if (std::none_of(aziende.begin(), aziende.end(), [](const bor::lancia::Azienda& a) {
            return a.codice == bor::lancia::codiceDimostrazione;
        })) {
        QDir().mkpath(percorsi.radiceCorrente());
        const bor::lancia::Comando comando = bor::lancia::comandoDimostrazione(
            QCoreApplication::applicationDirPath(), percorsi.radiceCorrente());
        if (QProcess::execute(comando.programma, comando.argomenti) != 0)
            return u"L'azienda dimostrativa non è stata creata."_s;
    }
    return avvia(percorsi, bor::lancia::codiceDimostrazione);
}

int mostraScelta(QApplication& applicazione, const QString& unita) {
    bor::applicaAspetto(applicazione);
    const QString cartella = QCoreApplication::applicationDirPath();
    bor::lancia::SceltaAzienda finestra(unita, cartella,
                                        [cartella](const bor::Percorsi& percorsi, int codice) {
                                            return bor::lancia::avviaModulo(percorsi, cartella, codice);
                                        });
    finestra.show();
    return QApplication::exec();
}

void descriviOpzioni(QCommandLineParser& parser) {
    parser.setApplicationDescription(u"Apre le fatture emesse di un'azienda della suite."_s);
    parser.addOptions({
        {u"unita"_s, u"Cartella che fa da radice dell'unità e contiene suprok."_s, u"cartella"_s},
        {u"azienda"_s, u"Apre subito l'azienda con questo codice, da 0 a 999, senza finestra."_s,
         u"codice"_s},
        {u"dimostrazione"_s, u"Apre subito l'azienda dimostrativa, e la crea se non c'è."_s},
    });
    parser.addHelpOption();
    parser.addVersionOption();
}

QString unitaScelta(const QCommandLineParser& parser) {
    const QString scelta = parser.value(u"unita"_s);
    return scelta.isEmpty() ? bor::lancia::unitaPredefinita() : QDir::current().absoluteFilePath(scelta);
}

/// What the operator asked for and cannot have; empty when nothing is against it.
QString richiestaVana(const QCommandLineParser& parser) {
    // Only the user's own folder is made; one that he names is where he thinks that his companies are.
    if (parser.isSet(u"unita"_s) && !QFileInfo(unitaScelta(parser)).isDir())
        return u"La cartella %1 non esiste."_s.arg(unitaScelta(parser));
    if (!parser.isSet(u"azienda"_s))
        return {};
    bool numero = false;
    const int codice = parser.value(u"azienda"_s).toInt(&numero);
    return numero && codice >= 0 && codice <= 999 ? QString() : u"Il codice dell'azienda va da 0 a 999."_s;
}

QString avviaSubito(const QCommandLineParser& parser) {
    const bor::Percorsi percorsi(unitaScelta(parser), QString());
    return parser.isSet(u"azienda"_s) ? avvia(percorsi, parser.value(u"azienda"_s).toInt())
                                      : avviaDimostrazione(percorsi);
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication::setApplicationVersion(bor::versione());
    QCommandLineParser parser;
    descriviOpzioni(parser);
    QStringList argomenti;
    for (int i = 0; i < argc; ++i)
        argomenti.append(QString::fromLocal8Bit(argv[i]));
    const bool valide = parser.parse(argomenti);
    const bool subito = parser.isSet(u"azienda"_s) || parser.isSet(u"dimostrazione"_s);
    QString motivo = valide ? richiestaVana(parser) : QString();
    // What opens no window needs no display: a start by code, the help, the version, a wrong option.
    if (!valide || parser.isSet(u"help"_s) || parser.isSet(u"version"_s) || (subito && motivo.isEmpty())) {
        const QCoreApplication applicazione(argc, argv);
        parser.process(applicazione);
        motivo = avviaSubito(parser);
        if (motivo.isEmpty())
            return 0;
    }
    if (!motivo.isEmpty())
        return rifiuta(argc, argv, motivo);
    QApplication applicazione(argc, argv);
    parser.process(applicazione);
    return mostraScelta(applicazione, unitaScelta(parser));
}
