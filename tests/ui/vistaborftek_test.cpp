#include "document/borftek.h"
#include "support/azienda.h"
#include "ui/gesti.h"
#include "ui/vistaborftek.h"

#include <QListWidget>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(VistaParcella, UnaParcellaSiScriveDallaTastiera) {
    const AziendaDiProva azienda;
    azienda.scrivi(u"borlano.tpr"_s, "Consulenza fiscale e tributaria\r\n0\r\n0\r\n450.5\r\n\r\n"
                                     "Spese di trasferta\r\n0\r\n80\r\n0\r\n\r\n");
    ContestoDiProva prova(azienda);
    prova.tabelle.aliquote[1] = {u"22"_s, u"20"_s, {}, u"4"_s};
    Documento documento;
    documento.estremi.numero = u"17"_s;
    Borftek form(prova.contesto, documento);
    VistaBorftek vista(form);
    mostra(vista);

    EXPECT_EQ(fuoco(vista), u"artic(0)"_s);
    scrivi(vista, u"010315"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(testoDi(vista, u"artic(0)"_s), u"01/03/2015"_s);
    scrivi(vista, u"Parere scritto"_s);
    tasto(vista, Qt::Key_Return);
    tasto(vista, Qt::Key_Return);
    tasto(vista, Qt::Key_Return);
    scrivi(vista, u"1250,75"_s);
    EXPECT_EQ(testoDi(vista, u"prezzo(0)"_s), u"1250.75"_s) << "a typed comma becomes the point";
    EXPECT_EQ(testoDi(vista, u"tota(2)"_s), u" 1.250,75"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(fuoco(vista), u"artic(1)"_s);

    auto* servizi = controllo<QListWidget>(vista, u"List1"_s);
    servizi->setFocus();
    servizi->setCurrentRow(1);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(testoDi(vista, u"ds(1)"_s), u"Spese di trasferta"_s);
    EXPECT_EQ(testoDi(vista, u"spese(1)"_s), u"80"_s);
    foto(vista, u"parcella"_s);
    tasto(vista, Qt::Key_F10);
    EXPECT_EQ(prova.navigatore.mostrati, QList{Schermo::Borftea});
    EXPECT_EQ(documento.dddp[0].data, u"01/03/2015"_s);
    EXPECT_EQ(documento.dddp[1].spese, 80);
}

TEST(VistaParcella, UnaDataCheNonEsisteSiVedeEdEscChiedeSeSiEDigitato) {
    const AziendaDiProva azienda;
    ContestoDiProva prova(azienda);
    Documento documento;
    Borftek form(prova.contesto, documento);
    VistaBorftek vista(form);
    mostra(vista);
    tasto(vista, Qt::Key_Escape);
    EXPECT_TRUE(prova.operatore.domande.isEmpty());
    EXPECT_EQ(prova.navigatore.mostrati, QList{Schermo::Borftea});
    prova.sessione.righelette = false;
    vista.attiva();
    auto* data = controllo<QLineEdit>(vista, u"artic(0)"_s);
    scrivi(vista, u"3104"_s);
    EXPECT_FALSE(data->property("errato").toBool());
    scrivi(vista, u"2016"_s);
    EXPECT_TRUE(data->property("errato").toBool());
    tasto(vista, Qt::Key_Return);
    EXPECT_TRUE(data->property("errato").toBool()) << "also with its bars";
    foto(vista, u"parcella_data"_s);
    data->setFocus(Qt::TabFocusReason);
    scrivi(vista, u"maggio"_s);
    EXPECT_FALSE(data->property("errato").toBool()) << "any short text may stand there";
    prova.operatore.risposte = {false, true};
    tasto(vista, Qt::Key_Escape);
    EXPECT_EQ(prova.navigatore.mostrati.size(), 1);
    tasto(vista, Qt::Key_Escape);
    EXPECT_EQ(prova.navigatore.mostrati.size(), 2);
    EXPECT_EQ(prova.operatore.domande.value(0).predefinita, Predefinita::No);
}

} // namespace
} // namespace bor
