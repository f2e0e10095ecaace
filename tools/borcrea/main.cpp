// Makes a company's folder from text files; the demo company unless told otherwise.
#include "borcrea/creaazienda.h"

#include "archive/archivio.h"
#include "common/installazione.h"
#include "common/versione.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

/// The number of an option within its limits; -1 after telling what is wrong with it.
int numero(const QCommandLineParser& parser, const QString& opzione, int massimo) {
    bool valido = false;
    const int n = parser.value(opzione).toInt(&valido);
    if (valido && n >= 0 && n <= massimo)
        return n;
    QTextStream(stderr) << u"--%1: serve un numero da 0 a %2.\n"_s.arg(opzione).arg(massimo);
    return -1;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication programma(argc, argv);
    QCoreApplication::setApplicationVersion(bor::versione());
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Crea l'archivio di un'azienda da file di testo. Se un testo contiene errori li elenca tutti, e non "
        u"scrive nulla."_s);
    parser.addOptions({{u"sorgente"_s, u"Cartella dei testi."_s, u"cartella"_s, bor::installato(u"demo")},
                       {u"unita"_s, u"Cartella che fa da radice dell'unità."_s, u"cartella"_s, u"."_s},
                       {u"azienda"_s, u"Codice dell'azienda, da 0 a 999."_s, u"codice"_s, u"1"_s},
                       {u"documenti"_s, u"Ripete i documenti fino a questo numero, per misurare i tempi."_s,
                        u"numero"_s, u"0"_s},
                       {u"version"_s, u"Mostra la versione."_s},
                       {{u"h"_s, u"aiuto"_s}, u"Mostra questo aiuto."_s}});
    parser.addPositionalArgument(u"sorgente"_s, u"Cartella dei testi, come --sorgente."_s, u"[sorgente]"_s);
    if (!parser.parse(QCoreApplication::arguments())) {
        QTextStream(stderr) << parser.errorText() << '\n';
        return 2;
    }
    if (parser.isSet(u"version"_s))
        parser.showVersion();
    if (parser.isSet(u"aiuto"_s)) {
        QTextStream(stdout) << parser.helpText();
        return 0;
    }
    bor::crea::NuovaAzienda richiesta;
    richiesta.sorgente = parser.positionalArguments().value(0, parser.value(u"sorgente"_s));
    richiesta.unita = QDir(parser.value(u"unita"_s)).absolutePath();
    richiesta.codice = numero(parser, u"azienda"_s, 999);
    richiesta.documenti = numero(parser, u"documenti"_s, bor::Archivio::massimo);
    if (richiesta.codice < 0 || richiesta.documenti < 0)
        return 2;
    const bor::crea::Problemi problemi = bor::crea::creaAzienda(richiesta);
    for (const bor::crea::Problema& problema : problemi)
        QTextStream(stderr) << problema.testo() << '\n';
    return problemi.isEmpty() ? 0 : 1;
}
