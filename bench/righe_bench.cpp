// The goods lines: totals of 500 lines, the list of 32,000 articles, a keystroke to the repainted screen.
#include "document/borftex.h"
#include "support/azienda.h"
#include "ui/vistaborftex.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTest>

#include <benchmark/benchmark.h>

#include <array>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

constexpr int articoli = 32000;

QString codice(int n) {
    return u"ART%1"_s.arg((n * 7919) % articoli, 6, 10, QChar(u'0'));
}

const AziendaDiProva& grande() {
    static const AziendaDiProva azienda;
    static const bool pronta = [] {
        ContestoDiProva prova(azienda);
        for (int n = 1; n <= articoli; ++n)
            prova.archivio.art.scrivi(n, articoloDi(codice(n), u"Articolo di magazzino"_s, n * 0.25, 1));
        Tot tot = vuoto<Tot>();
        tot.numero = articoli;
        prova.archivio.scriviTot(Conta::Art, tot);
        return true;
    }();
    Q_UNUSED(pronta)
    return azienda;
}

TabellaRighe righePiene() {
    TabellaRighe righe(righeMerce);
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const int n = static_cast<int>(i) + 1;
        righe[i] = {n,       {},       codice(n), u"Articolo di magazzino"_s, u"pz"_s, 10, 5, 1 + n % 24,
                    n * 1.5, n * 0.37, 0.1};
    }
    return righe;
}

/// One multiplication and one addition a line, without any rounding.
void Pavimento_SommaDi500Righe(benchmark::State& stato) {
    const TabellaRighe righe = righePiene();
    for (auto _ : stato) {
        double somma = 0;
        for (const Riga& r : righe)
            somma += r.prezzo * r.quantita;
        benchmark::DoNotOptimize(somma);
    }
}

void TotaliDi500Righe(benchmark::State& stato) {
    const TabellaRighe righe = righePiene();
    const ContestoDiProva prova(grande());
    const Valuta valuta = prova.impostazioni.valuta;
    for (auto _ : stato)
        benchmark::DoNotOptimize(ricalcola(righe, false, prova.tabelle, valuta));
}

/// The article file read in blocks of twenty, and its codes sorted once by the standard library.
void Pavimento_LetturaEOrdinamento(benchmark::State& stato) {
    constexpr qint64 blocco = 6540;
    constexpr qint64 lunghezza = 327;
    QFile file(grande().percorso(u"borlano.art"_s));
    file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    std::array<char, blocco> bytes{};
    for (auto _ : stato) {
        std::vector<std::array<char, 15>> chiavi;
        chiavi.reserve(articoli);
        file.seek(0);
        for (qint64 letti = 0; (letti = file.read(bytes.data(), blocco)) > 0;) {
            for (qint64 i = 0; i + lunghezza <= letti; i += lunghezza)
                std::copy_n(bytes.begin() + i, 15, chiavi.emplace_back().begin());
        }
        std::ranges::sort(chiavi);
        benchmark::DoNotOptimize(chiavi);
    }
}

void ListaDi32000Articoli(benchmark::State& stato) {
    const ContestoDiProva prova(grande());
    ListaArticoli lista;
    for (auto _ : stato) {
        lista.carica(prova.archivio, OrdineArticoli::Codice);
        benchmark::DoNotOptimize(lista.quanti());
    }
}

void RiordinoDi500Righe(benchmark::State& stato) {
    ContestoDiProva prova(grande());
    Documento documento;
    documento.ddd = righePiene();
    Borftex form(prova.contesto, documento);
    form.attiva();
    for (auto _ : stato)
        form.esegui(Borftex::Comando::Riordina);
}

void TastoESchermoRidisegnato(benchmark::State& stato) {
    ContestoDiProva prova(grande());
    Documento documento;
    documento.ddd = righePiene();
    Borftex form(prova.contesto, documento);
    VistaBorftex vista(form);
    vista.resize(1280, 720);
    vista.show();
    vista.attiva();
    auto* quantita = vista.findChild<QLineEdit*>(u"quantita(5)"_s);
    quantita->setFocus();
    QApplication::processEvents();
    for (auto _ : stato) {
        QTest::keyClick(quantita, quantita->text().size() < 5 ? Qt::Key_7 : Qt::Key_Backspace);
        QApplication::processEvents();
    }
}

BENCHMARK(Pavimento_SommaDi500Righe)->Unit(benchmark::kMicrosecond);
BENCHMARK(TotaliDi500Righe)->Unit(benchmark::kMicrosecond);
BENCHMARK(Pavimento_LetturaEOrdinamento)->Unit(benchmark::kMillisecond);
BENCHMARK(ListaDi32000Articoli)->Unit(benchmark::kMillisecond);
BENCHMARK(RiordinoDi500Righe)->Unit(benchmark::kMillisecond);
BENCHMARK(TastoESchermoRidisegnato)->Unit(benchmark::kMillisecond);

} // namespace
