// Finding a document's movement among 32,000, and taking its rows out of 32,000 warehouse rows, beside
// reading the bytes.
#include "document/trovamovimento.h"
#include "posting/scarico.h"
#include "support/azienda.h"

#include <QFile>

#include <benchmark/benchmark.h>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

constexpr int quanti = 32000;

/// A company with 32,000 movements and warehouse rows, all of other documents.
const AziendaDiProva& grande() {
    static const AziendaDiProva azienda;
    static const bool pronta = [] {
        ContestoDiProva prova(azienda);
        Gio gio = vuoto<Gio>();
        Mag mag = vuoto<Mag>();
        for (int n = 1; n <= quanti; ++n) {
            gio.riferimentofattura = n;
            mag.stampmag = n;
            prova.archivio.gio.scrivi(n, gio);
            prova.archivio.mag.scrivi(n, mag);
        }
        Tot tot = vuoto<Tot>();
        tot.numero = quanti;
        return prova.archivio.scriviTot(Conta::Gio, tot) && prova.archivio.scriviTot(Conta::Mag, tot);
    }();
    Q_UNUSED(pronta)
    return azienda;
}

void lettura(benchmark::State& stato, const QString& nome) {
    QByteArray blocco(1 << 20, '\0');
    for (auto _ : stato) {
        QFile file(grande().percorso(nome));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            stato.SkipWithError("no file");
        while (file.read(blocco.data(), blocco.size()) > 0)
            benchmark::DoNotOptimize(blocco.data());
    }
}

void Pavimento_LetturaDelGiornale(benchmark::State& stato) {
    lettura(stato, u"borlano.gio"_s);
}

void RicercaDelMovimento(benchmark::State& stato) {
    ContestoDiProva prova(grande());
    for (auto _ : stato) {
        Raffica raffica(prova.archivio, {});
        benchmark::DoNotOptimize(trovaMovimento(raffica, -1));
    }
}

void Pavimento_LetturaDelMagazzino(benchmark::State& stato) {
    lettura(stato, u"borlano.mag"_s);
}

void RimozioneDelleRighe(benchmark::State& stato) {
    ContestoDiProva prova(grande());
    Documento documento;
    documento.coppia.fte.stamp = -1;
    for (auto _ : stato)
        benchmark::DoNotOptimize(inRaffica(prova.archivio, [&](Raffica& r) { togliscarico(documento, r); }));
}

BENCHMARK(Pavimento_LetturaDelGiornale)->Unit(benchmark::kMillisecond);
BENCHMARK(RicercaDelMovimento)->Unit(benchmark::kMillisecond);
BENCHMARK(Pavimento_LetturaDelMagazzino)->Unit(benchmark::kMillisecond);
BENCHMARK(RimozioneDelleRighe)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
