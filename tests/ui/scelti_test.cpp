// The commands on the documents chosen in the register, as an operator gives them: question, progress,
// report.
#include "common/registroposta.h"
#include "document/identita.h"
#include "support/programmaintero.h"
#include "ui/finestralotto.h"
#include "ui/finestrarapporto.h"
#include "ui/gesti.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

/// Three documents, the second deleted; none has lines.
class SceltiTest : public testing::Test, protected ProgrammaIntero {
protected:
    SceltiTest() {
        azienda.cliente(u"Alfa"_s);
        for (int i = 1; i <= 3; ++i) {
            CoppiaFte coppia = documentoDi(1, QString::number(i), 100 * i, 22 * i);
            coppia.fte.annullata = i == 2 ? 1 : 0;
            coppia.fte.stamp = i;
            azienda.documento(coppia);
        }
        avvia();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&finestra));
        registro().findChild<QTableView*>(u"elenco"_s)->setFocus();
    }
    Vista& registro() { return vista(Schermo::Borfte); }
    template <class W>
    W* aperta() {
        for (QDialog* dialogo : finestra.findChildren<QDialog*>())
            if (auto* trovata = dynamic_cast<W*>(dialogo); trovata && trovata->isVisible())
                return trovata;
        return nullptr;
    }
    FinestraLotto* chiede(Qt::Key comando) {
        tasto(finestra, Qt::Key_A, Qt::ControlModifier);
        tasto(finestra, comando, Qt::ControlModifier);
        auto* lotto = aperta<FinestraLotto>();
        EXPECT_TRUE(lotto && QTest::qWaitForWindowActive(lotto));
        return lotto;
    }
    FinestraRapporto* rapporto() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return aperta<FinestraRapporto>() != nullptr; }));
        return aperta<FinestraRapporto>();
    }
};

TEST_F(SceltiTest, DallaDomandaAlRapportoCheApreIlDocumento) {
    FinestraLotto* lotto = chiede(Qt::Key_P);
    ASSERT_TRUE(lotto);
    EXPECT_TRUE(testoDi(*lotto, u"domanda"_s).startsWith(u"Stampare 2 documenti"_s));
    EXPECT_TRUE(testoDi(*lotto, u"domanda"_s).endsWith(u": è eliminato"_s));
    EXPECT_TRUE(lotto->findChild<QCheckBox*>(u"unica"_s)->isChecked());
    foto(*lotto, u"scelti_domanda"_s);
    QTest::keyClick(lotto->windowHandle(), Qt::Key_Return);
    FinestraRapporto* esito = rapporto();
    ASSERT_TRUE(esito);
    EXPECT_EQ(testoDi(*esito, u"conto"_s), u"Esito: 3 non fatti"_s);
    auto* elenco = esito->findChild<QTableView*>(u"elencoRapporto"_s);
    EXPECT_EQ(elenco->model()->index(0, 3).data().toString(), u"non ha righe: non c'è nulla da stampare"_s);
    foto(*esito, u"scelti_rapporto"_s);
    QTest::mouseClick(esito->findChild<QPushButton*>(u"copia"_s), Qt::LeftButton);
    EXPECT_EQ(QGuiApplication::clipboard()->text().count(u'\n'), 4);

    QTest::mouseClick(esito->findChild<QPushButton*>(u"apri"_s), Qt::LeftButton);
    EXPECT_TRUE(vista(Schermo::Borftea).isVisible());
    EXPECT_EQ(modulo->documento().recordfattura, 1);
    // It stays open; but a document in hand is not left for another one.
    elenco->selectRow(2);
    QTest::mouseClick(esito->findChild<QPushButton*>(u"apri"_s), Qt::LeftButton);
    EXPECT_EQ(modulo->documento().recordfattura, 1);
    EXPECT_TRUE(operatore.messaggi.back().testo.startsWith(u"Tornate prima al registro"_s));
}

TEST_F(SceltiTest, ChiCiRipensaNonFaNullaESenzaDocumentiSiDice) {
    FinestraLotto* lotto = chiede(Qt::Key_K);
    ASSERT_TRUE(lotto);
    QTest::keyClick(lotto->windowHandle(), Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_EQ(aperta<FinestraLotto>(), nullptr);
    EXPECT_EQ(aperta<FinestraRapporto>(), nullptr);
    finestra.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&finestra));
    auto* elenco = registro().findChild<QTableView*>(u"elenco"_s);
    elenco->setCurrentIndex(elenco->model()->index(1, 0));
    tasto(finestra, Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(operatore.messaggi.back().testo.contains(u"è eliminato"_s));
    elenco->clearSelection();
    tasto(finestra, Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(operatore.messaggi.back().testo.startsWith(u"Nessun documento scelto."_s));
    EXPECT_EQ(aperta<FinestraLotto>(), nullptr);
    tasto(finestra, Qt::Key_F4);
    const auto* menu = registro().findChild<QMenu*>(u"menuScelti"_s);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(menu->activeAction()->text(), u"&Stampa\tCtrl+P"_s);
}

TEST_F(SceltiTest, IlDocumentoMostraLaPostaSpedita) {
    const Percorsi& percorsi = azienda.percorsi();
    const DocumentoPosta terzo{u"3"_s, u"15/03/2015"_s, 3};
    RegistroPosta registroPosta(percorsi, 7);
    registroPosta.aggiungi({orologio.adesso(), terzo, u"\\pdf\\ftr3.pdf"_s, u"a@b.example"_s});
    registroPosta.aggiungi({orologio.adesso(),
                            {},
                            u"\\pdf\\ftr3.pdf"_s,
                            u"a@b.example"_s,
                            StatoPosta::NonSpedita,
                            u"il server non risponde"_s});
    registroPosta.aggiungi({orologio.adesso(), {u"1"_s, u"15/03/2015"_s, 1}, u"x"_s, u"altro@b.example"_s});
    tasto(finestra, Qt::Key_End);
    tasto(finestra, Qt::Key_Return);
    tasto(finestra, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    const auto* elenco = vista(Schermo::Borftea).findChild<QTableWidget*>(u"elencoPosta"_s);
    ASSERT_TRUE(elenco && elenco->isVisible());
    ASSERT_EQ(elenco->rowCount(), 1);
    EXPECT_EQ(elenco->item(0, 0)->text(), u"15/03/2015 10:30"_s);
    EXPECT_EQ(elenco->item(0, 2)->text(), u"non spedita: il server non risponde"_s);
}

} // namespace
} // namespace bor
