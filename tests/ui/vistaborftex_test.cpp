#include "document/borftex.h"
#include "document/filerighe.h"
#include "document/righeinsospeso.h"
#include "document/righeiva.h"
#include "ui/schermodiprova.h"
#include "ui/vistaborftex.h"

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QListView>
#include <QListWidget>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class VistaRigheTest : public SchermoDiProva<Borftex, VistaBorftex> {
protected:
    VistaRigheTest() {
        Cli c = clienteDi(u"Rossi"_s);
        c.sconto1 = 5;
        azienda.cliente(c);
        azienda.articolo(articoloDi(u"VITE"_s, u"Vite a legno"_s, 1.25, 1));
        azienda.articolo(articoloDi(u"DADO"_s, u"Dado esagonale"_s, 0.8, 2));
        azienda.articolo(articoloDi(u"PERNO"_s, u"Perno temprato"_s, 12.4, 1));
        apriForm();
        documento.recordcliente = 1;
        prova->tabelle.aliquote[1] = {u"22"_s, u"20"_s, {}, {}};
        prova->tabelle.aliquote[2] = {u"10"_s, {}, {}, {}};
        prova->tabelle.esenzioni[3].testo = u"Esente art.10"_s;
        documento.estremi.numero = u"12"_s;
        apriVista();
    }

    /// From the code box of a row to that of the next one, by Enter alone.
    void digita(const QString& codice, const QString& quantita, const QString& sc1, const QString& sc2) {
        for (const QString& testo : {codice, quantita, sc1, sc2, QString()})
            scriviEInvio(testo);
    }
    void libera(const QString& descrizione, const QString& um, const QString& quantita,
                const QString& prezzo) {
        for (const QString& testo : {QString(), descrizione, um, quantita, QString(), QString(), prezzo})
            scriviEInvio(testo);
    }
    void scriviEInvio(const QString& testo) {
        scrivi(*vista, testo);
        tasto(*vista, Qt::Key_Return);
    }
};

TEST_F(VistaRigheTest, RigheCopiateEIncollateConITasti) {
    mostra(*vista);
    digita(u"vite"_s, u"100"_s, {}, {});
    libera(u"Montaggio"_s, u"h"_s, u"2,5"_s, u"40,00"_s);
    QClipboard& appunti = *QGuiApplication::clipboard();
    controllo(*vista, u"artic(0)"_s)->setFocus(Qt::TabFocusReason);
    tasto(*vista, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(appunti.text(), u"VITE") << "the selected text of the box";
    tasto(*vista, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(*vista), u"artic(1)"_s);
    EXPECT_TRUE(controllo(*vista, u"ds(0)"_s)->property("scelta").toBool());
    foto(*vista, u"righe_scelte"_s);
    tasto(*vista, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(appunti.text(),
              u"VITE\tVite a legno\tpz\t100\t5\t\t1,25\t01\n\tMontaggio\th\t2,5\t5\t\t40\t01\n");
    tasto(*vista, Qt::Key_V, Qt::ControlModifier);
    EXPECT_FALSE(controllo(*vista, u"ds(0)"_s)->property("scelta").toBool());
    EXPECT_EQ(fuoco(*vista), u"artic(3)"_s);
    EXPECT_EQ(testoDi(*vista, u"ds(1)"_s) + testoDi(*vista, u"ds(2)"_s), u"Vite a legnoMontaggio"_s);

    appunti.setText(u"DADO\t\t\tdieci\nPERNO\t\t\t10\n"_s);
    for (const Qt::Key risposta : {Qt::Key_Escape, Qt::Key_Return}) {
        tasto(*vista, Qt::Key_V, Qt::ControlModifier);
        auto* finestra = vista->window()->findChild<QDialog*>(u"incolla"_s);
        ASSERT_TRUE(finestra);
        EXPECT_TRUE(testoDi(*finestra, u"rilieviRiga"_s).contains(u"\"dieci\" non è un numero"_s));
        EXPECT_EQ(testoDi(*vista, u"ds(3)"_s), u"Montaggio"_s) << "nothing goes in unasked";
        foto(*finestra, u"righe_da_incollare"_s);
        tasto(*finestra, risposta);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(testoDi(*vista, u"ds(3)"_s) + testoDi(*vista, u"quantita(3)"_s), u"Dado esagonale"_s);
    EXPECT_EQ(testoDi(*vista, u"quantita(4)"_s), u"10"_s);

    appunti.setText(u"Vite\n"_s);
    controllo(*vista, u"ds(7)"_s)->setFocus();
    tasto(*vista, Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(testoDi(*vista, u"ds(7)"_s).startsWith(u"Vite"_s)) << "one cell goes into the box";
}

TEST_F(VistaRigheTest, DalloStoricoPrezzoEScontiConInvio) {
    CoppiaFte coppia = documentoDi(1, u"3"_s, 100, 22);
    coppia.fte.nfile = 3;
    azienda.documento(coppia);
    Documento venduto;
    venduto.coppia = coppia;
    venduto.ddd[0] = {.recart = 1, .sconto1 = 12, .iva = 1, .quantita = 4, .prezzo = 1.1};
    ASSERT_TRUE(scrividoc(venduto, prova->archivio));
    const RigheInSospeso sospese;
    Storico storico(prova->contesto, sospese, {});
    vista->usa(storico);
    mostra(*vista);
    digita(u"vite"_s, u"100"_s, {}, {});
    controllo(*vista, u"artic(0)"_s)->setFocus();
    for (const Qt::Key risposta : {Qt::Key_Escape, Qt::Key_Return}) {
        vista->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(vista.get()));
        tasto(*vista, Qt::Key_H, Qt::ControlModifier);
        auto* finestra = vista->window()->findChild<QDialog*>(u"storico"_s);
        ASSERT_TRUE(finestra);
        EXPECT_TRUE(testoDi(*finestra, u"totaliCliente"_s).startsWith(u"Documenti: 1, totale 122,00"_s));
        EXPECT_EQ(testoDi(*finestra, u"statoStorico"_s), u"Ultime vendite dell'articolo al cliente: 1"_s);
        EXPECT_EQ(testoDi(*vista, u"sc1(0)"_s), u"5"_s);
        foto(*finestra, u"storico"_s);
        tasto(*finestra, risposta);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(testoDi(*vista, u"prezzo(0)"_s) + u' ' + testoDi(*vista, u"sc1(0)"_s), u"1.1 12"_s);
    EXPECT_EQ(testoDi(*vista, u"quantita(0)"_s), u"100"_s);
}

TEST_F(VistaRigheTest, DieciRigheConISoliTasti) {
    mostra(*vista);
    EXPECT_EQ(fuoco(*vista), u"artic(0)"_s);
    digita(u"vite"_s, u"100"_s, {}, {});
    digita(u"d"_s, u"250"_s, u"10"_s, u"10"_s);
    libera(u"Montaggio città"_s, u"h"_s, u"2,5"_s, u"40,00"_s);
    libera(u"Consegna al piano"_s, {}, {}, {});
    for (int i = 0; i < 6; ++i)
        digita(u"PE"_s, QString::number(i + 1), u"50"_s, {});
    EXPECT_EQ(fuoco(*vista), u"artic(10)"_s);
    EXPECT_EQ(testoDi(*vista, u"sc1(0)"_s), u"5"_s);
    EXPECT_EQ(testoDi(*vista, u"prezzo(2)"_s), u"40"_s);
    EXPECT_EQ(testoDi(*vista, u"civ(2)"_s), u"01"_s);
    EXPECT_EQ(testoDi(*vista, u"ds(3)"_s), u"Consegna al piano"_s);
    QStringList riga;
    for (const QString& colonna : {u"numero"_s, u"aliquota"_s, u"importo"_s}) {
        for (const int linea : {1, 3})
            riga.append(testoDi(*vista, u"%1(%2)"_s.arg(colonna).arg(linea)));
    }
    EXPECT_EQ(riga, (QStringList{u"2"_s, u"4"_s, u"10%"_s, {}, u"162,00"_s, {}}));
    // 118.75 + 162.00 + 95.00 + 6.20 * 21
    EXPECT_EQ(testoDi(*vista, u"tota(0)"_s), u" 505,95"_s);
    EXPECT_EQ(testoDi(*vista, u"tota(1)"_s), u" 597,82"_s);
    EXPECT_EQ(testoDi(*vista, u"tota(2)"_s), u" 373.5"_s);
    EXPECT_EQ(testoDi(*vista, u"imr"_s), u"68.79"_s);
    foto(*vista, u"righe"_s);
    tasto(*vista, Qt::Key_F10);
    EXPECT_EQ(importoIva(documento.coppia, VoceIva::Imponibile, 1), 343.95);
    EXPECT_EQ(importoIva(documento.coppia, VoceIva::Imposta, 2), 16.2);
    EXPECT_EQ(documento.ddd[2].descrizione, u"Montaggio città"_s);
    EXPECT_EQ(prova->navigatore.mostrati, QList{Schermo::Borftea});
}

TEST_F(VistaRigheTest, CodiceIvaDallaListaEDescrizioneConF1) {
    mostra(*vista);
    libera(u"Trasporto"_s, {}, u"1"_s, u"10"_s);
    tasto(*vista, Qt::Key_Tab, Qt::ShiftModifier); // from the next row back to the VAT box
    EXPECT_EQ(fuoco(*vista), u"civ(0)"_s);
    auto* lista = controllo<QListWidget>(*vista, u"Combo1"_s);
    EXPECT_TRUE(lista->isVisible());
    EXPECT_EQ(lista->currentItem()->text(), u"01 Iva 22% - Rit.Acconto 20%"_s);
    foto(*vista, u"codici_iva"_s);
    scrivi(*vista, u"15"_s);
    tasto(*vista, Qt::Key_Return);
    EXPECT_FALSE(lista->isVisible());
    EXPECT_EQ(fuoco(*vista), u"prezzo(0)"_s);
    EXPECT_EQ(testoDi(*vista, u"civ(0)"_s), u"15"_s);
    tasto(*vista, Qt::Key_Return);
    tasto(*vista, Qt::Key_Return);
    scrivi(*vista, u"perno"_s);
    tasto(*vista, Qt::Key_F1);
    EXPECT_EQ(testoDi(*vista, u"artic(1)"_s), u"PERNO"_s);
    EXPECT_EQ(fuoco(*vista), u"quantita(1)"_s);
    EXPECT_TRUE(testoDi(*vista, u"listx"_s).startsWith(u"PERNO           - Perno temprato"));
}

TEST_F(VistaRigheTest, ListaScorrimentoEComandi) {
    for (int i = 0; i < 500; ++i)
        documento.ddd[static_cast<std::size_t>(i)] = {0, {}, {}, u"riga %1"_s.arg(i + 1), u"pz"_s, 0, 0, 1,
                                                      1, 1,  0};
    mostra(*vista);
    foto(*vista, u"righe_piene"_s);
    auto* lista = controllo<QListView>(*vista, u"List1"_s);
    EXPECT_TRUE(lista->isVisible());
    scrivi(*vista, u"v"_s);
    EXPECT_EQ(lista->currentIndex().row(), 2);
    const QRect voce = lista->visualRect(lista->model()->index(0, 0));
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, voce.center());
    EXPECT_EQ(testoDi(*vista, u"artic(0)"_s), u"DADO"_s);
    controllo<QScrollBar>(*vista, u"VScroll1"_s)->setValue(489);
    EXPECT_EQ(testoDi(*vista, u"ds(11)"_s), u"riga 500"_s);
    controllo(*vista, u"quantita(11)"_s)->setFocus();
    tasto(*vista, Qt::Key_F8);
    EXPECT_EQ(testoDi(*vista, u"ds(11)"_s), QString());
    tasto(*vista, Qt::Key_PageUp);
    EXPECT_EQ(testoDi(*vista, u"ds(0)"_s), u"riga 477"_s);
    clic(*vista, u"barcode"_s);
    EXPECT_FALSE(lista->isVisible());
    tasto(*vista, Qt::Key_F3);
    EXPECT_TRUE(lista->isVisible());
    tasto(*vista, Qt::Key_Escape);
    EXPECT_EQ(prova->navigatore.mostrati, QList{Schermo::Borftea});
    vista->attiva();
    vista->attiva(); // the box that gets the focus has it already
    scrivi(*vista, u"nota"_s);
    tasto(*vista, Qt::Key_F7);
    EXPECT_EQ(testoDi(*vista, u"ds(1)"_s), u"riga 1"_s);
    EXPECT_EQ(documento.ddd[0].codice, QString()) << "leaving keeps the document as it was";
}

TEST_F(VistaRigheTest, UnCodiceCheNessunoHaDigitatoNonSceglie) {
    mostra(*vista);
    for (const QString& testo : {u"vite"_s, u"100"_s, QString(), QString(), u"2"_s})
        scriviEInvio(testo);
    for (const bool lettore : {false, true}) {
        if (lettore)
            clic(*vista, u"barcode"_s);
        controllo(*vista, u"artic(0)"_s)->setFocus();
        tasto(*vista, Qt::Key_Return);
        EXPECT_EQ(fuoco(*vista), u"quantita(0)"_s);
        EXPECT_EQ(testoDi(*vista, u"prezzo(0)"_s), u"2"_s) << "the typed price stays";
    }
    EXPECT_TRUE(prova->operatore.messaggi.isEmpty());
}

TEST_F(VistaRigheTest, FrecceEControlFineMuovonoFraLeRighe) {
    for (int i = 0; i < 14; ++i)
        documento.ddd[static_cast<std::size_t>(i)] = {1, {}, u"VITE"_s, u"riga %1"_s.arg(i + 1), {}, 0, 0, 1,
                                                      1, 1,  0};
    mostra(*vista);
    controllo(*vista, u"quantita(0)"_s)->setFocus();
    tasto(*vista, Qt::Key_Up);
    EXPECT_EQ(fuoco(*vista), u"quantita(0)"_s) << "no row above the first";
    for (int i = 0; i < 12; ++i)
        tasto(*vista, Qt::Key_Down);
    EXPECT_EQ(fuoco(*vista), u"quantita(11)"_s);
    EXPECT_EQ(testoDi(*vista, u"numero(11)"_s), u"13"_s);
    scrivi(*vista, u"7"_s);
    EXPECT_EQ(form->righe().riga(13).quantita, 7);
    tasto(*vista, Qt::Key_Up);
    EXPECT_EQ(fuoco(*vista), u"quantita(10)"_s);
    EXPECT_FALSE(testoDi(*vista, u"listx"_s).startsWith(u"Riga senza"));
    tasto(*vista, Qt::Key_Tab, Qt::ShiftModifier);
    tasto(*vista, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(*vista), u"ds(10)"_s);
    EXPECT_EQ(testoDi(*vista, u"listx"_s), u"Riga senza articolo: non muoverà il magazzino"_s);
    tasto(*vista, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(fuoco(*vista), u"artic(11)"_s);
    EXPECT_EQ(testoDi(*vista, u"numero(11)"_s), u"15"_s);
    EXPECT_EQ(testoDi(*vista, u"ds(10)"_s), u"riga 14"_s);
}

TEST_F(VistaRigheTest, UnArticoloCheNonCESiVedeSubito) {
    mostra(*vista);
    auto* codice = controllo<QLineEdit>(*vista, u"artic(0)"_s);
    scrivi(*vista, u"p"_s);
    EXPECT_FALSE(codice->property("errato").toBool());
    scrivi(*vista, u"x"_s);
    EXPECT_TRUE(codice->property("errato").toBool());
    tasto(*vista, Qt::Key_Return);
    EXPECT_EQ(prova->operatore.messaggi.size(), 1);
    EXPECT_EQ(codice->text(), u"px"_s);
    EXPECT_EQ(codice->accessibleDescription(), u"Articolo non esistente"_s);
    foto(*vista, u"articolo_non_esistente"_s);
    tasto(*vista, Qt::Key_Backspace);
    EXPECT_FALSE(codice->property("errato").toBool());
}

TEST_F(VistaRigheTest, F1AncoraPassaAlProssimoArticolo) {
    Prx prx = vuoto<Prx>();
    prx.riga[0].set(u"rettificato");
    prx.marca = Prx::marcaValida;
    prova->archivio.prx.scrivi(3, prx);
    azienda.articolo(articoloDi(u"SPINA"_s, u"Perno lungo"_s, 3, 1));
    mostra(*vista);
    tasto(*vista, Qt::Key_Return);
    scrivi(*vista, u"perno"_s);
    QStringList trovati;
    for (int volta = 0; volta < 3; ++volta) {
        tasto(*vista, Qt::Key_F1);
        trovati << testoDi(*vista, u"artic(0)"_s) << testoDi(*vista, u"ds(1)"_s);
        EXPECT_EQ(fuoco(*vista), u"quantita(0)"_s);
    }
    EXPECT_EQ(trovati,
              (QStringList{u"PERNO"_s, u"rettificato"_s, u"SPINA"_s, {}, u"PERNO"_s, u"rettificato"_s}));
    scrivi(*vista, u"4"_s);
    tasto(*vista, Qt::Key_F1);
    EXPECT_EQ(testoDi(*vista, u"quantita(0)"_s), u"4"_s) << "work in the row ends the search";
}

TEST_F(VistaRigheTest, EscChiedeSoloSeSiEDigitatoQualcosa) {
    mostra(*vista);
    tasto(*vista, Qt::Key_Escape);
    EXPECT_TRUE(prova->operatore.domande.isEmpty());
    EXPECT_EQ(prova->navigatore.mostrati.size(), 1);
    vista->attiva();
    digita(u"vite"_s, u"1"_s, {}, {});
    prova->operatore.risposte = {false, true};
    tasto(*vista, Qt::Key_Escape);
    EXPECT_EQ(prova->navigatore.mostrati.size(), 1) << "No stays";
    clic(*vista, u"comando(0)"_s);
    EXPECT_EQ(prova->navigatore.mostrati.size(), 2);
    ASSERT_EQ(prova->operatore.domande.size(), 2);
    EXPECT_EQ(prova->operatore.domande[0].testo,
              u"Le modifiche non registrate andranno perse. Uscire comunque?"_s);
    EXPECT_EQ(prova->operatore.domande[0].predefinita, Predefinita::No);
    vista->attiva();
    tasto(*vista, Qt::Key_Escape);
    EXPECT_EQ(prova->operatore.domande.size(), 2) << "the lines were opened anew";
}

} // namespace
} // namespace bor
