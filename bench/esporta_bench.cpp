// The register of 32,000 documents written as a file: filled and exported, and what the fill and the same
// bytes cost at the least.
#include "common/posti.h"
#include "common/tabella.h"
#include "grandeazienda.h"
#include "register/borfte.h"

#include <QBuffer>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

/// The register as it comes out of the program: of all columns where `range(1)` says so.
struct Uscita {
    explicit Uscita(const benchmark::State& stato) : json(stato.range(0) == 1) {
        form.carica();
        VistaRegistro vista;
        for (int i = 0; stato.range(1) == 1 && i < colonneElenco; ++i)
            vista.colonne.push_back({enumeratore<Colonna>(i), 0});
        form.opzioni().cambiaVista(vista);
    }
    void riempi() { form.opzioni().cambiaFiltro(FiltroFatture::Tutte); }
    bool scrivi(QIODevice& dove) const {
        return json ? scriviJson(form.tabella(), dove) : scriviCsv(form.tabella(), dove);
    }
    QString file() const { return grandeAzienda().percorso(u"uscita"_s); }

    bool json;
    ContestoDiProva prova{grandeAzienda()};
    Documento documento;
    Borfte form{prova.contesto, documento};
};

void Esportazione(benchmark::State& stato) {
    Uscita uscita(stato);
    for (auto _ : stato) {
        uscita.riempi();
        if (!salvaFile(uscita.file(), [&](QIODevice& file) { return uscita.scrivi(file); }).isEmpty())
            stato.SkipWithError("the export failed");
    }
}

/// The fill, and the same bytes on disk.
void Pavimento_Esportazione(benchmark::State& stato) {
    Uscita uscita(stato);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    uscita.scrivi(bytes);
    for (auto _ : stato) {
        uscita.riempi();
        if (!salvaFile(uscita.file(), [&](QIODevice& file) {
                 return file.write(bytes.data()) == bytes.size();
             }).isEmpty())
            stato.SkipWithError("the write failed");
    }
    stato.counters["MB"] = static_cast<double>(bytes.size()) / 1e6;
}

/// As CSV (0) or JSON (1), with the columns of a list without choices (0) or all of them (1).
void misure(benchmark::internal::Benchmark* bench) {
    bench->ArgsProduct({{0, 1}, {0, 1}})
        ->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime()
        ->UseRealTime();
}

BENCHMARK(Pavimento_Esportazione)->Apply(misure);
BENCHMARK(Esportazione)->Apply(misure);

} // namespace

BENCHMARK_MAIN();
