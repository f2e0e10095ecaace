// A report of 1,000 pages made into a PDF, beside the same text drawn with Qt's PDF writer alone.
#include "borxpdf/disegno.h"
#include "borxpdf/layoutpdf.h"
#include "borxpdf/pdf.h"

#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPagine = 1000;
constexpr int kRighe = 55;
constexpr int kColonne = 3; // texts on a line

QString testo(int pagina, int riga, int colonna) {
    return u"Articolo %1 %2 %3"_s.arg(pagina).arg(riga).arg(colonna);
}

QByteArray rapporto() {
    QByteArray dati = "#FILEFORMAT=QLM-RTO\r\n";
    for (int p = 0; p < kPagine; ++p) {
        for (int r = 0; r < kRighe; ++r)
            for (int c = 0; c < kColonne; ++c)
                dati += " 3 \r\n " + QByteArray::number(10 + 65 * c) + " \r\n " +
                        QByteArray::number(20 + 4 * r) + " \r\n 0 \r\n 0 \r\n 9 \r\n 0 \r\n" +
                        testo(p, r, c).toLatin1() + "\r\nArial\r\n 0 \r\n 0 \r\n";
        dati += " 9 " + QByteArray("\r\n").repeated(11);
    }
    return dati;
}

void contaPagine(benchmark::State& stato) {
    stato.counters["pagine/s"] = benchmark::Counter(kPagine, benchmark::Counter::kIsIterationInvariantRate);
}

void RapportoInPdf(benchmark::State& stato) {
    const QByteArray dati = rapporto();
    for (auto _ : stato) {
        QString errore;
        const auto letto = bor::pdf::PagineStampate::leggi(dati, errore);
        bor::pdf::Disegnatore disegnatore([](const QString&) { return QString(); });
        benchmark::DoNotOptimize(
            bor::pdf::componiPdf(*letto, bor::pdf::LayoutPdf(), u"Prova"_s, disegnatore).size());
    }
    contaPagine(stato);
}
BENCHMARK(RapportoInPdf)->Unit(benchmark::kMillisecond)->UseRealTime();

void PavimentoScrittorePdf(benchmark::State& stato) {
    for (auto _ : stato) {
        QByteArray pdf;
        QBuffer uscita(&pdf);
        uscita.open(QIODevice::WriteOnly);
        QPdfWriter scrittore(&uscita);
        scrittore.setPageSize(QPageSize(QPageSize::A4));
        scrittore.setResolution(bor::pdf::kUnitaPollice);
        QPainter pittore(&scrittore);
        QFont carattere(u"Arial"_s);
        carattere.setPixelSize(180);
        pittore.setFont(carattere);
        for (int p = 0; p < kPagine; ++p) {
            if (p > 0)
                scrittore.newPage();
            for (int r = 0; r < kRighe; ++r)
                for (int c = 0; c < kColonne; ++c)
                    pittore.drawText(QPointF(bor::pdf::unitaDaMillimetri(10 + 65 * c),
                                             bor::pdf::unitaDaMillimetri(23 + 4 * r)),
                                     testo(p, r, c));
        }
        pittore.end();
        benchmark::DoNotOptimize(pdf.size());
    }
    contaPagine(stato);
}
BENCHMARK(PavimentoScrittorePdf)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication programma(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
