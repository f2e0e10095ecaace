// The boxes that all screens share, under the fingers of an operator.
#include "support/porte_finte.h"
#include "ui/campodata.h"
#include "ui/gesti.h"

#include <QCalendarWidget>
#include <QClipboard>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class Campi : public testing::Test {
protected:
    Campi() {
        auto* layout = new QVBoxLayout(&finestra);
        layout->addWidget(importo);
        layout->addWidget(aliquota);
        layout->addWidget(data);
        finestra.show();
        finestra.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&finestra));
    }
    QString digitato(const QString& testo) {
        importo->clear();
        scriviIn(importo, testo);
        return importo->text();
    }
    QString incollato(const QString& testo) {
        importo->setText(u"7"_s);
        importo->selectAll();
        QApplication::clipboard()->setText(testo);
        importo->paste();
        return importo->text();
    }
    void scriviIn(QLineEdit* campo, const QString& testo) {
        campo->setFocus(Qt::TabFocusReason);
        scrivi(finestra, testo);
    }

    QWidget finestra;
    Sessione sessione;
    OrologioFermo orologio;
    CampoImporto* importo = new CampoImporto(u"importo"_s, u"Importo"_s);
    CampoImporto* aliquota = new CampoImporto(u"aliquota"_s, u"Aliquota"_s, 4);
    CampoData* data = new CampoData(u"data"_s, u"calendario"_s, u"Data"_s, Bordata(sessione, orologio));
};

TEST_F(Campi, UnaVirgolaDopoIPuntiMostraCheEranoMigliaia) {
    for (const auto& [tasti, testo] : {std::pair{u"1.250,00"_s, u"1250.00"_s},
                                       {u"-1.234.567,89"_s, u"-1234567.89"_s},
                                       {u"1250,5"_s, u"1250.5"_s},
                                       {u"1250.5"_s, u"1250.5"_s},
                                       {u"1.2.5"_s, u"1.25"_s},
                                       {u"1,250,5"_s, u"1.2505"_s},
                                       {u"1.,250,50"_s, u"1250.50"_s},
                                       {u"5-3"_s, u"53"_s},
                                       {u"1234567890123456"_s, u"123456789012345"_s}})
        EXPECT_EQ(digitato(tasti), testo) << qPrintable(tasti);
    for (const auto& [copiato, testo] : {std::pair{u"€ 1.250,00"_s, u"1250.00"_s},
                                         {u"1.250,00\u00A0€"_s, u"1250.00"_s},
                                         {u" 1.234.567,8 "_s, u"1234567.8"_s},
                                         {u"1,234.50"_s, u"7"_s},
                                         {u"mille"_s, u"7"_s}})
        EXPECT_EQ(incollato(copiato), testo) << qPrintable(copiato);
    scriviIn(importo, u"1.2,"_s);
    QTest::keyClick(importo, Qt::Key_Backspace);
    scrivi(finestra, u"50,00"_s);
    EXPECT_EQ(importo->text(), u"1250.00"_s) << "a comma taken back may be typed again";
    scriviIn(aliquota, u"12,755"_s);
    EXPECT_EQ(aliquota->text(), u"12.7"_s);
}

TEST_F(Campi, UnNumeroInArchivioRestaInteroEUnClicLoScegliePerIntero) {
    importo->clearFocus();
    importo->setText(u"-123456789012.345"_s);
    importo->setFocus();
    importo->end(false);
    scrivi(finestra, u","_s);
    EXPECT_EQ(importo->text(), u"-123456789012.345"_s) << "the point of a stored number is no thousand";
    QTest::keyClick(importo, Qt::Key_Backspace);
    EXPECT_EQ(importo->text(), u"-123456789012.34"_s);
    importo->setText(u"5"_s);
    importo->clearFocus();
    QTest::mouseClick(importo, Qt::LeftButton);
    scrivi(finestra, u"6"_s);
    EXPECT_EQ(importo->text(), u"6"_s);
}

TEST_F(Campi, IlCalendarioStaSottoIlSuoCampoOSopraDoveLoSchermoFinisce) {
    const QRect schermo = finestra.screen()->availableGeometry();
    const auto aperto = [&](QPoint dove) {
        finestra.move(dove);
        QRect posto;
        QTimer::singleShot(0, &finestra, [&posto] {
            QWidget* dialogo = QApplication::activeModalWidget();
            ASSERT_TRUE(dialogo);
            posto = dialogo->frameGeometry();
            QTest::keyClick(dialogo, Qt::Key_Escape);
        });
        QTest::keyClick(data->campo(), Qt::Key_F4);
        EXPECT_TRUE(schermo.contains(posto)) << posto.right() << ' ' << posto.bottom();
        return posto;
    };
    const auto campo = [&] { return QRect(data->mapToGlobal(QPoint()), data->size()); };
    const QRect sotto = aperto({60, 40});
    EXPECT_EQ(sotto.topLeft(), campo().bottomLeft() + QPoint(0, 1));
    const QRect sopra = aperto({60, schermo.bottom() - 120});
    EXPECT_LT(sopra.bottom(), campo().top());
    aperto({schermo.right() - 60, 40});
}

TEST_F(Campi, IlCalendarioSiApreSuOggiEPrendeUnGiornoConUnGesto) {
    const auto scegli = [&](const std::function<void(QCalendarWidget*)>& gesto) {
        QTimer::singleShot(0, &finestra, [&gesto] {
            QWidget* dialogo = QApplication::activeModalWidget();
            ASSERT_TRUE(dialogo);
            EXPECT_EQ(dialogo->objectName(), u"bordata"_s);
            EXPECT_EQ(dialogo->windowTitle(), u"Imposta data"_s);
            gesto(dialogo->findChild<QCalendarWidget*>(u"nuovadata"_s));
            if (dialogo->isVisible())
                QTest::keyClick(dialogo, Qt::Key_Escape);
        });
        QTest::keyClick(data->campo(), Qt::Key_F4);
    };
    scriviIn(data->campo(), u"boh"_s);
    scegli([](QCalendarWidget* c) { EXPECT_EQ(c->selectedDate(), QDate(2015, 3, 15)); });
    EXPECT_EQ(data->campo()->text(), u"boh"_s) << "left without a choice";
    scegli([](QCalendarWidget* c) {
        QWidget* giorni = c->focusWidget();
        QTest::keyClick(giorni, Qt::Key_Right);
        QTest::keyClick(giorni, Qt::Key_Down);
        QTest::keyClick(giorni, Qt::Key_Return);
    });
    EXPECT_EQ(data->campo()->text(), u"23/03/2015"_s);
    EXPECT_EQ(sessione.datascelta, u"23/03/2015"_s);
    EXPECT_EQ(sessione.datariserva, u"15/03/2015"_s);
    data->campo()->selectAll();
    scriviIn(data->campo(), u"311215"_s);
    scegli([](QCalendarWidget* c) {
        EXPECT_EQ(c->selectedDate(), QDate(2015, 12, 31));
        c->setSelectedDate(QDate(2016, 2, 29));
    });
    EXPECT_EQ(data->campo()->text(), u"29/02/2016"_s);
}

} // namespace
} // namespace bor
