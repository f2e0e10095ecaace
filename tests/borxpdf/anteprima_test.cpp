#include "borxpdf/anteprima.h"
#include "prova.h"

#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace bor;
using namespace bor::pdf;

TEST(Anteprima, SiSfogliaSiIngrandisceESiChiudeDallaTastiera) {
    const Unita unita;
    unita.scrivi(u"c:\\bordoc.rto"_s, dueFogli());
    QString errore;
    auto documento = apri(*ComandoPdf::leggi({u"--anteprima"_s, u"\\manca.lxf,c:\\bordoc.rto"_s}),
                          unita.percorsi(), errore);
    ASSERT_TRUE(documento) << qPrintable(errore);
    Anteprima finestra(std::move(*documento));
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    auto* foglio = finestra.findChild<QWidget*>(u"foglio"_s);
    auto* pagina = finestra.findChild<QLabel*>(u"pagina"_s);

    EXPECT_EQ(pagina->text().trimmed(), u"Pagina 1 di 2"_s);
    const QImage prima = foglio->grab().toImage();
    QTest::keyClick(&finestra, Qt::Key_PageDown);
    EXPECT_EQ(pagina->text().trimmed(), u"Pagina 2 di 2"_s);
    EXPECT_NE(foglio->grab().toImage(), prima);
    QTest::keyClick(&finestra, Qt::Key_PageDown);
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
