// The launcher: lists the companies of a drive and starts the module on the chosen one.
#include "common/versione.h"
#include "lanciatore/scelta.h"
#include "ui/aspetto.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLibraryInfo>
#include <QProcess>
#include <QTranslator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

int rifiuta(const QString& messaggio) {
    qCritical("%s", qUtf8Printable(messaggio));
    return 1;
}

bool esiste(const bor::Percorsi& percorsi, int codice) {
    const QList<bor::lancia::Azienda> aziende = bor::lancia::elencaAziende(percorsi);
    return std::any_of(aziende.begin(), aziende.end(),
                       [codice](const bor::lancia::Azienda& a) { return a.codice == codice; });
}

/// Starts the module on a company that is there, without a window.
int avvia(const bor::Percorsi& percorsi, int codice) {
    if (!esiste(percorsi, codice))
        return rifiuta(u"L'azienda %1 non c'è in %2."_s.arg(codice).arg(percorsi.radiceCorrente()));
    if (!bor::lancia::avviaModulo(percorsi, QCoreApplication::applicationDirPath(), codice))
        return rifiuta(u"Il programma borfte non si avvia."_s);
    return 0;
}

int avviaDimostrazione(const bor::Percorsi& percorsi) {
    if (!esiste(percorsi, bor::lancia::codiceDimostrazione)) {
        QDir().mkpath(percorsi.radiceCorrente());
        const bor::lancia::Comando comando = bor::lancia::comandoDimostrazione(
            QCoreApplication::applicationDirPath(), percorsi.radiceCorrente());
        if (QProcess::execute(comando.programma, comando.argomenti) != 0)
            return rifiuta(u"L'azienda dimostrativa non è stata creata."_s);
    }
    return avvia(percorsi, bor::lancia::codiceDimostrazione);
}

int mostraScelta(QApplication& applicazione, const QString& unita) {
    bor::applicaAspetto(applicazione);
    QTranslator italiano;
    if (italiano.load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&italiano);
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

int avviaSubito(const QCommandLineParser& parser) {
    const bor::Percorsi percorsi(unitaScelta(parser), QString());
    if (!parser.isSet(u"azienda"_s))
        return avviaDimostrazione(percorsi);
    bool numero = false;
    const int codice = parser.value(u"azienda"_s).toInt(&numero);
    if (!numero || codice < 0 || codice > 999)
        return rifiuta(u"Il codice dell'azienda va da 0 a 999."_s);
    return avvia(percorsi, codice);
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication::setApplicationVersion(bor::versione());
    QCommandLineParser parser;
    descriviOpzioni(parser);
    QStringList argomenti;
    for (int i = 0; i < argc; ++i)
        argomenti.append(QString::fromLocal8Bit(argv[i]));
    // What opens no window needs no display: a start by code, the help, the version, a wrong option.
    const bool valide = parser.parse(argomenti);
    if (!valide || parser.isSet(u"help"_s) || parser.isSet(u"version"_s) || parser.isSet(u"azienda"_s) ||
        parser.isSet(u"dimostrazione"_s)) {
        const QCoreApplication applicazione(argc, argv);
        parser.process(applicazione);
        return avviaSubito(parser);
    }
    QApplication applicazione(argc, argv);
    parser.process(applicazione);
    return mostraScelta(applicazione, unitaScelta(parser));
}
