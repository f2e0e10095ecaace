// The launcher: lists the companies of a drive and starts the module on the chosen one.
#include "lanciatore/finestra.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLibraryInfo>
#include <QProcess>
#include <QTranslator>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

int rifiuta(const QString& messaggio) {
    qCritical("%s", qUtf8Printable(messaggio));
    return 1;
}

bool esiste(const bor::Percorsi& percorsi, int codice) {
    const QList<bor::Azienda> aziende = bor::elencaAziende(percorsi);
    return std::any_of(aziende.begin(), aziende.end(),
                       [codice](const bor::Azienda& a) { return a.codice == codice; });
}

/// Starts the module on a company that is there, without a window.
int avvia(const bor::Percorsi& percorsi, int codice) {
    if (!esiste(percorsi, codice))
        return rifiuta(u"L'azienda %1 non c'è in %2."_s.arg(codice).arg(percorsi.radiceCorrente()));
    if (!bor::avviaModulo(percorsi, QCoreApplication::applicationDirPath(), codice))
        return rifiuta(u"Il programma borfte non si avvia."_s);
    return 0;
}

int avviaDimostrazione(const bor::Percorsi& percorsi) {
    if (!esiste(percorsi, bor::codiceDimostrazione)) {
        QDir().mkpath(percorsi.radiceCorrente());
        const bor::Comando comando =
            bor::comandoDimostrazione(QCoreApplication::applicationDirPath(), percorsi.radiceCorrente());
        if (QProcess::execute(comando.programma, comando.argomenti) != 0)
            return rifiuta(u"L'azienda dimostrativa non è stata creata."_s);
    }
    return avvia(percorsi, bor::codiceDimostrazione);
}

int mostraFinestra(const QString& unita) {
    QApplication::setStyle(u"Fusion"_s);
    QTranslator italiano;
    if (italiano.load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&italiano);
    const QString cartella = QCoreApplication::applicationDirPath();
    bor::Finestra finestra(unita, cartella, [cartella](const bor::Percorsi& percorsi, int codice) {
        return bor::avviaModulo(percorsi, cartella, codice);
    });
    finestra.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[]) {
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Apre le fatture emesse di un'azienda della suite."_s);
    const QCommandLineOption opzioneUnita(
        u"unita"_s, u"Cartella che fa da radice dell'unità e contiene suprok."_s, u"cartella"_s);
    const QCommandLineOption opzioneAzienda(
        u"azienda"_s, u"Apre subito l'azienda con questo codice, da 0 a 999, senza finestra."_s, u"codice"_s);
    const QCommandLineOption opzioneDimostrazione(
        u"dimostrazione"_s, u"Apre subito l'azienda dimostrativa, e la crea se non c'è."_s);
    parser.addOptions({opzioneUnita, opzioneAzienda, opzioneDimostrazione});
    parser.addHelpOption();

    // Without a window there is no need for a display.
    QStringList argomenti;
    for (int i = 0; i < argc; ++i)
        argomenti.append(QString::fromLocal8Bit(argv[i]));
    parser.parse(argomenti);
    const bool senzaFinestra = parser.isSet(opzioneAzienda) || parser.isSet(opzioneDimostrazione);
    const std::unique_ptr<QCoreApplication> applicazione(senzaFinestra ? new QCoreApplication(argc, argv)
                                                                       : new QApplication(argc, argv));
    parser.process(argomenti);

    const QString unita = parser.isSet(opzioneUnita)
                              ? QDir::current().absoluteFilePath(parser.value(opzioneUnita))
                              : bor::unitaPredefinita();
    const bor::Percorsi percorsi(unita, QString());
    if (parser.isSet(opzioneAzienda)) {
        bool numero = false;
        const int codice = parser.value(opzioneAzienda).toInt(&numero);
        if (!numero || codice < 0 || codice > 999)
            return rifiuta(u"Il codice dell'azienda va da 0 a 999."_s);
        return avvia(percorsi, codice);
    }
    return parser.isSet(opzioneDimostrazione) ? avviaDimostrazione(percorsi) : mostraFinestra(unita);
}
