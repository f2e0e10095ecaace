// Saving documents on a disk, each beside its floor: the very writes and flushes that the save asks for, in
// the same order, with nothing in between.
#include "integrita/turno.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <map>
#include <unistd.h>

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
        salva();
        p.disco.scaricaDavvero = true;
    }
    void salva() { p.salva(); }
    DiscoGuasto& disco() { return p.disco; }

    AziendaDiProva azienda;
    Programma p{azienda};
};

struct Ditta : AziendaDiProva {
    Ditta() { fondaDitta(*this); }
};

/// A stored document of three lines that is saved again with its warehouse rows and its movement.
struct ConMovimento {
    ConMovimento() {
        turno.nuovo(u"1"_s);
        turno.salva();
        turno.registra();
        turno.p.apri(1);
        salva();
        turno.p.disco.scaricaDavvero = true;
    }
    void salva() {
        turno.salva();
        turno.registra();
    }
    DiscoGuasto& disco() { return turno.p.disco; }

    Ditta azienda;
    Turno turno{azienda};
};

/// Does what was asked of a disk once more, on the same files.
class Replica {
public:
    ~Replica() {
        for (const auto& [percorso, descrittore] : m_aperti)
            ::close(descrittore);
    }
    void esegui(const Operazione& o) {
        if (o.tipo == Operazione::Tipo::Sostituzione)
            return sostituisci(o);
        const int descrittore = aperto(o.percorso);
        if (o.tipo == Operazione::Tipo::Scarico)
            (void)::fdatasync(descrittore);
        else
            (void)!::pwrite(descrittore, o.bytes.constData(), static_cast<std::size_t>(o.bytes.size()),
                            o.posizione);
    }

private:
    int aperto(const QString& percorso) {
        const auto [voce, nuova] = m_aperti.try_emplace(percorso, -1);
        if (nuova)
            voce->second = ::open(QFile::encodeName(percorso).constData(),
                                  QFileInfo(percorso).isDir() ? O_RDONLY : O_RDWR);
        return voce->second;
    }
    static void sostituisci(const Operazione& o) {
        const QByteArray nome = QFile::encodeName(o.percorso);
        const QByteArray provvisorio = nome + ".nuovo";
        const int descrittore = ::open(provvisorio.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        (void)!::write(descrittore, o.bytes.constData(), static_cast<std::size_t>(o.bytes.size()));
        (void)::fdatasync(descrittore);
        ::close(descrittore);
        (void)::rename(provvisorio.constData(), nome.constData());
    }

    std::map<QString, int> m_aperti;
};

template <class Lavoro>
void Salvataggio(benchmark::State& stato) {
    Lavoro lavoro;
    for (auto _ : stato)
        lavoro.salva();
}

template <class Lavoro>
void Pavimento(benchmark::State& stato) {
    Lavoro lavoro;
    lavoro.disco().annota = true;
    lavoro.salva();
    Replica replica;
    for (auto _ : stato) {
        for (const Operazione& o : lavoro.disco().operazioni)
            replica.esegui(o);
    }
}

void AperturaDi500Righe(benchmark::State& stato) {
    Grande grande;
    for (auto _ : stato)
        grande.p.apri(1);
}

} // namespace

BENCHMARK(Pavimento<Grande>)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(Salvataggio<Grande>)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(Pavimento<ConMovimento>)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(Salvataggio<ConMovimento>)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(AperturaDi500Righe)->Unit(benchmark::kMicrosecond)->UseRealTime();

BENCHMARK_MAIN();
