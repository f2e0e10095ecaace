#include "borxpdf/anteprima.h"
#include "prova.h"

#include <QLabel>
#include <QPrinter>
#include <QProcess>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace bor;
using namespace bor::pdf;

namespace {

DocumentoPdf documento(const Unita& unita) {
    unita.scrivi(u"c:\\bordoc.rto"_s, dueFogli());
    QString errore;
    auto letto = apri(*ComandoPdf::leggi({u"--anteprima"_s, u"\\manca.lxf,c:\\bordoc.rto"_s}),
                      unita.percorsi(), errore);
    EXPECT_TRUE(letto) << qPrintable(errore);
    return std::move(letto).value();
}

} // namespace

TEST(Anteprima, SiSfogliaSiIngrandisceESiChiudeDallaTastiera) {
    const Unita unita;
    int guide = 0;
    Anteprima finestra(documento(unita), [&guide] { ++guide; });
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    QTest::keyClick(&finestra, Qt::Key_F1);
    EXPECT_EQ(guide, 1);
    auto* foglio = finestra.findChild<QWidget*>(u"foglio"_s);
    auto* pagina = finestra.findChild<QLabel*>(u"pagina"_s);

    EXPECT_EQ(pagina->text().trimmed(), u"Pagina 1 di 2"_s);
    const QImage prima = foglio->grab().toImage();
    // A page key goes through the page before it turns it.
    finestra.resize(700, 500);
    const auto* barra = finestra.findChild<QScrollArea*>()->verticalScrollBar();
    ASSERT_GT(barra->maximum(), barra->pageStep());
    int passi = 0;
    for (; pagina->text().trimmed() == u"Pagina 1 di 2"_s && passi < 20; ++passi) {
        const int dove = barra->value();
        QTest::keyClick(&finestra, Qt::Key_PageDown);
        EXPECT_TRUE(barra->value() > dove || barra->value() == 0);
    }
    EXPECT_EQ(passi, (barra->maximum() + barra->pageStep() - 1) / barra->pageStep() + 1);
    QTest::keyClick(&finestra, Qt::Key_PageUp);
    EXPECT_EQ(pagina->text().trimmed(), u"Pagina 1 di 2"_s);
    EXPECT_EQ(barra->value(), barra->maximum()) << "back to the end of the page before";
    QTest::keyClick(&finestra, Qt::Key_End);
    EXPECT_EQ(pagina->text().trimmed(), u"Pagina 2 di 2"_s);
    EXPECT_NE(foglio->grab().toImage(), prima);
    QTest::keyClick(&finestra, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(pagina->text().trimmed(), u"Pagina 2 di 2"_s);
    QTest::keyClick(&finestra, Qt::Key_Home);
    EXPECT_EQ(pagina->text().trimmed(), u"Pagina 1 di 2"_s);

    const int larghezza = foglio->width();
    QTest::keyClick(&finestra, Qt::Key_Plus);
    EXPECT_NEAR(foglio->width(), larghezza * 1.25, 1);
    QTest::keyClick(&finestra, Qt::Key_L);
    EXPECT_EQ(foglio->width(), larghezza);
    EXPECT_LT(larghezza, finestra.width());
    QTest::keyClick(&finestra, Qt::Key_Escape);
    EXPECT_FALSE(finestra.isVisible());
}

TEST(Anteprima, SiAffiancaAlDocumentoESiStampaUnaPagina) {
    const Unita unita;
    Anteprima finestra(documento(unita));
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    const QRect libera = finestra.screen()->availableGeometry();
    EXPECT_TRUE(libera.contains(finestra.geometry()));
    EXPECT_NEAR(finestra.geometry().right(), libera.right(), 4);
    const auto* area = finestra.findChild<QScrollArea*>();
    const int margini = area->viewport()->width() - finestra.findChild<QWidget*>(u"foglio"_s)->width();
    EXPECT_TRUE(margini >= 0 && margini < 50) << "as wide as the window";

    QPrinter stampante;
    stampante.setOutputFormat(QPrinter::PdfFormat);
    const QString file = unita.reale(u"c:\\stampa.pdf"_s);
    stampante.setOutputFileName(file);
    const auto stampato = [&](int da, int a) {
        stampante.setFromTo(da, a);
        EXPECT_TRUE(finestra.stampa(stampante));
        QProcess testo;
        testo.start(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s});
        EXPECT_TRUE(testo.waitForFinished());
        return QString::fromUtf8(testo.readAllStandardOutput());
    };
    const QString tutto = stampato(0, 0);
    EXPECT_EQ(tutto.count(u'\f'), 2);
    EXPECT_TRUE(tutto.contains(u"1.234,56 €"_s) && tutto.contains(u"Totale 99,90"_s));
    EXPECT_EQ(stampato(2, 9).trimmed(), u"Totale 99,90"_s);
}
