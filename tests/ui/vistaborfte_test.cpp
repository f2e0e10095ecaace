#include "ui/registroinvista.h"

#include <QClipboard>
#include <QDialog>
#include <QFile>
#include <QGuiApplication>
#include <QPushButton>
#include <QTemporaryDir>

namespace bor {
namespace {

class VistaRegistroTest : public RegistroInVista {
protected:
    VistaRegistroTest() {
        const int rossi = azienda.cliente(QStringLiteral("Rossi Forniture Srl"));
        const int bianchi = azienda.cliente(QStringLiteral("Bianchi Édith & Figli"));
        for (int i = 1; i <= 30; ++i) {
            CoppiaFte c = documentoDi(i % 2 ? rossi : bianchi, QString::number(i), 100.0 * i, 22.0 * i);
            if (i % 5 == 0)
                c.f2e.pdf.set(u"\\suprok\\pdf\\x.pdf");
            if (i % 7 == 0)
                c.f2e.fpa = 3.0;
            azienda.documento(c);
        }
        apri();
    }

    QString cella(int riga, int colonna) const {
        return griglia->model()->index(riga, colonna).data().toString();
    }
};

TEST_F(VistaRegistroTest, DallaTastieraSiSceglieSiOrdinaESiApre) {
    foto(*vista, QStringLiteral("registro"));
    EXPECT_EQ(fuoco(*vista), QStringLiteral("elenco"));
    EXPECT_EQ(cella(0, 5), QStringLiteral("122,00"));
    tasto(*vista, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(cella(0, 4), QStringLiteral("Bianchi Édith & Figli"));
    EXPECT_EQ(cella(0, 0), QStringLiteral("2"));
    tasto(*vista, Qt::Key_Home);
    tasto(*vista, Qt::Key_Down);
    tasto(*vista, Qt::Key_Return);
    EXPECT_EQ(prova->navigatore.mostrati, QList{Schermo::Borftea});
    EXPECT_EQ(documento.recordfattura, 4);
}

TEST_F(VistaRegistroTest, LeInformazioniDiventanoUnTestoPerLAssistenza) {
    const QTemporaryDir casa;
    qputenv("HOME", QFile::encodeName(casa.path()));
    tasto(*vista, Qt::Key_I, Qt::ControlModifier);
    auto* finestra = vista->findChild<QDialog*>(QStringLiteral("finestraInformazioni"));
    ASSERT_TRUE(finestra && finestra->isVisible());
    foto(*finestra, QStringLiteral("informazioni"));
    QTest::mouseClick(finestra->findChild<QPushButton*>(QStringLiteral("assistenza")), Qt::LeftButton);
    QFile file(casa.filePath(QStringLiteral("assistenza-borlano.txt")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString testo = QString::fromUtf8(file.readAll());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), testo);
    EXPECT_TRUE(testo.contains(azienda.percorso({}).chopped(1)));
    EXPECT_FALSE(testo.contains(QStringLiteral("Rossi")));
}

TEST_F(VistaRegistroTest, FiltroEOpzioniRiempionoDiNuovo) {
    clic(*vista, QStringLiteral("visua(1)"));
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.gnr")).at(0), 10);
    EXPECT_EQ(griglia->currentIndex().row(), 29);
    EXPECT_TRUE(griglia->visualRect(griglia->currentIndex()).intersects(griglia->viewport()->rect()));
    clic(*vista, QStringLiteral("srx(1)"));
    EXPECT_EQ(cella(0, 0), QStringLiteral("1"));
    EXPECT_EQ(griglia->currentIndex().row(), 29) << "a sort leaves the cursor in place";
}

TEST_F(VistaRegistroTest, IlRiordinoCambiaIBottoni) {
    auto* fattura = controllo(*vista, QStringLiteral("bottone(3)"));
    auto* perNumero = controllo(*vista, QStringLiteral("bottone(7)"));
    EXPECT_FALSE(perNumero->isVisible());
    tasto(*vista, Qt::Key_F6);
    EXPECT_TRUE(perNumero->isVisible());
    EXPECT_FALSE(fattura->isVisible());
    EXPECT_EQ(testoDi(*vista, QStringLiteral("Label3")),
              QStringLiteral("Seleziona il tipo di riordino da eseguire"));
    foto(*vista, QStringLiteral("registro_riordino"));
    tasto(*vista, Qt::Key_F9);
    EXPECT_TRUE(fattura->isVisible());
    EXPECT_EQ(prova->operatore.domande.size(), 1);
    tasto(*vista, Qt::Key_Escape);
    EXPECT_TRUE(prova->navigatore.terminato);
}

TEST_F(VistaRegistroTest, LaRigaSceltaRestaLoStessoDocumento) {
    tasto(*vista, Qt::Key_Down);
    tasto(*vista, Qt::Key_Down);
    const auto scelto = [this] { return cella(griglia->currentIndex().row(), 0); };
    EXPECT_EQ(scelto(), QStringLiteral("3"));
    tasto(*vista, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(scelto(), QStringLiteral("3"));
    EXPECT_EQ(griglia->currentIndex().row(), 16);
    tasto(*vista, Qt::Key_F5);
    EXPECT_EQ(scelto(), QStringLiteral("3"));
    EXPECT_EQ(griglia->currentIndex().row(), 2);

    // A document added meanwhile, then the way back from one that was opened and saved.
    azienda.documento(documentoDi(1, QStringLiteral("31"), 1, 0));
    documento.recordfattura = 31;
    prova->sessione.listadaaggiornare = true;
    vista->attiva();
    EXPECT_EQ(scelto(), QStringLiteral("31"));
    EXPECT_TRUE(griglia->viewport()->rect().contains(griglia->visualRect(griglia->currentIndex())));
}

TEST_F(VistaRegistroTest, InvioApreIlDocumentoEInizioEFineVannoAgliEstremi) {
    vista->resize(900, 320);
    QApplication::processEvents();
    tasto(*vista, Qt::Key_End);
    EXPECT_EQ(griglia->currentIndex().row(), 29);
    EXPECT_TRUE(griglia->viewport()->rect().contains(griglia->visualRect(griglia->currentIndex())));
    griglia->setCurrentIndex(griglia->model()->index(29, static_cast<int>(Colonna::Pdf)));
    ASSERT_EQ(griglia->currentIndex().data().toString(), QStringLiteral("PDF"));
    tasto(*vista, Qt::Key_Return);
    EXPECT_EQ(prova->navigatore.mostrati, QList{Schermo::Borftea});
    EXPECT_TRUE(prova->sistema.aperti.isEmpty());
    const QPoint qui = griglia->visualRect(griglia->currentIndex()).center();
    QTest::mouseClick(griglia->viewport(), Qt::LeftButton, {}, qui);
    QTest::mouseDClick(griglia->viewport(), Qt::LeftButton, {}, qui);
    EXPECT_EQ(prova->sistema.aperti.size(), 1)
        << prova->operatore.messaggi.size() << qPrintable(griglia->indexAt(qui).data().toString());
    tasto(*vista, Qt::Key_Home);
    EXPECT_EQ(griglia->currentIndex().row(), 0);
    clic(*vista, QStringLiteral("visua(1)"));
    EXPECT_TRUE(griglia->viewport()->rect().contains(griglia->visualRect(griglia->model()->index(29, 0))));
}

TEST_F(VistaRegistroTest, SiScelgonoPiuDocumentiCheRestanoQuelli) {
    const auto scelti = [this] {
        QList<int> record;
        for (const Identita& scelto : form->scelta().documenti())
            record.append(scelto.record);
        return record;
    };
    EXPECT_EQ(scelti(), QList{1});
    tasto(*vista, Qt::Key_Down);
    tasto(*vista, Qt::Key_Down, Qt::ShiftModifier);
    tasto(*vista, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(scelti(), (QList{2, 3, 4}));
    QTest::mouseClick(griglia->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      griglia->visualRect(griglia->model()->index(6, 4)).center());
    EXPECT_EQ(scelti(), (QList{2, 3, 4, 7}));
    // By customer the even ones come first; the rows move, the documents stay. Ctrl, held for the sort, does
    // not turn the cursor's row over.
    tasto(*vista, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(scelti(), (QList{2, 4, 3, 7}));
    EXPECT_EQ(griglia->selectionModel()->selectedRows().size(), 4);
    EXPECT_TRUE(griglia->selectionModel()->isRowSelected(0));

    // Another program has meanwhile put another document into the place of number 4.
    prova->archivio.fte.scrivi(4, documentoDi(1, QStringLiteral("99"), 1, 0).fte);
    tasto(*vista, Qt::Key_F5);
    EXPECT_EQ(scelti(), (QList{2, 3, 7}));
    tasto(*vista, Qt::Key_Home);
    EXPECT_EQ(scelti(), QList{1});
    tasto(*vista, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(scelti().size(), 30);
}

TEST_F(VistaRegistroTest, TuttiSonoQuelliCercatiSenzaLeRigheVuote) {
    tasto(*vista, Qt::Key_F, Qt::ControlModifier);
    scrivi(*vista, QStringLiteral("edith"));
    tasto(*vista, Qt::Key_Down);
    griglia->setCurrentIndex(griglia->model()->index(20, 0));
    EXPECT_TRUE(form->scelta().documenti().empty()) << "a blank row";
    tasto(*vista, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form->scelta().documenti().size(), 15U);
    EXPECT_EQ(form->scelta().documenti().front().record, 2);
    tasto(*vista, Qt::Key_Escape);
    EXPECT_EQ(form->scelta().documenti().size(), 15U);
    EXPECT_EQ(griglia->selectionModel()->selectedRows().size(), 15);
}

TEST_F(VistaRegistroTest, SiCercaScrivendoEdEscRimetteTutto) {
    tasto(*vista, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(fuoco(*vista), QStringLiteral("cerca"));
    scrivi(*vista, QStringLiteral("edith"));
    EXPECT_EQ(cella(0, 0), QStringLiteral("2"));
    EXPECT_EQ(cella(15, 0), QString());
    foto(*vista, QStringLiteral("registro_cerca"));
    tasto(*vista, Qt::Key_Down);
    tasto(*vista, Qt::Key_End);
    EXPECT_EQ(griglia->currentIndex().row(), 14) << "the blank rows below are no documents";
    tasto(*vista, Qt::Key_Return);
    EXPECT_EQ(documento.recordfattura, 30);
    tasto(*vista, Qt::Key_Escape);
    EXPECT_EQ(cella(0, 0), QStringLiteral("1"));
    EXPECT_EQ(cella(griglia->currentIndex().row(), 0), QStringLiteral("30"));
    EXPECT_FALSE(prova->navigatore.terminato);
}

TEST_F(VistaRegistroTest, DopoUnSalvataggioLaRicercaNonNascondeIlDocumento) {
    tasto(*vista, Qt::Key_F, Qt::ControlModifier);
    scrivi(*vista, QStringLiteral("edith"));
    const auto salva = [this](int record) {
        documento.recordfattura = record;
        prova->sessione.listadaaggiornare = true;
        vista->attiva();
        EXPECT_EQ(cella(griglia->currentIndex().row(), 0), QString::number(record));
        return testoDi(*vista, QStringLiteral("cerca"));
    };
    EXPECT_EQ(salva(4), QStringLiteral("edith")) << "it is among those found";
    EXPECT_EQ(salva(17), QString());
}

TEST_F(VistaRegistroTest, CtrlRRiapreLUltimoRegistrato) {
    tasto(*vista, Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(prova->operatore.messaggi.size(), 1);
    EXPECT_TRUE(prova->navigatore.mostrati.isEmpty());
    prova->sessione.ultimosalvato = 17;
    tasto(*vista, Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(documento.recordfattura, 17);
    vista->attiva();
    EXPECT_EQ(cella(griglia->currentIndex().row(), 0), QStringLiteral("17"));
}

TEST_F(VistaRegistroTest, UnDocumentoSenzaRigheHaUnSegnoEUnaNota) {
    CoppiaFte coppia = prova->archivio.leggi(2);
    coppia.fte.nfile = 9;
    prova->archivio.scrivi(2, coppia);
    tasto(*vista, Qt::Key_F5);
    const auto segno = [this](int riga, Colonna colonna) {
        return griglia->model()->index(riga, static_cast<int>(colonna)).data(Qt::DecorationRole).isValid();
    };
    EXPECT_TRUE(segno(1, Colonna::Numero));
    EXPECT_FALSE(segno(0, Colonna::Numero) || segno(1, Colonna::Cliente));
    EXPECT_EQ(testoDi(*vista, QStringLiteral("nota")), QString());
    tasto(*vista, Qt::Key_Down);
    EXPECT_TRUE(testoDi(*vista, QStringLiteral("nota")).startsWith(QStringLiteral("Le righe non sono")));
    foto(*vista, QStringLiteral("registro_nota"));
}

} // namespace
} // namespace bor
