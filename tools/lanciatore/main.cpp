// The launcher: starts the module on a company, or the window in which one of a drive's companies is chosen.
#include "common/installazione.h"
#include "common/rigacomando.h"
#include "lanciatore/aziende.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Goes on as the program of the window; returns, with the exit status, only when that cannot be started.
int continuaInFinestra(const QStringList& argomenti) {
    const QString programma = bor::programma(QCoreApplication::applicationDirPath(), u"borscelta");
    QList<QByteArray> testi{QFile::encodeName(programma)};
    for (const QString& argomento : argomenti)
        testi.append(argomento.toLocal8Bit());
    QList<char*> puntatori;
    for (QByteArray& testo : testi)
        puntatori.append(testo.data());
    puntatori.append(nullptr);
    execv(puntatori.front(), puntatori.data());
    qCritical("%s", qUtf8Printable(u"Il programma %1 non si avvia."_s.arg(programma)));
    return 1;
}

/// Tells why nothing was started: to the terminal, and in a window where there is a display.
int rifiuta(const QString& unita, const QString& motivo) {
    qCritical("%s", qUtf8Printable(motivo));
    return continuaInFinestra({unita, motivo});
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

void descriviOpzioni(QCommandLineParser& parser) {
    parser.setApplicationDescription(u"Apre le fatture emesse di un'azienda della suite."_s);
    parser.addOptions({
        {u"unita"_s, u"Cartella che fa da radice dell'unità e contiene suprok."_s, u"cartella"_s},
        {u"azienda"_s, u"Apre subito l'azienda con questo codice, da 0 a 999, senza finestra."_s,
         u"codice"_s},
        {u"dimostrazione"_s, u"Apre subito l'azienda dimostrativa, e la crea se non c'è."_s},
    });
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
    const QCoreApplication applicazione(argc, argv);
    QCommandLineParser parser;
    descriviOpzioni(parser);
    if (const auto esito = bor::leggiRigaComando(parser, 1))
        return *esito;
    QString motivo = richiestaVana(parser);
    if (motivo.isEmpty() && !parser.isSet(u"azienda"_s) && !parser.isSet(u"dimostrazione"_s))
        return continuaInFinestra(
            {parser.isSet(u"unita"_s) ? unitaScelta(parser) : bor::lancia::unitaDellaFinestra()});
    if (motivo.isEmpty())
        motivo = avviaSubito(parser);
    return motivo.isEmpty() ? 0 : rifiuta(unitaScelta(parser), motivo);
}
