// Makes a company's folder from text files; the demo company unless told otherwise.
#include "borcrea/creaazienda.h"

#include "archive/archivio.h"
#include "common/installazione.h"
#include "common/rigacomando.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
    const QCoreApplication programma(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Crea l'archivio di un'azienda da file di testo. Se un testo contiene errori li elenca tutti, e non "
        u"scrive nulla."_s);
    parser.addOptions({{u"sorgente"_s, u"Cartella dei testi."_s, u"cartella"_s, bor::installato(u"demo")},
                       {u"unita"_s, u"Cartella che fa da radice dell'unità."_s, u"cartella"_s, u"."_s},
                       {u"azienda"_s, u"Codice dell'azienda, da 0 a 999."_s, u"codice"_s, u"1"_s},
                       {u"documenti"_s, u"Ripete i documenti fino a questo numero, per misurare i tempi."_s,
                        u"numero"_s, u"0"_s}});
    parser.addPositionalArgument(u"sorgente"_s, u"Cartella dei testi, come --sorgente."_s, u"[sorgente]"_s);
    if (const auto esito = bor::leggiRigaComando(parser, 2, bor::AltriArgomenti::Ammessi))
        return *esito;
    const auto codice = bor::numeroOpzione(parser, u"azienda"_s, 0, 999);
    const auto documenti = bor::numeroOpzione(parser, u"documenti"_s, 0, bor::Archivio::massimo);
    if (!codice || !documenti)
        return 2;
    bor::crea::NuovaAzienda richiesta;
    richiesta.sorgente = parser.positionalArguments().value(0, parser.value(u"sorgente"_s));
    richiesta.unita = QDir(parser.value(u"unita"_s)).absolutePath();
    richiesta.codice = *codice;
    richiesta.documenti = *documenti;
    const bor::crea::Problemi problemi = bor::crea::creaAzienda(richiesta);
    for (const bor::crea::Problema& problema : problemi)
        QTextStream(stderr) << problema.testo() << '\n';
    return problemi.isEmpty() ? 0 : 1;
}
