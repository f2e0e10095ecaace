#include "document/righeinsospeso.h"
#include "support/azienda.h"
#include "support/registrazioni_finte.h"
#include "ui/gesti.h"
#include "ui/vistaborftea.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

struct AziendaConTabelle {
    AziendaConTabelle() {
        Tabelle& t = prova.tabelle;
        t.aliquote[1].aliquota = u"22"_s;
        t.aliquote[2].aliquota = u"10"_s;
        t.aliquote[3].aliquota = u"4"_s;
        t.esenzioni[0].testo = u"01"_s;
        t.esenzioni[1] = {u"Non imponibile art. 8"_s, {}};
        t.esenzioni[2] = {u"Esente art. 10"_s, {}};
        t.esenzioni[12] = {u"Fuori campo"_s, u"Operazioni particolari"_s};
        t.tipopagamenti[1] = {u"Rimessa diretta"_s, u"000"_s};
        t.tipopagamenti[2] = {u"Ricevuta bancaria 30/60/90 giorni"_s, u"001002003"_s};
        t.ricavi[1] = u"Vendita di merci"_s;
        t.ricavi[2] = u"Prestazioni di servizi"_s;
        azienda.scrivi(u"borlano.trb"_s, "1040 Ritenute lavoro autonomo\r\n");
        cliente = azienda.cliente(u"Officine Rossi"_s);
    }

    AziendaDiProva azienda;
    int cliente = 0;
    ContestoDiProva prova{azienda};
};

class VistaDocumento : public testing::Test, protected AziendaConTabelle {
protected:
    QString foglio(const QString& nome) { return testoDi(vista, nome); }
    void in(const QString& nome) { controllo(vista, nome)->setFocus(Qt::TabFocusReason); }
    bool visto(const QString& nome) { return controllo(vista, nome)->isVisible(); }
    CoppiaFte intera() {
        CoppiaFte coppia = documentoDi(1, u"41/A"_s, 1250.5, 275.11);
        coppia.fte.iva[2] = 40;
        coppia.f2e.impon[3] = 1000;
        coppia.f2e.resy2 = 3;
        coppia.f2e.fpa = 2;
        return coppia;
    }

    Documento documento;
    RegistrazioniFinte registrazioni;
    RigheInSospeso sospese;
    Borftea form{prova.contesto,
                 documento,
                 registrazioni,
                 sospese,
                 {.stampa = [] { return true; }, .anteprima = [] {}, .scegliPdf = [] {}, .fatturaPa = [] {}}};
    VistaBorftea vista{form};
};

TEST_F(VistaDocumento, LaProvvigioneHaLaVirgolaELeRigheIvaUnNome) {
    mostra(vista);
    in(u"impon(0)"_s);
    scrivi(vista, u"1.000,00"_s);
    EXPECT_EQ(controllo(vista, u"impon(0)"_s)->accessibleName(), u"Imponibile 22%");
    EXPECT_EQ(controllo(vista, u"esent(1)"_s)->accessibleName(), u"Esenzione Esente art. 10");
    EXPECT_EQ(controllo(vista, u"ivai(5)"_s)->accessibleName(), u"Imposta Non definito, riga 6");
    in(u"pro(0)"_s);
    scrivi(vista, u"2,5"_s);
    EXPECT_EQ(foglio(u"pro(1)"_s), u"25");
    for (int i = 0; i < 3; ++i)
        tasto(vista, Qt::Key_Backspace);
    EXPECT_EQ(foglio(u"pro(0)"_s) + foglio(u"pro(1)"_s), QString());
}

TEST_F(VistaDocumento, CioCheNonVaSiVedeMentreSiDigita) {
    azienda.documento(documentoDi(cliente, u"12"_s, 10, 2.2));
    vista.intesta([] { return u"Fattura"_s; });
    mostra(vista);
    const auto* avvisi = controllo<QLabel>(vista, u"avvisi"_s);
    const auto segnato = [this](const QString& nome) {
        return controllo(vista, nome)->property("errato").toBool();
    };
    in(u"Text2(0)"_s);
    scrivi(vista, u"12"_s);
    EXPECT_TRUE(segnato(u"Text2(0)"_s));
    EXPECT_EQ(avvisi->text(), u"Numero del documento: già usato dal documento 12 del 15/03/2015"_s);
    scrivi(vista, u"3"_s);
    EXPECT_FALSE(segnato(u"Text2(0)"_s));
    EXPECT_FALSE(avvisi->isVisible());
    in(u"dsca(1)"_s);
    scrivi(vista, u"31042016"_s);
    EXPECT_TRUE(segnato(u"dsca(1)"_s));
    EXPECT_EQ(avvisi->text(), u"Data scadenza, 2' rata: questa data non esiste"_s);
    foto(vista, u"documento_avvisi"_s);
    scrivi(vista, u"9"_s);
    EXPECT_FALSE(segnato(u"dsca(1)"_s));

    in(u"esent(1)"_s);
    EXPECT_EQ(foglio(u"vocerigaiva"_s), u"Esenzione Esente art. 10"_s);
    EXPECT_FALSE(visto(u"anticipazioni"_s));
    documento.coppia.fte.parcella = 2;
    documento.dddp[0].anticipazioni = 10;
    scrivi(vista, u"1"_s);
    EXPECT_TRUE(visto(u"anticipazioni"_s));
}

TEST_F(VistaDocumento, DaiTastiAiTotali) {
    mostra(vista);
    EXPECT_EQ(vista.windowTitle(), u"Memorizzazione fattura emessa");
    EXPECT_EQ(vista.width(), 1280) << "every panel fits";
    EXPECT_EQ(fuoco(vista), u"Text2(0)");
    foto(vista, u"documento_nuovo"_s);
    scrivi(vista, u"12/B"_s);
    tasto(vista, Qt::Key_Return);
    scrivi(vista, u"311215"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(foglio(u"text3(1)"_s), u"31/12/2015");
    EXPECT_EQ(foglio(u"dsca(0)"_s), u"31/12/2015");
    EXPECT_EQ(fuoco(vista), u"text3(2)");
    scrivi(vista, u"31122015"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(foglio(u"text3(2)"_s), u"31/12/2015");
    EXPECT_EQ(fuoco(vista), u"Text2(3)");
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(fuoco(vista), u"impon(0)");
    scrivi(vista, u"1000,50"_s);
    EXPECT_EQ(foglio(u"impon(0)"_s), u"1000.50") << "what is being typed is left alone";
    tasto(vista, Qt::Key_Return);
    scrivi(vista, u"220.11"_s);
    tasto(vista, Qt::Key_Return);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(fuoco(vista), u"impon(1)");
    EXPECT_EQ(foglio(u"total(0)"_s), u" 1.000,50");
    EXPECT_EQ(foglio(u"total(3)"_s), u" 1.220,61");
    EXPECT_EQ(foglio(u"sca(0)"_s), u"1220.61");

    tasto(vista, Qt::Key_PageDown);
    EXPECT_EQ(foglio(u"iv(7)"_s), u"Operazioni particolari");
    EXPECT_EQ(foglio(u"impon(0)"_s), u"");
    in(u"esent(7)"_s);
    scrivi(vista, u"79.39"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(fuoco(vista), u"dsca(0)");
    EXPECT_EQ(double{documento.coppia.f2e.esen[3]}, 79.39);
    tasto(vista, Qt::Key_PageUp);
    EXPECT_EQ(controllo<QScrollBar>(vista, u"VScroll1"_s)->value(), 1);
    in(u"Combo1"_s);
    tasto(vista, Qt::Key_Down);
    tasto(vista, Qt::Key_Down);
    EXPECT_EQ(foglio(u"sca(0)"_s), u"433.34");
    EXPECT_EQ(foglio(u"sca(2)"_s), u"433.33");
    EXPECT_EQ(foglio(u"dsca(1)"_s), u"29/02/2016");
    in(u"dsca(1)"_s);
    scrivi(vista, u"01032016"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(foglio(u"dsca(1)"_s), u"01/03/2016");
    foto(vista, u"documento_compilato"_s);

    in(u"dsca(2)"_s);
    scrivi(vista, u"mai"_s);
    in(u"text3(2)"_s);
    scrivi(vista, u"010116"_s);
    tasto(vista, Qt::Key_F10);
    EXPECT_EQ(documento.estremi.datareg, u"01/01/2016") << "a date still being typed is complete when saved";
    ASSERT_EQ(prova.operatore.messaggi.size(), 1);
    EXPECT_EQ(prova.operatore.messaggi[0].testo, u"Una o più date di scadenza non sono valide");
    EXPECT_EQ(fuoco(vista), u"dsca(2)");
    tasto(vista, Qt::Key_Escape);
    EXPECT_EQ(prova.navigatore.mostrati, QList{Schermo::Borfte});
}

TEST_F(VistaDocumento, ProspettiUnoAllaVolta) {
    prova.tabelle.tipiiva[3] = u"0010"_s;
    documento.recordfattura = azienda.documento(intera());
    mostra(vista);
    EXPECT_EQ(vista.windowTitle(), u"Modifica dati fatturaPA emessa");
    EXPECT_EQ(foglio(u"Label3"_s), u"Fattura integrata operazione reverse charge");
    EXPECT_EQ(foglio(u"total(3)"_s), u" 2.565,61");
    foto(vista, u"documento_esistente"_s);
    tasto(vista, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(fuoco(vista), u"raimpo(0)");
    EXPECT_TRUE(visto(u"Frame5"_s) && !visto(u"Frame4"_s));
    scrivi(vista, u"1000"_s);
    tasto(vista, Qt::Key_Return);
    scrivi(vista, u"200,61"_s);
    EXPECT_EQ(foglio(u"sca(0)"_s), u"2365");
    tasto(vista, Qt::Key_Return);
    scrivi(vista, u"160116"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(documento.prospetti.ritenute[0].rascad, u"16/01/2016");
    EXPECT_EQ(controllo<QComboBox>(vista, u"Combo6"_s)->itemText(0), u"1040 Ritenute lavoro autonomo");
    foto(vista, u"documento_ritenute"_s);
    tasto(vista, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(fuoco(vista), u"tmese(0)");
    in(u"tanno(8)"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(fuoco(vista), u"dsca(0)");
    foto(vista, u"documento_ivadifferita"_s);
    clic(vista, u"comando5"_s);
    EXPECT_EQ(fuoco(vista), u"xxiva(0)");
    tasto(vista, Qt::Key_Space);
    EXPECT_TRUE(documento.prospetti.spesometro);
    in(u"Text2(3)"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(fuoco(vista), u"xxiva(0)") << "Enter goes on to the panel in view";
    foto(vista, u"documento_spesometro"_s);

    EXPECT_FALSE(visto(u"Picture1"_s));
    tasto(vista, Qt::Key_F6);
    EXPECT_TRUE(visto(u"Picture1"_s));
    foto(vista, u"documento_pdf"_s);
}

TEST_F(VistaDocumento, RegimeSenzaIvaDifferita) {
    prova.tabelle.esenzioni[0].testo = u"00"_s;
    mostra(vista);
    EXPECT_FALSE(controllo(vista, u"esig"_s)->isEnabled());
    EXPECT_FALSE(controllo(vista, u"bottone(4)"_s)->isEnabled());
    clic(vista, u"comando1"_s);
    ASSERT_EQ(prova.operatore.messaggi.size(), 1);
    EXPECT_EQ(prova.operatore.messaggi[0].testo,
              u"Il regime iva preselezionato non prevede l'iva ad esigibilità differita");
    EXPECT_EQ(prova.operatore.messaggi[0].titolo, u"Attenzione");
    EXPECT_TRUE(visto(u"Frame4"_s));
    EXPECT_FALSE(controllo<QAbstractButton>(vista, u"comando1"_s)->isChecked());
    EXPECT_TRUE(controllo<QAbstractButton>(vista, u"comando2"_s)->isChecked());
}

} // namespace
} // namespace bor
