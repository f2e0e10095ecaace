// The electronic invoice of a document of 500 lines, and what writing the same bytes costs.
#include "einvoice/fatturadiprova.h"
#include "einvoice/generaxml.h"

#include <benchmark/benchmark.h>

using namespace bor;

namespace {

struct Grande : FatturaDiProva {
    Grande() {
        for (Riga& riga : documento.ddd) {
            riga = documento.ddd[0];
            riga.descrizione = QStringLiteral("Fornitura di carta per ufficio, formato A4, 80 grammi");
            riga.sconto1 = 10;
        }
        form.attiva();
        form.genera();
    }
};

void Pavimento_ScritturaDegliStessiByte(benchmark::State& stato) {
    Grande grande;
    const QByteArray xml = grande.xml();
    const QString percorso = grande.percorsoXml(QStringLiteral("copia.xml"));
    for (auto _ : stato)
        grande.prova.archivio.disco().scriviFile(percorso, xml);
    stato.SetBytesProcessed(static_cast<std::int64_t>(stato.iterations()) * xml.size());
}

void FatturaXmlDi500Righe(benchmark::State& stato) {
    Grande grande;
    const Fpa azienda = fpaSocieta();
    const Fpa documento = grande.fpaScritta(QStringLiteral("fpa1"));
    const Cli cliente = clienteComune();
    const QString percorso = percorsoXml(grande.prova.archivio, azienda, QStringLiteral("12"));
    const Valuta valuta = grande.prova.contesto.valuta();
    for (auto _ : stato) {
        const TabellaRighe righepa = caricarighe(grande.documento.ddd);
        const RiepilogoFpa riepilogo = calcolaiva(righepa, false, grande.tabelle, valuta);
        const QByteArray xml = generaxml({.azienda = azienda,
                                          .documento = documento,
                                          .cliente = cliente,
                                          .righepa = righepa,
                                          .riepilogo = riepilogo,
                                          .scadenze = grande.documento.scadenze,
                                          .coordinate = {},
                                          .tabelle = grande.tabelle,
                                          .valuta = valuta});
        grande.prova.archivio.disco().scriviFile(percorso, xml);
    }
}

} // namespace

BENCHMARK(Pavimento_ScritturaDegliStessiByte)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(FatturaXmlDi500Righe)->Unit(benchmark::kMicrosecond)->UseRealTime();

BENCHMARK_MAIN();
