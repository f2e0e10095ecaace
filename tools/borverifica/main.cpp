// Reads a company's archive and prints what in it does not agree; writes nothing into it. Ends with 0 when
// nothing is wrong, 1 when there are errors or warnings, 2 when the archive cannot be read.
#include "borverifica/verifica.h"

#include "archive/promemoria.h"
#include "common/rigacomando.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

enum Esito { InOrdine = 0, ConDiscordanze = 1, Illeggibile = 2 };

enum class Forma { Testo, Json };

void stampa(const bor::verifica::Discordanze& trovate, int codice, Forma forma) {
    QTextStream uscita(stdout);
    for (const bor::verifica::Discordanza& d : trovate) {
        if (forma == Forma::Json)
            uscita << QString::fromUtf8(d.json()) << '\n';
        else
            uscita << d.testo() << u"\n        "_s << testo(d.rimedio) << '\n';
    }
    if (forma == Forma::Testo)
        uscita << u"Azienda %1: %2 errori, %3 avvisi, %4 informazioni.\n"_s.arg(codice)
                      .arg(quante(trovate, bor::verifica::Gravita::Errore))
                      .arg(quante(trovate, bor::verifica::Gravita::Avviso))
                      .arg(quante(trovate, bor::verifica::Gravita::Informazione));
}

Esito verificaAzienda(const QString& unita, int codice, Forma forma) {
    const bor::Percorsi percorsi = bor::Percorsi::predefiniti(QDir(unita).absolutePath());
    bor::Disco disco;
    bor::Archivio archivio(percorsi, disco, codice);
    const QString tot = archivio.reale(archivio.borlano(u"tot"));
    if (!QFileInfo::exists(tot)) {
        QTextStream(stderr) << u"%1 non c'è: qui non c'è l'archivio dell'azienda %2.\n"_s.arg(tot).arg(
            codice);
        return Illeggibile;
    }
    archivio.apri(bor::Apertura::SolaLettura);
    if (const QStringList chiusi = bor::verifica::nonLeggibili(archivio); !chiusi.isEmpty()) {
        QTextStream(stderr)
            << u"Non si può leggere %1: manca il permesso, o un altro programma lo tiene per sé.\n"_s.arg(
                   chiusi.join(u", "_s));
        return Illeggibile;
    }
    const bor::verifica::Discordanze trovate = bor::verifica::verificaArchivio(archivio);
    stampa(trovate, codice, forma);
    const int errori = quante(trovate, bor::verifica::Gravita::Errore);
    const int avvisi = quante(trovate, bor::verifica::Gravita::Avviso);
    bor::Promemoria(percorsi, codice).segnaVerifica({QDateTime::currentDateTime(), errori, avvisi});
    return errori + avvisi == 0 ? InOrdine : ConDiscordanze;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication programma(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Legge l'archivio di un'azienda e dice che cosa non concorda, senza "
                                     u"scrivervi nulla. Da usare quando "
                                     u"nessuno sta registrando documenti."_s);
    parser.addOptions({{u"unita"_s, u"Cartella che fa da radice dell'unità."_s, u"cartella"_s, u"."_s},
                       {u"azienda"_s, u"Codice dell'azienda, da 0 a 999."_s, u"codice"_s, u"1"_s},
                       {u"json"_s, u"Per altri programmi: un oggetto JSON per riga, uno per rilievo."_s}});
    if (const auto esito = bor::leggiRigaComando(parser, Illeggibile))
        return *esito;
    const auto codice = bor::numeroOpzione(parser, u"azienda"_s, 0, 999);
    if (!codice)
        return Illeggibile;
    return verificaAzienda(parser.value(u"unita"_s), *codice,
                           parser.isSet(u"json"_s) ? Forma::Json : Forma::Testo);
}
