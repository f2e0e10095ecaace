// Copying a company of 32,000 documents with their lines files, and putting it back. The floor is `cp -a` of
// the same folder, flushed.
#include "borcopia/copiatore.h"
#include "borcopia/ripristino.h"
#include "document/programma.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

constexpr int documenti = 32000;
constexpr int righeScritte = 8;

/// The company, made once for all.
struct Ditta {
    Ditta() {
        for (int n = 1; n <= 20; ++n)
            azienda.cliente(u"Cliente %1"_s.arg(n));
        Programma p(azienda);
        p.nuovo(u"NUMERO"_s);
        for (std::size_t i = 0; i < righeScritte; ++i)
            p.documento.ddd[i] = rigaDi(static_cast<double>(i) + 0.25, 10);
        p.documento.coppia.fte.nfile = 1.0F;
        scrividoc(p.documento, p.prova.archivio);
        const QByteArray righe = azienda.leggi(u"f1"_s);
        CoppiaFte coppia = documentoDi(1, u"1"_s, 100, 22);
        for (int n = 1; n <= documenti; ++n) {
            const QByteArray numero = QByteArray::number(n);
            azienda.scrivi(u"f%1"_s.arg(n),
                           QByteArray(righe).replace("NUMERO", numero).replace("Vite", "Vite " + numero));
            coppia.fte.numero.set(QString::number(n));
            coppia.fte.nfile = static_cast<float>(n);
            coppia.fte.cliente = static_cast<std::int16_t>(n % 20 + 1);
            p.prova.archivio.scrivi(n, coppia);
        }
        Tot tot = p.prova.archivio.leggiTot(Conta::Fte);
        tot.numero = documenti;
        tot.progressivo = documenti;
        p.prova.archivio.scriviTot(Conta::Fte, tot);
        QProcess::execute(u"sync"_s, {});
    }
    AziendaDiProva azienda;
    QTemporaryDir meta;
};

Ditta& ditta() {
    static Ditta una;
    return una;
}

bool avanti(int) {
    return true;
}

void svuota(benchmark::State& stato) {
    stato.PauseTiming();
    const QString meta = ditta().meta.path();
    QDir(meta).removeRecursively();
    QDir().mkpath(meta);
    QProcess::execute(u"sync"_s, {});
    stato.ResumeTiming();
}

QString copia(benchmark::State& stato) {
    const copia::EsitoCopia esito =
        copia::creaCopia(ditta().azienda.percorsi(), 7, ditta().meta.path(), avanti);
    if (!esito.errore.isEmpty())
        stato.SkipWithError(qPrintable(esito.errore));
    stato.counters["blocco_ms"] = static_cast<double>(esito.blocco);
    stato.counters["MB"] = static_cast<double>(QFile(esito.percorso).size()) / 1e6;
    return esito.percorso;
}

void Copia(benchmark::State& stato) {
    for (auto _ : stato) {
        copia(stato);
        svuota(stato);
    }
}

void CopiaVerificata(benchmark::State& stato) {
    for (auto _ : stato) {
        const copia::EsitoVerifica esito = copia::verificaCopia(copia(stato), avanti);
        if (!esito.lettura.errore.isEmpty() || esito.errori() > 0)
            stato.SkipWithError("the copy has errors");
        svuota(stato);
    }
}

void Ripristino(benchmark::State& stato) {
    for (auto _ : stato) {
        stato.PauseTiming();
        const QString percorso = copia(stato);
        stato.ResumeTiming();
        const QString qui = ditta().meta.filePath(u"unita"_s);
        const auto esito = copia::ripristina(percorso, Percorsi(qui, qui + u"/c"_s), avanti);
        if (!esito.errore.isEmpty())
            stato.SkipWithError(qPrintable(esito.errore));
        svuota(stato);
    }
}

/// What each file costs that is opened, read and made again, and one flush for all.
void PavimentoCp(benchmark::State& stato) {
    for (auto _ : stato) {
        const QString meta = ditta().meta.path();
        QProcess::execute(u"cp"_s, {u"-a"_s, ditta().azienda.percorso({}), meta});
        QProcess::execute(u"sync"_s, {});
        svuota(stato);
    }
}

BENCHMARK(Copia)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(3);
BENCHMARK(CopiaVerificata)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(3);
BENCHMARK(Ripristino)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(3);
BENCHMARK(PavimentoCp)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(3);

} // namespace

BENCHMARK_MAIN();
