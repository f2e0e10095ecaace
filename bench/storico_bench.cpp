// The history of a customer in a company of 32,000 documents, each with its lines file: a customer of thirty
// documents, and one of 3,200. The index is made by the first look at each customer.
#include "document/filerighe.h"
#include "document/righeinsospeso.h"
#include "document/storico.h"
#include "support/azienda.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

constexpr int documenti = 32000;
constexpr int clienti = 1000;
constexpr int articoli = 500;
constexpr int grandeCliente = 1; ///< has every tenth document

/// Writes without waiting for the disk: the company is only made for the measurements.
class DiscoSvelto : public Disco {
protected:
    bool sostituisci(const QString& percorso, QByteArrayView contenuto) override {
        QFile file(percorso);
        return file.open(QIODevice::WriteOnly) &&
               file.write(contenuto.data(), contenuto.size()) == contenuto.size();
    }
};

int clienteDi(int n) {
    return n % 10 == 0 ? grandeCliente : 2 + n % (clienti - 1);
}

void mettiRighe(Documento& documento, std::mt19937& caso) {
    for (int i = 0; i < 10; ++i)
        documento.ddd[static_cast<std::size_t>(i)] = {.recart = 1 + static_cast<int>(caso() % articoli),
                                                      .codice = u"ART%1"_s.arg(i),
                                                      .descrizione = u"Articolo di prova numero %1"_s.arg(i),
                                                      .um = u"pz"_s,
                                                      .sconto1 = static_cast<int>(caso() % 3) * 5,
                                                      .iva = 1,
                                                      .quantita = 1.0 + static_cast<int>(caso() % 50),
                                                      .prezzo = static_cast<double>(caso() % 100000) / 100};
}

const AziendaDiProva& grande() {
    static const AziendaDiProva azienda;
    static const bool pronta = [] {
        std::mt19937 caso(7);
        DiscoSvelto disco;
        ContestoDiProva prova(azienda, disco);
        Archivio& a = prova.archivio;
        for (int n = 1; n <= clienti; ++n)
            a.cli.scrivi(n, bor::clienteDi(u"Cliente %1"_s.arg(n)));
        Documento documento;
        for (int n = 1; n <= documenti; ++n) {
            CoppiaFte c = documentoDi(clienteDi(n), QString::number(n), n * 1.5, n * 0.33);
            c.fte.nfile = static_cast<float>(n);
            a.scrivi(n, c);
            documento.coppia = c;
            mettiRighe(documento, caso);
            scrividoc(documento, a);
        }
        Tot tot = vuoto<Tot>();
        tot.numero = documenti;
        a.scriviTot(Conta::Fte, tot);
        return true;
    }();
    Q_UNUSED(pronta)
    return azienda;
}

struct Prova {
    Prova() { prova.orologio.momento = QDateTime::currentDateTime().addDays(1); }
    Storico storico() const { return {prova.contesto, sospese, indice}; }

    ContestoDiProva prova{grande()};
    RigheInSospeso sospese;
    QString indice = grande().percorsi().indiceStorico(7);
};

void guarda(Storico& storico, int cliente) {
    storico.apri({.cliente = cliente, .recart = 3});
    while (!storico.avanza(40)) {
    }
    benchmark::DoNotOptimize(storico.vendite().size());
}

/// Every customer once, on an empty index.
void PrimoSguardoATuttiIClienti(benchmark::State& stato) {
    const Prova p;
    for (auto _ : stato) {
        QFile::remove(p.indice);
        Storico storico = p.storico();
        for (int n = 1; n <= clienti; ++n) {
            storico.apri({.cliente = n, .recart = 3});
            while (!storico.avanza(1)) {
            }
        }
    }
}

void PrimoSguardoAUnCliente(benchmark::State& stato) {
    const Prova p;
    for (auto _ : stato) {
        Storico storico(p.prova.contesto, p.sospese, {});
        guarda(storico, static_cast<int>(stato.range(0)));
    }
}

/// The index read from disk, as in the first look of a run.
void PrimoSguardoDellaCorsa(benchmark::State& stato) {
    const Prova p;
    for (auto _ : stato) {
        Storico storico = p.storico();
        guarda(storico, static_cast<int>(stato.range(0)));
    }
    qint64 righe = 0;
    for (int n = 1; n <= documenti; ++n)
        righe += QFileInfo(grande().percorso(u"f%1"_s.arg(n))).size();
    stato.counters["MB_righe"] = static_cast<double>(righe) / 1e6;
    stato.counters["MB_indice"] = static_cast<double>(QFileInfo(p.indice).size()) / 1e6;
}

void SguardoSeguente(benchmark::State& stato) {
    const Prova p;
    Storico storico = p.storico();
    guarda(storico, static_cast<int>(stato.range(0)));
    for (auto _ : stato)
        guarda(storico, static_cast<int>(stato.range(0)));
}

/// Reading `fte` once, and asking each of the customer's lines files for its times.
void Pavimento_FteETempiDeiFile(benchmark::State& stato) {
    const AziendaDiProva& azienda = grande();
    std::vector<QString> nomi;
    for (int n = 1; n <= documenti; ++n)
        if (clienteDi(n) == stato.range(0))
            nomi.push_back(azienda.percorso(u"f%1"_s.arg(n)));
    QByteArray blocco(1 << 18, '\0');
    for (auto _ : stato) {
        QFile file(azienda.percorso(u"borlano.fte"_s));
        file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        while (file.read(blocco.data(), blocco.size()) > 0)
            benchmark::DoNotOptimize(blocco.data());
        for (const QString& nome : nomi)
            benchmark::DoNotOptimize(QFileInfo(nome).lastModified());
    }
}

BENCHMARK(PrimoSguardoATuttiIClienti)->Iterations(1)->Unit(benchmark::kSecond);
BENCHMARK(PrimoSguardoAUnCliente)->Arg(2)->Arg(grandeCliente)->Unit(benchmark::kMillisecond);
BENCHMARK(PrimoSguardoDellaCorsa)->Arg(2)->Arg(grandeCliente)->Unit(benchmark::kMillisecond);
BENCHMARK(SguardoSeguente)->Arg(2)->Arg(grandeCliente)->Unit(benchmark::kMillisecond);
BENCHMARK(Pavimento_FteETempiDeiFile)->Arg(2)->Arg(grandeCliente)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
