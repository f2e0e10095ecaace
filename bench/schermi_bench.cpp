// One key to the repainted screen, on every screen of the program: a document of 500 lines, a company of 500
// documents and customers and of 5,000 accounts. The floor is the same key in a box of a window of its own.
#include "einvoice/fatturadiprova.h"
#include "support/programmaintero.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

using namespace bor;
using namespace Qt::StringLiterals;

namespace {

constexpr int quanti = 500; ///< documents, customers, articles, lines of the document
constexpr int conti = 5000;

template <class R>
void scrivi(Archivio& archivio, RecordFile<R>& file, Conta quale, int numero,
            const std::function<R(int)>& record) {
    for (int n = 1; n <= numero; ++n)
        file.scrivi(n, record(n));
    Tot tot = vuoto<Tot>();
    tot.numero = static_cast<std::int16_t>(numero);
    archivio.scriviTot(quale, tot);
}

Con contoDi(int n) {
    Con con = vuoto<Con>();
    con.codice.set(u"%1"_s.arg(1010000 + n * 7, 8, 10, QChar(u'0')));
    con.descrizione.set(u"Conto numero %1"_s.arg(n));
    return con;
}

/// The program at work on a large company, with a document of 500 lines open.
class ProgrammaAlLavoro : private ProgrammaIntero {
public:
    ProgrammaAlLavoro() {
        azienda.scrivi(u"borlano.fpa"_s, bytesDi(fpaSocieta()));
        riempi();
        finestra.resize(1280, 720);
        avvia();
        apriDocumento();
    }

    Vista& mostra(Schermo schermo) {
        if (schermo == Schermo::Borftec)
            prepara();
        finestra.mostra(schermo);
        QApplication::processEvents();
        return vista(schermo);
    }

private:
    void riempi() {
        ContestoDiProva prova(azienda);
        Archivio& a = prova.archivio;
        const auto cliente = [](int n) { return u"Cliente %1 Forniture Srl"_s.arg(n, 4, 10, QChar(u'0')); };
        scrivi<Cli>(a, a.cli, Conta::Cli, quanti, [&](int n) { return clienteDi(cliente(n)); });
        scrivi<Src>(a, a.src, Conta::Cli, quanti, [&](int n) {
            Src voce = vuoto<Src>();
            voce.chiave.set(cliente(n));
            voce.recordcli = static_cast<std::int16_t>(n);
            return voce;
        });
        scrivi<Art>(a, a.art, Conta::Art, quanti,
                    [](int n) { return articoloDi(u"ART%1"_s.arg(n), u"Articolo"_s, n, 1); });
        scrivi<Con>(a, a.con, Conta::Con, conti, contoDi);
        for (int n = 1; n <= quanti; ++n)
            a.scrivi(n, documentoDi(n, QString::number(n), n * 1.5, n * 0.33));
        Tot tot = vuoto<Tot>();
        tot.numero = quanti;
        a.scriviTot(Conta::Fte, tot);
    }
    void apriDocumento() {
        modulo->borfte().apertura().documento(0);
        Documento& documento = modulo->documento();
        for (int n = 1; n <= quanti; ++n)
            documento.ddd[static_cast<std::size_t>(n - 1)] = {.recart = n,
                                                              .codice = u"ART%1"_s.arg(n),
                                                              .descrizione = u"Articolo"_s,
                                                              .um = u"pz"_s,
                                                              .sconto1 = 10,
                                                              .iva = 1,
                                                              .quantita = 1.5,
                                                              .prezzo = 0.37 * n};
        for (Rigap& riga : documento.dddp)
            riga = {u"01/03/2015"_s, u"Parere"_s, 1.5, 0, 250};
    }
    void prepara() {
        Movimento movimento;
        for (std::size_t i = 0; i < movimento.righe.size(); ++i) {
            movimento.righe[i].conto =
                ContoTesti::da(contoDi(static_cast<int>(i + 1) * conti / 10).codice.text());
            movimento.righe[i].dare = u"12.5"_s;
        }
        modulo->borftec().prepara(movimento);
    }
};

ProgrammaAlLavoro& programma() {
    static ProgrammaAlLavoro quello;
    return quello;
}

void batti(benchmark::State& stato, QLineEdit* campo, Qt::Key tasto) {
    campo->setFocus();
    campo->clear();
    QApplication::processEvents();
    for (auto _ : stato) {
        QTest::keyClick(campo, campo->text().size() < 2 ? tasto : Qt::Key_Backspace);
        QApplication::processEvents();
    }
}

void Pavimento_CampoDaSolo(benchmark::State& stato) {
    QWidget finestra;
    auto* layout = new QVBoxLayout(&finestra);
    auto* campo = new QLineEdit;
    campo->setFixedWidth(120);
    layout->addWidget(campo);
    finestra.resize(1280, 720);
    finestra.show();
    batti(stato, campo, Qt::Key_1);
}

void tasto(benchmark::State& stato, Schermo schermo, const QString& nome, Qt::Key quale) {
    Vista& vista = programma().mostra(schermo);
    auto* campo = vista.findChild<QLineEdit*>(nome);
    if (!campo || !campo->isVisible())
        return stato.SkipWithError("the screen has no such box");
    batti(stato, campo, quale);
}

BENCHMARK(Pavimento_CampoDaSolo)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, registro, Schermo::Borfte, u"cerca"_s, Qt::Key_1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, testata, Schermo::Borftem, u"Text2(2)"_s, Qt::Key_1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, elenco_clienti, Schermo::Borsel, u"selnome"_s, Qt::Key_1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, documento, Schermo::Borftea, u"impon(0)"_s, Qt::Key_1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, righe, Schermo::Borftex, u"quantita(5)"_s, Qt::Key_1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, righe_articolo, Schermo::Borftex, u"artic(5)"_s, Qt::Key_A)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, parcella, Schermo::Borftek, u"prezzo(5)"_s, Qt::Key_1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, movimento, Schermo::Borftec, u"dare(5)"_s, Qt::Key_1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, movimento_conto, Schermo::Borftec, u"cn3(5)"_s, Qt::Key_1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, movimento_cerca, Schermo::Borftec, u"ccerca"_s, Qt::Key_C)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tasto, fattura_pa, Schermo::Borftepa, u"Text2(2)"_s, Qt::Key_1)
    ->Unit(benchmark::kMillisecond);

} // namespace
