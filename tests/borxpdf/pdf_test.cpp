#include "borxpdf/comando.h"
#include "borxpdf/disegno.h"
#include "borxpdf/pdf.h"
#include "prova.h"

#include <QPainter>
#include <QProcess>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace bor;
using namespace bor::pdf;

namespace {

const QString riga =
    u"\\suprok\\suprok\\boraz0.007\\borlano.lxf,c:\\bordoc.rto,\\suprok\\pdf\\ftr12.pdf,***"_s;
const QString nomePdf = u"\\suprok\\pdf\\ftr12.pdf"_s;

QString strumento(const QString& programma, const QStringList& argomenti) {
    QProcess processo;
    processo.start(programma, argomenti);
    EXPECT_TRUE(processo.waitForFinished()) << qPrintable(programma);
    EXPECT_EQ(processo.exitCode(), 0) << processo.readAllStandardError().constData();
    return QString::fromUtf8(processo.readAllStandardOutput());
}

QImage disegno(const QByteArray& record, const Disegnatore::TrovaImmagine& trova) {
    QString errore;
    const auto rapporto = PagineStampate::leggi("#FILEFORMAT=QLM-RTO\r\n" + record + finePagina(), errore);
    EXPECT_TRUE(rapporto) << qPrintable(errore);
    QImage foglio(210, 297, QImage::Format_RGB32); // a point a millimetre
    foglio.fill(Qt::white);
    QPainter pittore(&foglio);
    pittore.scale(25.4 / kUnitaPollice, 25.4 / kUnitaPollice);
    Disegnatore(trova).disegna(pittore, rapporto->pagine.at(0));
    return foglio;
}

} // namespace

TEST(Pdf, HaTestiPagineTitoloAutoreECaratteri) {
    const Unita unita;
    unita.scrivi(u"c:\\bordoc.rto"_s, dueFogli());
    unita.scrivi(u"\\suprok\\suprok\\boraz0.007\\borlano.lxf"_s,
                 "[documento]\ntitolo=Fattura (n. {numero}) \\) €\nautore=Città ) >> endobj\n"
                 "[pagina]\ntaglio_sinistra=10\ntaglio_basso=97\n");
    QString errore;
    ASSERT_TRUE(esegui(*ComandoPdf::leggi({riga}), unita.percorsi(), errore)) << qPrintable(errore);

    const QString file = unita.reale(nomePdf);
    const QStringList pagine = strumento(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s}).split(u'\f');
    ASSERT_EQ(pagine.size(), 3) << "two pages and what follows the last";
    EXPECT_TRUE(pagine[0].contains(u"Città di Forlì"_s) && pagine[0].contains(u"1.234,56 €"_s));
    EXPECT_EQ(pagine[1].trimmed(), u"Totale 99,90"_s);

    const QString dati = strumento(u"pdfinfo"_s, {file});
    EXPECT_TRUE(dati.contains(u"Fattura (n. 12) \\) €"_s)) << qPrintable(dati);
    EXPECT_TRUE(dati.contains(u"Città ) >> endobj"_s)) << qPrintable(dati);
    EXPECT_TRUE(dati.contains(u"567 x 567 pts"_s)) << "200 x 200 mm remain after the cut";
    const QString caratteri = strumento(u"pdffonts"_s, {file});
    EXPECT_EQ(caratteri.count(u"yes no  yes"_s), 1) << "embedded, with the way back to text\n"
                                                    << qPrintable(caratteri);

    const QString posti = strumento(u"pdftotext"_s, {u"-bbox"_s, u"-l"_s, u"1"_s, file, u"-"_s});
    EXPECT_TRUE(posti.contains(u"xMin=\"28."_s)) << "20 mm less the cut of 10 are 28.3 points";
}

TEST(Pdf, ConUnModelloDiSpazzaturaIlFoglioÈA4) {
    const Unita unita;
    unita.scrivi(u"c:\\bordoc.rto"_s, dueFogli());
    unita.scrivi(u"\\suprok\\suprok\\boraz0.007\\borlano.lxf"_s,
                 QByteArray("[pa\0\xff=\n=[", 10).repeated(1000));
    QString errore;
    ASSERT_TRUE(esegui(*ComandoPdf::leggi({riga}), unita.percorsi(), errore)) << qPrintable(errore);
    EXPECT_TRUE(strumento(u"pdfinfo"_s, {unita.reale(nomePdf)}).contains(u"(A4)"_s));
}

TEST(Pdf, SenzaStampaBuonaRestaIlPdfDiPrima) {
    const Unita unita;
    unita.scrivi(nomePdf, "quello di prima");
    QString errore;
    EXPECT_FALSE(esegui(*ComandoPdf::leggi({riga}), unita.percorsi(), errore));
    EXPECT_TRUE(errore.contains(unita.reale(u"c:\\bordoc.rto"_s))) << qPrintable(errore);
    unita.scrivi(u"c:\\bordoc.rto"_s, dueFogli().chopped(3));
    EXPECT_FALSE(esegui(*ComandoPdf::leggi({riga}), unita.percorsi(), errore));
    EXPECT_EQ(unita.leggi(nomePdf), "quello di prima");

    unita.scrivi(u"c:\\bordoc.rto"_s, dueFogli());
    for (const QString& nome :
         {u"\\suprok\\..\\..\\x.pdf"_s, u"d:\\x.pdf"_s, u"\\suprok\\fte"_s, u"c:\\bordoc.rto"_s}) {
        EXPECT_FALSE(
            esegui(*ComandoPdf::leggi({u"l,c:\\bordoc.rto,%1,***"_s.arg(nome)}), unita.percorsi(), errore));
        EXPECT_TRUE(errore.startsWith(u"Il nome del PDF non è valido"_s)) << qPrintable(nome);
    }
    EXPECT_EQ(unita.leggi(u"c:\\bordoc.rto"_s), dueFogli());
}

TEST(Pdf, UnaScritturaInterrottaNonToccaIlPdfDiPrima) {
    const Unita unita;
    unita.scrivi(nomePdf, "quello di prima");
    rlimit limite{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limite), 0);
    const rlimit stretto{.rlim_cur = 5000, .rlim_max = limite.rlim_max};
    const auto segnale = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &stretto), 0);
    const bool scritto = scriviIntero(unita.reale(nomePdf), QByteArray(9000, 'x'));
    setrlimit(RLIMIT_FSIZE, &limite);
    std::signal(SIGXFSZ, segnale);
    EXPECT_FALSE(scritto);
    EXPECT_EQ(unita.leggi(nomePdf), "quello di prima");
    EXPECT_EQ(QDir(unita.reale(u"\\suprok\\pdf"_s)).entryList(QDir::Files), QStringList{u"ftr12.pdf"_s});
}

TEST(Disegno, MetteColoriTestoEImmaginiAlLoroPosto) {
    const Unita unita;
    QImage logo(2, 1, QImage::Format_RGB32);
    logo.setPixel(0, 0, 0xff0000);
    logo.setPixel(1, 0, 0xff0000);
    QDir().mkpath(unita.percorsi().radiceCorrente());
    ASSERT_TRUE(logo.save(unita.reale(u"\\logo.png"_s)));
    unita.scrivi(u"\\logo.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 2 2'>"
                                  "<rect width='2' height='2' fill='#00ff00'/></svg>");
    unita.scrivi(u"\\rotto.png"_s, QByteArray(5000, '\x89'));
    const auto immagine = [](const QByteArray& x, const QByteArray& nome) {
        return " 0 \r\n " + x + " \r\n 10 \r\n " + QByteArray::number(x.toInt() + 20) +
               " \r\n 30 \r\n 0 \r\n 0 \r\n" + nome + "\r\n\r\n 0 \r\n 0 \r\n";
    };
    const QImage foglio =
        disegno(" 2 \r\n 100 \r\n 100 \r\n 50 \r\n 120 \r\n 0 \r\n 255 \r\n\r\n\r\n 1 \r\n 0 \r\n" +
                    rigaDiTesto("60", "200", "MMMMMMMM") + immagine("10", "\\logo.png") +
                    immagine("40", "\\LOGO.SVG") + immagine("70", "\\rotto.png") +
                    immagine("100", "\\..\\assente.png"),
                [&](const QString& nome) { return unita.percorsi().reale(nome).value_or(QString()); });

    EXPECT_EQ(foglio.pixelColor(75, 110), QColor(255, 0, 0))
        << "red is in the low byte; corners in any order";
    EXPECT_EQ(foglio.pixelColor(48, 110), QColor(Qt::white));
    EXPECT_EQ(foglio.pixelColor(20, 20), QColor(255, 0, 0));
    EXPECT_EQ(foglio.pixelColor(50, 20), QColor(0, 255, 0));
    EXPECT_EQ(foglio.pixelColor(80, 20), QColor(Qt::white));
    EXPECT_EQ(foglio.pixelColor(110, 20), QColor(Qt::white));
    int scuri = 0;
    for (int x = 60; x < 80; ++x) {
        scuri += foglio.pixelColor(x, 202).lightness() < 200;
        EXPECT_EQ(foglio.pixelColor(x, 199), QColor(Qt::white)) << "the text hangs from its y";
    }
    EXPECT_GT(scuri, 10);
}
