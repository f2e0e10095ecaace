// Writes today's electronic invoices of all live documents of a company, or of one, and prints the findings
// of each. Ends with the number of documents with findings.
#include "borefattura/emissione.h"
#include "common/rigacomando.h"

#include <QCoreApplication>

#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

void scrivi(std::FILE* dove, const QString& testo) {
    std::fputs(qUtf8Printable(testo), dove);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication programma(argc, argv);
    QCommandLineParser riga;
    riga.setApplicationDescription(
        u"Scrive le fatture elettroniche di oggi di tutti i documenti di un'azienda, o di uno, e ne elenca i "
        u"rilievi. Il codice di uscita è il numero dei documenti con rilievi (al massimo 254)."_s);
    riga.addOptions({{u"unita"_s, u"Cartella che fa da radice dell'unità."_s, u"cartella"_s, u"."_s},
                     {u"azienda"_s, u"Codice dell'azienda, da 0 a 999."_s, u"codice"_s, u"1"_s},
                     {u"cartella"_s, u"Cartella per i file."_s, u"cartella"_s},
                     {u"documento"_s, u"Un documento solo, col numero del suo record."_s, u"record"_s},
                     {u"json"_s, u"Scrive i rilievi in JSON."_s}});
    if (const auto esito = bor::leggiRigaComando(riga, bor::resoconto::esitoErrore))
        return *esito;
    const auto azienda = bor::numeroOpzione(riga, u"azienda"_s, 0, 999);
    const auto documento = riga.isSet(u"documento"_s) ? bor::numeroOpzione(riga, u"documento"_s, 1, 32767)
                                                      : std::optional<int>(0);
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
