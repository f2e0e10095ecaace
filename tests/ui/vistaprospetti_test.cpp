// The lists over all documents, as a person comes to them from the register and goes on from there.
#include "archive/raffica.h"
#include "support/programmaintero.h"
#include "ui/gesti.h"
#include "ui/graficomesi.h"

#include <QComboBox>
#include <QMenu>
#include <QProgressBar>
#include <QTableView>
#include <QToolButton>

#include <memory>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class VistaProspettiTest : public testing::Test, protected ProgrammaIntero {
protected:
    VistaProspettiTest() {
        const int rossi = azienda.cliente(u"Rossi"_s);
        const int bianchi = azienda.cliente(u"Bianchi"_s);
        for (int n = 1; n <= 6; ++n) {
            CoppiaFte c = documentoDi(n % 2 ? rossi : bianchi, QString::number(n), 100.0 * n, 22.0 * n);
            c.fte.rata[0] = 122.0 * n;
            c.fte.scad[0].set(QString::number(10 + n) + u"042015"_s);
            c.fte.tipo = n == 6 ? 1 : 0;
            c.fte.stamp = n;
            azienda.documento(c);
        }
        avvia();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&finestra));
        tasto(finestra, Qt::Key_S, Qt::ControlModifier);
        QApplication::processEvents();
    }
    QString cella(Schermo schermo, int riga, int colonna) {
        return controllo<QTableView>(vista(schermo), u"elenco"_s)
            ->model()
            ->index(riga, colonna)
            .data()
            .toString();
    }

    Schermo scadenzario = Schermo::Scadenzario;
};

TEST_F(VistaProspettiTest, LeScelteRestanoPerLAzienda) {
    controllo(vista(scadenzario), u"gruppi"_s)->setFocus(Qt::TabFocusReason);
    tasto(vista(scadenzario), Qt::Key_Down);
    EXPECT_EQ(MemoriaProspetti(azienda.percorsi(), 7).scadenzario().gruppi, GruppiScadenze::PerCliente);
    const VistaRegistro voluta{{.genere = GenereDocumento::NoteDiCredito}, {}};
    modulo->borfte().opzioni().cambiaVista(voluta);
    EXPECT_EQ(MemoriaVista(azienda.percorsi(), 7).leggi(), voluta);
}

TEST_F(VistaProspettiTest, DallaTastieraSiSceglieSiApreESiTorna) {
    Vista& vista = this->vista(scadenzario);
    ASSERT_TRUE(vista.isVisible());
    foto(finestra, u"scadenzario"_s);
    EXPECT_EQ(fuoco(vista), u"elenco"_s);
    EXPECT_EQ(testoDi(vista, u"riepilogo"_s), u"In scadenza: 6 rate, 1.098,00"_s);
    controllo(vista, u"dal"_s)->setFocus(Qt::TabFocusReason);
    scrivi(vista, u"120415"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(testoDi(vista, u"dal"_s), u"12/04/2015"_s);
    EXPECT_EQ(controllo<QComboBox>(vista, u"periodo"_s)->currentText(), u"Dal … al …"_s);
    controllo(vista, u"cliente"_s)->setFocus(Qt::TabFocusReason);
    scrivi(vista, u"ross"_s);
    EXPECT_EQ(testoDi(vista, u"riepilogo"_s), u"In scadenza: 2 rate, 976,00"_s);
    for (int i = 0; i < 4; ++i)
        tasto(vista, Qt::Key_Return);
    ASSERT_EQ(fuoco(vista), u"elenco"_s);
    tasto(vista, Qt::Key_End);
    tasto(vista, Qt::Key_Return);
    EXPECT_TRUE(vista.isVisible()) << "a total opens nothing";
    tasto(vista, Qt::Key_Up);
    tasto(vista, Qt::Key_Return);
    EXPECT_TRUE(this->vista(Schermo::Borftea).isVisible());
    EXPECT_EQ(modulo->documento().recordfattura, 5);
    tasto(finestra, Qt::Key_Escape);
    ASSERT_TRUE(this->vista(Schermo::Borfte).isVisible());
    tasto(finestra, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(testoDi(vista, u"cliente"_s), u"ross"_s);
    EXPECT_EQ(cella(scadenzario, controllo<QTableView>(vista, u"elenco"_s)->currentIndex().row(), 2), u"5"_s);
    tasto(finestra, Qt::Key_Escape);
    EXPECT_TRUE(this->vista(Schermo::Borfte).isVisible());
}

TEST_F(VistaProspettiTest, UnDocumentoCheNonCEPiuNonNeApreUnAltro) {
    ContestoDiProva altro(azienda);
    CoppiaFte c = altro.archivio.leggi(2);
    c.fte.numero.set(u"99"_s);
    altro.archivio.scrivi(1, c);
    tasto(finestra, Qt::Key_Return);
    EXPECT_TRUE(vista(scadenzario).isVisible());
    ASSERT_EQ(operatore.messaggi.size(), 1);
    EXPECT_TRUE(
        operatore.messaggi[0].testo.startsWith(u"Il documento n. 1 del 15/03/2015 non è più dove era"_s));
    tasto(finestra, Qt::Key_F5);
    EXPECT_EQ(testoDi(vista(scadenzario), u"riepilogo"_s), u"In scadenza: 6 rate, 1.220,00"_s);
}

TEST_F(VistaProspettiTest, ChiScriveNonFermaLoSchermoEdEscFermaLaLettura) {
    ContestoDiProva altro(azienda);
    auto raffica = std::make_unique<Raffica>(altro.archivio, QString());
    tasto(finestra, Qt::Key_F5);
    Vista& vista = this->vista(scadenzario);
    EXPECT_TRUE(controllo(vista, u"avanzamento"_s)->isVisible());
    tasto(finestra, Qt::Key_Escape);
    EXPECT_FALSE(controllo(vista, u"avanzamento"_s)->isVisible());
    EXPECT_EQ(testoDi(vista, u"difetto"_s),
              u"Lettura interrotta: mancano i documenti dalla registrazione 1 in poi"_s);
    tasto(finestra, Qt::Key_F5);
    raffica.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !controllo(vista, u"avanzamento"_s)->isVisible(); }));
    EXPECT_FALSE(controllo(vista, u"difetto"_s)->isVisible());
    EXPECT_EQ(testoDi(vista, u"riepilogo"_s), u"In scadenza: 6 rate, 1.098,00"_s);
}

TEST_F(VistaProspettiTest, IDatiMensiliHannoTabellaEGrafico) {
    tasto(finestra, Qt::Key_Escape);
    auto* bottone = controllo<QToolButton>(vista(Schermo::Borfte), u"prospetti"_s);
    ASSERT_EQ(bottone->menu()->actions().size(), 2);
    bottone->menu()->actions()[1]->trigger();
    Vista& vista = this->vista(Schermo::DatiMensili);
    ASSERT_TRUE(vista.isVisible());
    foto(finestra, u"dati-mensili"_s);
    EXPECT_EQ(cella(Schermo::DatiMensili, 2, 3), u"900,00"_s);
    EXPECT_EQ(cella(Schermo::DatiMensili, 12, 0), u"Totale 2015"_s);
    auto* grafico = dynamic_cast<GraficoMesi*>(controllo(vista, u"grafico"_s));
    ASSERT_TRUE(grafico);
    EXPECT_EQ(grafico->accessibleDescription(), u"Marzo: imponibile 900,00, imposta 198,00"_s);
    // March alone has bars, the taxable one first and higher.
    const QImage disegno = grafico->grab().toImage();
    const auto alte = [&](const QColor& colore) {
        int altezza = 0;
        for (int x = 0; x < disegno.width(); ++x) {
            int quanti = 0;
            for (int y = 40; y < disegno.height(); ++y)
                quanti += disegno.pixelColor(x, y) == colore;
            altezza = std::max(altezza, quanti);
        }
        return altezza;
    };
    const int imponibile = alte(QColor(0x1F, 0x6F, 0xB2));
    const int imposta = alte(QColor(0xC8, 0x6A, 0x12));
    EXPECT_GT(imposta, 5);
    EXPECT_NEAR(imponibile, imposta * 900 / 198, 8);
}

} // namespace
} // namespace bor
