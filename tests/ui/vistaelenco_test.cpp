// The list of the register as its operator wants it, chosen and exported with keys and mouse.
#include "ui/registroinvista.h"

#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class VistaElencoTest : public RegistroInVista {
protected:
    VistaElencoTest() {
        const int rossi = azienda.cliente(u"Rossi Forniture Srl"_s);
        for (int i = 1; i <= 12; ++i) {
            CoppiaFte c = documentoDi(rossi, QString::number(i), 100.0 * i, 22.0 * i);
            c.fte.datadoc.set(QDate(2015, i, 10).toString(u"yyyyMMdd"));
            c.fte.tipo = i == 12 ? 1 : 0;
            azienda.documento(c);
        }
        apri();
    }

    /// The headings in view, from left to right.
    QString intestazioni() const {
        QStringList testi;
        const QHeaderView& testata = *griglia->horizontalHeader();
        for (int posto = 0; posto < testata.count(); ++posto) {
            const int colonna = testata.logicalIndex(posto);
            if (!testata.isSectionHidden(colonna))
                testi.append(griglia->model()->headerData(colonna, Qt::Horizontal).toString());
        }
        return testi.join(u' ');
    }
    QDialog& apriVista() {
        tasto(*vista, Qt::Key_L, Qt::ControlModifier);
        auto* finestra = vista->findChild<QDialog*>(u"finestraVista"_s);
        EXPECT_TRUE(finestra && QTest::qWaitForWindowActive(finestra));
        return *finestra;
    }
    int larga(Colonna colonna) const { return griglia->columnWidth(ordinale(colonna)); }
    static void spunta(QDialog& finestra, const QString& nome, bool mostrata) {
        auto* elenco = controllo<QListWidget>(finestra, u"colonne"_s);
        QListWidgetItem* voce = elenco->findItems(nome, Qt::MatchExactly).value(0);
        ASSERT_TRUE(voce);
        elenco->setCurrentItem(voce);
        voce->setCheckState(mostrata ? Qt::Checked : Qt::Unchecked);
    }
};

const QString comeSempre = u"Registr. Data Fattura Data Cliente Importo PA PDF"_s;

TEST_F(VistaElencoTest, IlPiedeDiceITotaliDiChiSiVedeEDiChiEScelto) {
    EXPECT_EQ(testoDi(*vista, u"mostrati"_s),
              u"12 documenti   Imponibile 5.400,00   Imposta 1.188,00   Totale 6.588,00");
    EXPECT_EQ(testoDi(*vista, u"nota"_s), QString());
    tasto(*vista, Qt::Key_End);
    tasto(*vista, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(testoDi(*vista, u"nota"_s),
              u"Scelti: 2 documenti   Imponibile -100,00   Imposta -22,00   Totale -122,00");
    tasto(*vista, Qt::Key_F, Qt::ControlModifier);
    scrivi(*vista, u"11"_s);
    EXPECT_EQ(testoDi(*vista, u"mostrati"_s),
              u"1 documento   Imponibile 1.100,00   Imposta 242,00   Totale 1.342,00");
    EXPECT_EQ(testoDi(*vista, u"nota"_s), QString());
}

TEST_F(VistaElencoTest, CtrlLSceglieIDocumentiELeColonneEComePrimaLiRimette) {
    EXPECT_EQ(intestazioni(), comeSempre);
    const int prima = larga(Colonna::Cliente);
    QDialog& finestra = apriVista();
    foto(finestra, u"vista"_s);
    EXPECT_EQ(fuoco(finestra), u"genere");
    controllo<QComboBox>(finestra, u"periodo"_s)->setCurrentIndex(ordinale(Periodo::Genere::Trimestre));
    controllo<QComboBox>(finestra, u"trimestre"_s)->setCurrentIndex(1);
    controllo<QSpinBox>(finestra, u"anno"_s)->setValue(2015);
    spunta(finestra, u"PDF"_s, false);
    spunta(finestra, u"Imponibile"_s, true);
    controllo(finestra, u"colonne"_s)->setFocus();
    for (int i = 0; i < 9; ++i)
        tasto(finestra, Qt::Key_Up, Qt::ControlModifier);
    tasto(finestra, Qt::Key_Down, Qt::ControlModifier);
    controllo<QSpinBox>(finestra, u"larghezza"_s)->setValue(20);
    tasto(finestra, Qt::Key_Return);
    EXPECT_EQ(form->elenco().quante(), 3);
    EXPECT_EQ(intestazioni(), u"Registr. Data Imponibile Fattura Data Cliente Importo PA");
    const int venti = larga(Colonna::Imponibile);
    EXPECT_NEAR(venti, griglia->fontMetrics().horizontalAdvance(u"00/00/000000"_s) * 20 / 12, 2);
    foto(*vista, u"registro_vista"_s);

    apri();
    EXPECT_EQ(form->elenco().quante(), 3) << "as it was left";
    EXPECT_TRUE(testoDi(*vista, u"mostrati"_s).startsWith(u"Vista: 2º trimestre 2015   3 documenti"_s))
        << qPrintable(testoDi(*vista, u"mostrati"_s));
    EXPECT_EQ(intestazioni(), u"Registr. Data Imponibile Fattura Data Cliente Importo PA");
    EXPECT_EQ(larga(Colonna::Imponibile), venti);

    tasto(apriVista(), Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return form->elenco().quante() == 12; }));
    EXPECT_EQ(intestazioni(), comeSempre);
    EXPECT_EQ(larga(Colonna::Cliente), prima);
}

TEST_F(VistaElencoTest, UnaSceltaSbagliataSiDiceESiCorregge) {
    QDialog& finestra = apriVista();
    const QPointer<QDialog> chiusa = &finestra;
    const auto avviso = [&] { return testoDi(finestra, u"avvisoVista"_s); };
    controllo<QComboBox>(finestra, u"periodo"_s)->setCurrentIndex(ordinale(Periodo::Genere::DalAl));
    tasto(finestra, Qt::Key_Return);
    EXPECT_EQ(avviso(), u"Manca una data");
    EXPECT_EQ(fuoco(finestra), u"dal");
    scrivi(finestra, u"310215"_s);
    tasto(finestra, Qt::Key_Return);
    EXPECT_TRUE(avviso().contains(u"non è una data"));
    controllo<QLineEdit>(finestra, u"dal"_s)->setText(u"010515"_s);
    controllo<QLineEdit>(finestra, u"al"_s)->setText(u"010415"_s);
    tasto(finestra, Qt::Key_Return);
    EXPECT_EQ(avviso(), u"Il periodo finisce prima di cominciare");
    EXPECT_EQ(fuoco(finestra), u"al");
    controllo<QLineEdit>(finestra, u"al"_s)->setText(u"100615"_s);
    tasto(finestra, Qt::Key_Return);
    EXPECT_FALSE(chiusa && chiusa->isVisible());
    EXPECT_EQ(form->opzioni().vista().documenti.periodo.dalAl,
              (Giorni{QDate(2015, 5, 1), QDate(2015, 6, 10)}));
    EXPECT_EQ(form->elenco().quante(), 2);
}

TEST_F(VistaElencoTest, ColonneTirateESpostateColMouseRestano) {
    QHeaderView& testata = *griglia->horizontalHeader();
    const auto premi = [&](int da, int a) {
        QWidget* dove = testata.viewport();
        QTest::mousePress(dove, Qt::LeftButton, {}, QPoint(da, 5));
        for (int passo = 1; passo <= 4; ++passo) {
            const QPointF qui(da + (a - da) * passo / 4.0, 5);
            QMouseEvent mossa(QEvent::MouseMove, qui, dove->mapToGlobal(qui), Qt::NoButton, Qt::LeftButton,
                              {});
            QApplication::sendEvent(dove, &mossa);
        }
        QTest::mouseRelease(dove, Qt::LeftButton, {}, QPoint(a, 5));
        QTest::qWait(1);
    };
    const int bordo = testata.sectionViewportPosition(3) - 1;
    premi(bordo, bordo + 60);
    const std::vector<ColonnaScelta>& scelte = form->opzioni().vista().colonne;
    ASSERT_EQ(scelte.size(), 8U);
    EXPECT_GT(scelte[2].caratteri, 12);
    EXPECT_EQ(scelte[1].caratteri, 0);
    const int larghezza = larga(Colonna::Numero);
    const int meta = testata.sectionViewportPosition(5) + 20;
    premi(meta, testata.sectionViewportPosition(0) + 5);
    EXPECT_TRUE(intestazioni().startsWith(u"Importo Registr.")) << qPrintable(intestazioni());
    apri();
    EXPECT_TRUE(intestazioni().startsWith(u"Importo Registr."));
    EXPECT_NEAR(larga(Colonna::Numero), larghezza, 8);
}

TEST_F(VistaElencoTest, MolteColonneScorronoELeScritteLeSeguono) {
    VistaRegistro tutte;
    for (int i = 0; i < colonneElenco; ++i)
        tutte.colonne.push_back({enumeratore<Colonna>(i), 0});
    form->opzioni().cambiaVista(tutte);
    apri();
    QScrollBar* barra = griglia->horizontalScrollBar();
    ASSERT_GT(barra->maximum(), 0);
    auto* riordina = controllo(*vista, u"srx(4)"_s);
    const int prima = riordina->x();
    barra->setValue(50);
    EXPECT_EQ(riordina->x(), prima - 50);
    foto(*vista, u"registro_tutte"_s);
}

TEST_F(VistaElencoTest, LElencoSiEsportaComeSiVede) {
    const QTemporaryDir cartella;
    const QString file = cartella.filePath(u"elenco"_s);
    const auto esporta = [&](const QString& filtro) {
        QTimer attende;
        attende.callOnTimeout(&attende, [&] {
            auto* dialogo = vista->findChild<QFileDialog*>(u"salvaTabella"_s);
            if (!dialogo || !dialogo->isVisible())
                return;
            attende.stop();
            dialogo->selectNameFilter(filtro);
            Q_EMIT dialogo->filterSelected(filtro);
            dialogo->findChild<QLineEdit*>()->setText(file);
            tasto(*dialogo, Qt::Key_Return);
        });
        attende.start(20);
        vista->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(vista.get()));
        tasto(*vista, Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    };
    form->opzioni().cerca(u"11"_s);
    esporta(u"Foglio di calcolo (*.csv)"_s);
    QFile csv(file + u".csv"_s);
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    EXPECT_EQ(csv.readAll().toStdString(),
              "\xEF\xBB\xBFRegistr.;Data reg.;Fattura;Data;Cliente;Importo;PA;PDF\r\n"
              "11;15/03/2015;11;10/11/2015;Rossi Forniture Srl;1342,00;;\r\n");
    esporta(u"PDF (*.pdf)"_s);
    QFile pdf(file + u".pdf"_s);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly)) << qPrintable(QDir(cartella.path()).entryList().join(u' '));
    EXPECT_TRUE(pdf.readAll().startsWith("%PDF-"));
}

} // namespace
} // namespace bor
