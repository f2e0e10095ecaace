// The due list and the figures by month of 32,000 documents, and what reading the same files costs at the
// least.
#include "grandeazienda.h"
#include "prospetti/datimensili.h"
#include "prospetti/scadenzario.h"

#include <QCoreApplication>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds finoInFondo(100'000);

void Pavimento_LetturaDeiDocumenti(benchmark::State& stato) {
    for (auto _ : stato) {
        leggiTutto(u"borlano.fte"_s);
        leggiTutto(u"borlano.f2e"_s);
    }
}

/// From the key to the list ordered and added up: of what is due from a day on, or of everything, by day, by
/// customer or by payment type.
void Scadenze(benchmark::State& stato) {
    ContestoDiProva prova(grandeAzienda());
    Scadenzario form(prova.contesto, [](const Identita&) {});
    form.attiva();
    form.prosegui(finoInFondo);
    form.limiti().cambiaPeriodo(stato.range(0) == 0 ? PeriodoScadenze::DaOggi : PeriodoScadenze::Tutte);
    form.cambiaGruppi(static_cast<GruppiScadenze>(stato.range(1)));
    for (auto _ : stato) {
        form.attiva();
        form.prosegui(finoInFondo);
    }
    stato.counters["righe"] = form.righe();
}

void Mensili(benchmark::State& stato) {
    ContestoDiProva prova(grandeAzienda());
    DatiMensili form(prova.contesto);
    for (auto _ : stato) {
        form.attiva();
        form.prosegui(finoInFondo);
    }
}

BENCHMARK(Pavimento_LetturaDeiDocumenti)->Unit(benchmark::kMillisecond);
BENCHMARK(Scadenze)->Args({0, 0})->Args({1, 0})->Args({1, 1})->Args({1, 2})->Unit(benchmark::kMillisecond);
BENCHMARK(Mensili)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication applicazione(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
