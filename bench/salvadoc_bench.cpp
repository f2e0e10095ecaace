// Saving a document of 500 lines, and what writing the same bytes with one write a file costs.
#include "document/programma.h"

#include <QSaveFile>

#include <benchmark/benchmark.h>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

/// A stored document of 500 lines, opened.
struct Grande {
    Grande() {
        azienda.cliente(u"Rossi"_s);
        p.nuovo(u"1"_s);
        for (std::size_t i = 0; i < p.documento.ddd.size(); ++i)
            p.documento.ddd[i] = rigaDi(static_cast<double>(i) + 0.25, 10);
        p.salva();
        p.apri(1);
        p.prova.operatore.rispostaSolita = false;
        p.salva();
    }

    AziendaDiProva azienda;
    Programma p{azienda};
};

void Pavimento_UnaScritturaPerFile(benchmark::State& stato) {
    Grande grande;
    const QByteArray righe = grande.azienda.leggi(u"f2"_s);
    Archivio& archivio = grande.p.prova.archivio;
    const CoppiaFte coppia = archivio.leggi(1);
    const Tot tot = archivio.leggiTot(Conta::Fte);
    for (auto _ : stato) {
        archivio.scrivi(1, coppia);
        archivio.scriviTot(Conta::Fte, tot);
        QSaveFile file(grande.azienda.percorso(u"f2"_s));
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        file.write(righe);
        file.commit();
    }
}

void SalvataggioDi500Righe(benchmark::State& stato) {
    Grande grande;
    for (auto _ : stato)
        grande.p.salva();
}

void AperturaDi500Righe(benchmark::State& stato) {
    Grande grande;
    for (auto _ : stato)
        grande.p.apri(1);
}

} // namespace

BENCHMARK(Pavimento_UnaScritturaPerFile)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(SalvataggioDi500Righe)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(AperturaDi500Righe)->Unit(benchmark::kMicrosecond)->UseRealTime();

BENCHMARK_MAIN();
