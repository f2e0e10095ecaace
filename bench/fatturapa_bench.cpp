// Today's electronic invoice of a document of 500 lines, from document to checked file, and what writing the
// same bytes and parsing them once costs.
#include "fatturapa/documentofel.h"
#include "support/azienda.h"
#include "xmlcheck/controlloxml.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QXmlStreamReader>

using namespace bor;

namespace {

const QString nome = QStringLiteral("IT01234567897_00001.xml");

struct Grande : DocumentoDiProva {
    Grande() {
        for (Riga& r : documento.ddd)
            r = {.codice2 = {},
                 .codice = QStringLiteral("ART100"),
                 .descrizione = QStringLiteral("Fornitura di carta per ufficio, formato A4, 80 grammi"),
                 .um = QStringLiteral("rs"),
                 .sconto1 = 10,
                 .iva = 1,
                 .quantita = 10,
                 .prezzo = 10};
        chiudi();
    }
};

void Pavimento_ScritturaEUnaLetturaDegliStessiByte(benchmark::State& stato) {
    Grande grande;
    const AziendaDiProva azienda;
    Disco disco;
    const QByteArray xml = scriviFattura(grande.composta().fattura);
    for (auto _ : stato) {
        disco.scriviFile(azienda.percorso(nome), xml);
        QXmlStreamReader lettore(xml);
        while (!lettore.atEnd())
            lettore.readNext();
    }
    stato.SetBytesProcessed(static_cast<std::int64_t>(stato.iterations()) * xml.size());
}

void FatturaDiOggiDi500Righe(benchmark::State& stato) {
    Grande grande;
    const AziendaDiProva azienda;
    Disco disco;
    for (auto _ : stato) {
        const Composta composta = grande.composta();
        const QByteArray xml = scriviFattura(composta.fattura);
        benchmark::DoNotOptimize(controllaXml(xml, nome));
        disco.scriviFile(azienda.percorso(nome), xml);
    }
}

} // namespace

BENCHMARK(Pavimento_ScritturaEUnaLetturaDegliStessiByte)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(FatturaDiOggiDi500Righe)->Unit(benchmark::kMicrosecond)->UseRealTime();

BENCHMARK_MAIN();
