// The register of 32,000 documents: fill, filter, sort, reorder, and what the same bytes cost at the least.
#include "grandeazienda.h"
#include "register/borfte.h"
#include "ui/vistaborfte.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QTest>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

const AziendaDiProva& vuota() {
    static const AziendaDiProva azienda;
    return azienda;
}

void Pavimento_LetturaDeiTreFile(benchmark::State& stato) {
    for (auto _ : stato) {
        for (const QString& nome : {u"borlano.fte"_s, u"borlano.f2e"_s, u"borlano.cli"_s})
            leggiTutto(nome);
    }
}

/// The register of a company, filled.
struct RegistroPieno {
    explicit RegistroPieno(const AziendaDiProva& azienda = grandeAzienda()) : prova(azienda) {
        form.carica();
    }
    ContestoDiProva prova;
    Documento documento;
    Borfte form{prova.contesto, documento};
};

void cambiaFiltro(benchmark::State& stato, FiltroFatture filtro) {
    RegistroPieno registro;
    for (auto _ : stato)
        registro.form.opzioni().cambiaFiltro(filtro);
}

void RiempimentoDellElenco(benchmark::State& stato) {
    cambiaFiltro(stato, FiltroFatture::Tutte);
}

void FiltroSoloPa(benchmark::State& stato) {
    cambiaFiltro(stato, FiltroFatture::SoloPa);
}

/// One key in the search box of the register on screen, up to the list painted anew.
void TastoNellaRicerca(benchmark::State& stato) {
    RegistroPieno registro;
    Borfte& form = registro.form;
    VistaBorfte vista(form);
    vista.resize(1280, 720);
    vista.show();
    vista.attiva();
    auto* campo = vista.findChild<QLineEdit*>(u"cerca"_s);
    campo->setFocus();
    const QString scritto = stato.range(0) == 0 ? u"cliente 99"_s : u"1234,5"_s;
    for (auto _ : stato) {
        stato.PauseTiming();
        campo->clear();
        form.opzioni().cerca({});
        vista.attiva();
        for (const QChar c : scritto.chopped(1))
            QTest::keyClick(campo, c.toLatin1());
        QApplication::processEvents();
        stato.ResumeTiming();
        QTest::keyClick(campo, scritto.back().toLatin1());
        QApplication::processEvents();
    }
}

/// The texts of a column, sorted by the standard library alone.
void Pavimento_Ordinamento(benchmark::State& stato) {
    RegistroPieno registro;
    Borfte& form = registro.form;
    QStringList chiavi;
    for (int r = 0; r < documentiGrande; ++r)
        chiavi.append(form.testo(r, static_cast<Colonna>(stato.range(0))));
    for (auto _ : stato) {
        QStringList copia = chiavi;
        std::stable_sort(copia.begin(), copia.end());
        benchmark::DoNotOptimize(copia);
    }
}

void Ordinamento(benchmark::State& stato) {
    RegistroPieno registro;
    Borfte& form = registro.form;
    const auto colonna =
        stato.range(0) == 9 ? Colonna::DataRegistrazione : static_cast<Colonna>(stato.range(0));
    for (auto _ : stato) {
        stato.PauseTiming();
        form.opzioni().cambiaFiltro(FiltroFatture::Tutte);
        stato.ResumeTiming();
        form.ordina(colonna);
    }
}

void Pavimento_CopiaDeiDueFile(benchmark::State& stato) {
    const AziendaDiProva& azienda = grandeAzienda();
    for (auto _ : stato) {
        for (const QString& nome : {u"borlano.fte"_s, u"borlano.f2e"_s}) {
            QFile::remove(azienda.percorso(u"copia"_s));
            QFile::copy(azienda.percorso(nome), azienda.percorso(u"copia"_s));
        }
    }
    QFile::remove(azienda.percorso(u"copia"_s));
}

/// By date and by number in turn: each time nearly every document moves.
void Riordino(benchmark::State& stato) {
    TipoRiordino tipo = TipoRiordino::PerNumero;
    for (auto _ : stato) {
        stato.PauseTiming();
        auto prova = std::make_unique<ContestoDiProva>(grandeAzienda());
        tipo = tipo == TipoRiordino::PerData ? TipoRiordino::PerNumero : TipoRiordino::PerData;
        stato.ResumeTiming();
        const EsitoRiordino esito = riordina(prova->archivio, tipo, [](int) {});
        stato.PauseTiming();
        if (esito.fase != FaseRiordino::Riuscito)
            stato.SkipWithError("the reorder failed");
        prova.reset();
        stato.ResumeTiming();
    }
}

/// What the program does from its first instruction to the list painted in its window, in a process of its
/// own.
int avvia(const AziendaDiProva& azienda) {
    RegistroPieno registro(azienda);
    Borfte& form = registro.form;
    VistaBorfte vista(form);
    vista.resize(1280, 720);
    vista.show();
    vista.attiva();
    return vista.grab().isNull() ? 1 : 0;
}

void avvio(benchmark::State& stato, const AziendaDiProva& azienda) {
    for (auto _ : stato) {
        const QString radice = QDir(azienda.radice() + u"../.."_s).absolutePath();
        if (QProcess::execute(QCoreApplication::applicationFilePath(), {u"--avvio"_s, radice}) != 0)
            stato.SkipWithError("the start failed");
    }
}

void Pavimento_AvvioSenzaDocumenti(benchmark::State& stato) {
    avvio(stato, vuota());
}

void AvvioFinoAllElenco(benchmark::State& stato) {
    avvio(stato, grandeAzienda());
}

BENCHMARK(Pavimento_LetturaDeiTreFile)->Unit(benchmark::kMillisecond);
BENCHMARK(RiempimentoDellElenco)->Unit(benchmark::kMillisecond);
BENCHMARK(FiltroSoloPa)->Unit(benchmark::kMillisecond);
BENCHMARK(TastoNellaRicerca)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(Pavimento_Ordinamento)->Arg(0)->Arg(4)->Arg(9)->Unit(benchmark::kMillisecond);
BENCHMARK(Ordinamento)->Arg(0)->Arg(4)->Arg(9)->Unit(benchmark::kMillisecond);
BENCHMARK(Pavimento_AvvioSenzaDocumenti)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(AvvioFinoAllElenco)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Pavimento_CopiaDeiDueFile)->Unit(benchmark::kMillisecond);
BENCHMARK(Riordino)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication applicazione(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--avvio") == 0)
        return avvia(AziendaDiProva(QString::fromLocal8Bit(argv[2])));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
