// Writes today's electronic invoices of all live documents of a company, or of one, and prints the findings
// of each. Ends with the number of documents with findings.
#include "borefattura/emissione.h"
#include "common/versione.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

void scrivi(std::FILE* dove, const QString& testo) {
    std::fputs(qUtf8Printable(testo), dove);
}

/// The number of an option within its limits; nothing after telling what is wrong with it.
std::optional<int> numero(const QCommandLineParser& riga, const QString& opzione, int minimo, int massimo) {
    bool valido = false;
    const int n = riga.value(opzione).toInt(&valido);
    if (valido && n >= minimo && n <= massimo)
        return n;
    scrivi(stderr, u"--%1: serve un numero da %2 a %3.\n"_s.arg(opzione).arg(minimo).arg(massimo));
    return std::nullopt;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication programma(argc, argv);
    QCoreApplication::setApplicationVersion(bor::versione());
    QCommandLineParser riga;
    riga.setApplicationDescription(
        u"Scrive le fatture elettroniche di oggi di tutti i documenti di un'azienda, o di uno, e ne elenca i "
        u"rilievi. Il codice di uscita è il numero dei documenti con rilievi (al massimo 254)."_s);
    riga.addOptions({{u"unita"_s, u"Cartella che fa da radice dell'unità."_s, u"cartella"_s, u"."_s},
                     {u"azienda"_s, u"Codice dell'azienda, da 0 a 999."_s, u"codice"_s, u"1"_s},
                     {u"cartella"_s, u"Cartella per i file."_s, u"cartella"_s},
                     {u"documento"_s, u"Un documento solo, col numero del suo record."_s, u"record"_s},
                     {u"json"_s, u"Scrive i rilievi in JSON."_s},
                     {u"version"_s, u"Mostra la versione."_s},
                     {{u"h"_s, u"aiuto"_s}, u"Mostra questo aiuto."_s}});
    if (!riga.parse(QCoreApplication::arguments())) {
        scrivi(stderr, riga.errorText() + u'\n');
        return bor::resoconto::esitoErrore;
    }
    if (riga.isSet(u"version"_s))
        riga.showVersion();
    if (riga.isSet(u"aiuto"_s)) {
        scrivi(stdout, riga.helpText());
        return 0;
    }
    const auto azienda = numero(riga, u"azienda"_s, 0, 999);
    const auto documento =
        riga.isSet(u"documento"_s) ? numero(riga, u"documento"_s, 1, 32767) : std::optional<int>(0);
    if (!azienda || !documento || !riga.isSet(u"cartella"_s)) {
        if (!riga.isSet(u"cartella"_s))
            scrivi(stderr, u"--cartella: serve la cartella per i file.\n"_s);
        return bor::resoconto::esitoErrore;
    }
    bor::resoconto::Resoconto resoconto(riga.isSet(u"json"_s));
    const QString errore = bor::emette::emetti(
        {riga.value(u"unita"_s), *azienda, riga.value(u"cartella"_s), *documento},
        [&](const bor::resoconto::RilieviFile& file) { scrivi(stdout, resoconto.aggiungi(file)); });
    if (!errore.isEmpty()) {
        scrivi(stderr, errore + u'\n');
        return bor::resoconto::esitoErrore;
    }
    scrivi(stdout, resoconto.chiudi());
    return resoconto.esito();
}
