// Checks electronic invoices before they are sent: prints what the receiving system would refuse in each
// file. Ends with 0 when there is nothing to say, 1 when there is, 2 when a file cannot be read.
#include "common/versione.h"
#include "einvoice/controlloxml.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

enum Esito { Buono = 0, ConRilievi = 1, Illeggibile = 2 };

void scrivi(std::FILE* dove, const QString& testo) {
    std::fputs(qUtf8Printable(testo), dove);
}

Esito controlla(const QString& percorso) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly)) {
        scrivi(stderr, u"%1: il file non si può leggere (%2).\n"_s.arg(percorso, file.errorString()));
        return Illeggibile;
    }
    const auto rilievi = bor::controllaXml(file.readAll(), QFileInfo(percorso).fileName());
    if (rilievi.empty()) {
        scrivi(stdout, u"%1: nessun rilievo.\n"_s.arg(percorso));
        return Buono;
    }
    scrivi(stdout, u"%1: %2 rilievi.\n\n"_s.arg(percorso).arg(rilievi.size()));
    for (const bor::Rilievo& rilievo : rilievi)
        scrivi(stdout, bor::testoRilievo(rilievo) + u'\n');
    return ConRilievi;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication applicazione(argc, argv);
    QCoreApplication::setApplicationVersion(bor::versione());
    QCommandLineParser riga;
    riga.setApplicationDescription(
        u"Dice che cosa il sistema di interscambio rifiuterebbe in una fattura elettronica PA, prima dell'invio."_s);
    const QCommandLineOption aiuto({u"h"_s, u"help"_s, u"aiuto"_s}, u"Mostra questo aiuto."_s);
    riga.addOptions({aiuto, {u"version"_s, u"Mostra la versione."_s}});
    riga.addPositionalArgument(u"file"_s, u"I file XML da controllare."_s, u"file..."_s);
    if (!riga.parse(QCoreApplication::arguments())) {
        scrivi(stderr, riga.errorText() + u'\n');
        return Illeggibile;
    }
    if (riga.isSet(u"version"_s))
        riga.showVersion();
    if (riga.isSet(aiuto)) {
        scrivi(stdout, riga.helpText());
        return Buono;
    }
    if (riga.positionalArguments().isEmpty()) {
        scrivi(stderr, riga.helpText());
        return Illeggibile;
    }
    Esito peggiore = Buono;
    for (const QString& percorso : riga.positionalArguments())
        peggiore = std::max(peggiore, controlla(percorso));
    return peggiore;
}
