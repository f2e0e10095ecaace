// The fee lines form and the arithmetic of a fee bill.
#include "document/borftek.h"
#include "document/righeiva.h"
#include "document/totaliparcella.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

using Campo = Borftek::Campo;

class Parcella : public testing::Test {
protected:
    Parcella() {
        prova.tabelle.aliquote[1] = {u"22"_s, u"20"_s, {}, u"4"_s};
        prova.tabelle.aliquote[2] = {u"10"_s, {}, u"2"_s, {}};
        prova.tabelle.tipopagamenti[1] = {u"Rimessa diretta"_s, u"000"_s};
        documento.scadenze.pagamento = 0;
    }

    TotaliParcella totali(int ivaono, int ivaspe) {
        documento.testata.pratica.ivaono = ivaono;
        documento.testata.pratica.ivaspe = ivaspe;
        return totaliParcella(documento.dddp, documento.testata.pratica, prova.tabelle,
                              prova.contesto.valuta());
    }

    void prestazioni(const QByteArray& testo) {
        azienda.scrivi(u"borlano.tpr"_s, testo);
        prova.sessione.righelette = false;
        form.attiva();
    }

    AziendaDiProva azienda;
    ContestoDiProva prova{azienda};
    Documento documento;
    Borftek form{prova.contesto, documento};
};

TEST_F(Parcella, ContributiIvaERitenutaDiUnaParcella) {
    documento.dddp[0] = {u"01/03/2015"_s, u"Consulenza"_s, 0, 0, 1000};
    documento.dddp[7] = {{}, u"Trasferta"_s, 150.55, 30, 0};
    const TotaliParcella t = totali(0, 1);
    EXPECT_EQ(t.contributocp, 40);
    EXPECT_EQ(t.contributoci, 3.01);
    EXPECT_EQ(t.ivaonorari, 220);
    EXPECT_EQ(t.ivacp, 8.80);
    EXPECT_EQ(t.ivaspese, 15.06); // 15.055 goes up
    EXPECT_EQ(t.ritenuta, 208);
    EXPECT_EQ(t.baseritenuta, 1040);
    EXPECT_EQ(t.imposta, 220 + 15.06 + 8.80);
    EXPECT_NEAR(t.totaledocumento, 30 + 150.55 + 1000 + 3.01 + 40 + 15.06 + 220 + 8.80, 1e-9);
    EXPECT_NEAR(t.nettodocumento, t.totaledocumento - 208, 1e-9);
    EXPECT_EQ(t.iva.imponibili[1], 1043.01);
    EXPECT_EQ(t.iva.imposte[1], 228.80);
    EXPECT_EQ(t.iva.imponibili[2], 150.55);

    const TotaliParcella stessa = totali(0, 0);
    EXPECT_EQ(stessa.iva.imponibili[1], 1000 + 46.02 + 150.55) << "one regime, one row";
}

TEST_F(Parcella, SoleAnticipazioniNonFannoRigheIva) {
    documento.dddp[3].anticipazioni = 75;
    const TotaliParcella t = totali(0, 0);
    EXPECT_EQ(t.totaledocumento, 75);
    EXPECT_EQ(t.nettodocumento, 75);
    EXPECT_EQ(t.iva.imponibili[1], 0);
}

TEST_F(Parcella, LaConfermaRiportaNelDocumentoELaRitenutaDiversaDiventaUnaRiga) {
    form.attiva();
    form.cambia({Campo::Onorari, 0}, u"1000,50"_s);
    EXPECT_EQ(form.totale(Campo::Onorari), u" 1.000,50"_s);
    documento.prospetti.ritenute[0].raimp = u"10"_s;
    documento.prospetti.ritenute[1].raimp = u"5"_s;
    form.conferma();
    EXPECT_EQ(importoIva(documento.coppia, VoceIva::Imponibile, 1), 1040.52);
    EXPECT_EQ(importoIva(documento.coppia, VoceIva::Imposta, 1), 228.91);
    EXPECT_EQ(documento.prospetti.ritenute[0].raimp, u"208.1"_s);
    EXPECT_EQ(documento.prospetti.ritenute[0].raimpo, u"1040.52"_s);
    EXPECT_EQ(documento.prospetti.ritenute[1].raimp, QString());
    EXPECT_EQ(documento.scadenze.rate[0].importo, u"1061.33"_s);
    EXPECT_EQ(documento.dddp[0].onorari, 1000.5);
    EXPECT_EQ(prova.navigatore.mostrati, QList{Schermo::Borftea});
    EXPECT_FALSE(prova.sessione.righelette);

    documento.prospetti.ritenute[0].raimp = u"200"_s;
    documento.prospetti.ritenute[3].raimp = u"8.1"_s;
    form.conferma();
    EXPECT_EQ(documento.prospetti.ritenute[3].raimp, u"8.1"_s) << "a split with the same sum survives";
}

TEST_F(Parcella, UnaPrestazioneLungaSiSpezzaEGliImportiVannoInFondo) {
    prestazioni(
        "Assistenza e rappresentanza davanti alla commissione tributaria provinciale\r\n1\r\n2\r\n3\r\n\r\n"
        "\r\n0\r\n0\r\n0\r\n\r\n");
    form.cambia({Campo::Data, 2}, u"01/03/2015"_s);
    form.scegliPrestazione(0);
    EXPECT_EQ(form.testo({Campo::Descrizione, 2}), u"Assistenza e rappresentanza davanti alla"_s);
    EXPECT_EQ(form.testo({Campo::Descrizione, 3}), u"commissione tributaria provinciale"_s);
    EXPECT_EQ(form.testo({Campo::Data, 2}), QString());
    EXPECT_EQ(form.testo({Campo::Onorari, 2}), QString());
    EXPECT_EQ(form.testo({Campo::Anticipazioni, 3}), u"1"_s);
    EXPECT_EQ(form.testo({Campo::Onorari, 3}), u"3"_s);

    form.scorri(189);
    form.entra({Campo::Data, 11});
    form.scegliPrestazione(0);
    EXPECT_EQ(form.testo({Campo::Descrizione, 11}), u"commissione tributaria provinciale"_s);
    EXPECT_EQ(form.testo({Campo::Spese, 10}), u"2"_s) << "on the last line the amounts go to the line before";
    form.scegliPrestazione(1);
    form.scegliPrestazione(50);
    EXPECT_EQ(form.testo({Campo::Descrizione, 11}), u"commissione tributaria provinciale"_s);
}

TEST_F(Parcella, LeRigheSiMuovonoELaTastieraArrivaAllaRiga190) {
    form.attiva();
    form.cambia({Campo::Descrizione, 0}, u"prima"_s);
    form.cambia({Campo::Descrizione, 1}, u"seconda"_s);
    form.entra({Campo::Data, 1});
    form.inserisciRiga();
    EXPECT_EQ(form.testo({Campo::Descrizione, 1}), QString());
    EXPECT_EQ(form.testo({Campo::Descrizione, 2}), u"seconda"_s);
    form.entra({Campo::Data, 0});
    form.eliminaRiga();
    EXPECT_EQ(form.testo({Campo::Descrizione, 1}), u"seconda"_s);

    int passi = 0;
    form.prendiFuoco();
    std::optional<Borftek::Cella> cella = Borftek::Cella{};
    for (; cella && passi < 2000; ++passi) {
        form.invio(*cella);
        cella = form.prendiFuoco();
    }
    EXPECT_EQ(passi, 190 * 5);
    EXPECT_EQ(form.finestra().prima() + 11, 190);
}

} // namespace
} // namespace bor
