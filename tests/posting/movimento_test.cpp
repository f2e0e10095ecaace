// The movement of a document, its editor, and what it leaves in journal and balances.
#include "document/righeiva.h"
#include "document/totaliparcella.h"
#include "posting/borftec.h"
#include "posting/saldi.h"
#include "posting/setfat.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

/// "conto dare avere" of the lines in use.
QStringList righe(const Movimento& m) {
    QStringList testi;
    for (const RigaMovimento& r : m.righe) {
        if (!r.senzaImporti())
            testi.append(r.conto.unito() + u' ' + r.dare + u' ' + r.avere);
    }
    return testi;
}

class MovimentoTest : public testing::Test {
protected:
    MovimentoTest() {
        prova.tabelle.contabili[5] = u"11220033 resto"_s;
        prova.tabelle.contabili[8] = QString(80, u' ') + u"44550066"_s;
        prova.tabelle.contabili[15] = u"Ft. $D del $G a $N prot. $P $D"_s.leftJustified(40) + u"N.C. $D"_s;
        DatiCliente& conti = documento.testata.cliente;
        conti.contocliente = {u"10"_s, u"01"_s, u"0001"_s};
        conti.contoricavi = {u"40"_s, u"01"_s, u"0001"_s};
        conti.contoiva = {u"20"_s, u"05"_s, u"0001"_s};
        conti.contoesenti = {u"40"_s, u"02"_s, u"0001"_s};
        documento.cliente.sede.ragione1.set(u"Rossi Srl");
        documento.coppia.fte.stamp = 42078.4375;
        documento.estremi.numero = u"12/A"_s;
        documento.estremi.data = u"15/03/2015"_s;
        documento.estremi.datareg = u"16/03/2015"_s;
        mettiImportoIva(documento.coppia, VoceIva::Imponibile, 1, 100);
        mettiImportoIva(documento.coppia, VoceIva::Imposta, 1, 22);
        documento.prospetti.ritenute[2].raimp = u"20"_s;
    }

    int conto(QStringView codice, QStringView nome) {
        Con con = vuoto<Con>();
        con.codice.set(codice);
        con.descrizione.set(nome);
        con.conx1 = 7.5;
        return aggiungi(prova.archivio, prova.archivio.con, Conta::Con, con);
    }
    QList<double> saldi(int n) const {
        const Con con = prova.archivio.con.leggi(n);
        return {con.progressivodare, con.progressivoavere};
    }

    AziendaDiProva azienda;
    ContestoDiProva prova{azienda};
    Documento documento;
    Borftec form{prova.contesto, documento};
};

TEST_F(MovimentoTest, FatturaConRitenutaENotaDiCredito) {
    Movimento m = setfat(documento, prova.contesto);
    EXPECT_EQ(righe(m),
              QStringList({u"10010001 102 "_s, u"11220033 20 "_s, u"40010001  100"_s, u"20050001  22"_s}));
    EXPECT_EQ(m.descrizione, u"Ft. 12/A del 15/03/2015 a Rossi Srl prot.  $D"_s) << "each mark once";
    EXPECT_EQ(m.data, u"16/03/2015"_s);
    EXPECT_TRUE(prova.operatore.domande.isEmpty());
    form.prepara(m);
    EXPECT_EQ(form.totale(Borftec::Totale::Documento), 122);
    EXPECT_EQ(form.totale(Borftec::Totale::Differenza), 0);
    form.cambia({Borftec::Campo::Dare, 1}, u"19,50"_s);
    EXPECT_EQ(form.totale(Borftec::Totale::Differenza), -0.5);

    documento.coppia.fte.tipo = 1;
    documento.coppia.fte.esigdiff.set(u"1");
    prova.impostazioni.gnr.annonumero.set(u"1");
    m = setfat(documento, prova.contesto);
    EXPECT_EQ(righe(m),
              QStringList({u"10010001  102"_s, u"11220033  20"_s, u"40010001 100 "_s, u"44550066 22 "_s}));
    EXPECT_EQ(m.descrizione, u"N.C. 12/A/2015"_s);
    form.prepara(m);
    EXPECT_EQ(form.totale(Borftec::Totale::Differenza), 0);

    documento.integrata = Integrata::ReverseCharge;
    documento.prospetti.ritenute[2].raimp.clear();
    EXPECT_EQ(righe(setfat(documento, prova.contesto)), QStringList({u"10010001  22"_s, u"44550066 22 "_s}));
    form.prepara(setfat(documento, prova.contesto));
    EXPECT_EQ(form.totale(Borftec::Totale::Differenza), 0) << "the tax alone is posted";
}

TEST_F(MovimentoTest, OgniParcellaQuadra) {
    prova.tabelle.aliquote[1] = {u"22"_s, u"20"_s, {}, u"4"_s};
    prova.tabelle.aliquote[2] = {u"10"_s, {}, u"2"_s, {}};
    std::mt19937 caso(15);
    documento.coppia.fte.parcella = 2;
    std::uniform_int_distribution<int> centesimi(0, 500000);
    for (int giro = 0; giro < 300; ++giro) {
        documento.dddp.assign(righeParcella, {});
        for (int r = 0; r < 1 + giro % 40; ++r)
            documento.dddp[static_cast<std::size_t>(r)] = {
                {}, {}, centesimi(caso) / 100.0, centesimi(caso) / 100.0, centesimi(caso) / 100.0};
        documento.testata.pratica.ivaono = giro % 2;
        documento.testata.pratica.ivaspe = giro % 3;
        form.prepara(setpar(documento, prova.contesto));
        ASSERT_EQ(form.totale(Borftec::Totale::Sbilancio), 0) << giro;
        ASSERT_EQ(form.totale(Borftec::Totale::Differenza), 0) << giro;
        ASSERT_GT(form.totale(Borftec::Totale::Dare), 0);
    }
}

TEST_F(MovimentoTest, ScriveGiornaleESaldiEPoiSostituisceSulPosto) {
    const int cliente = conto(u"10010001", u"Clienti");
    conto(u"40020001", u"Altro");
    const int ricavi = conto(u"0040010001", u"Ricavi");
    const int iva = conto(u"20050001", u"Iva vendite");
    conto(u"11220033", u"Ritenute");
    form.prepara(setfat(documento, prova.contesto));
    form.attiva();
    EXPECT_EQ(form.descrizioneConto(2), u"Ricavi"_s);
    form.cambia({Borftec::Campo::Mastro, 5}, u"99"_s); // no amounts: drops out
    form.salva();
    ASSERT_TRUE(prova.operatore.messaggi.isEmpty()) << qPrintable(prova.operatore.messaggi.value(0).testo);
    EXPECT_EQ(prova.navigatore.mostrati, QList{Schermo::Borfte});
    EXPECT_TRUE(prova.sessione.listadaaggiornare);
    EXPECT_EQ(saldi(cliente), QList<double>({102, 0}));
    EXPECT_EQ(saldi(ricavi), QList<double>({0, 100}));
    EXPECT_EQ(prova.archivio.con.leggi(cliente).conx1, 7.5);

    const QByteArray gio = azienda.leggi(u"borlano.gio"_s);
    ASSERT_EQ(gio.size(), 296);
    EXPECT_EQ(gio.left(48), QByteArray("20150316Ft. 12/A del 15/03/2015 a Rossi Srl prot"));
    EXPECT_EQ(gio.sliced(70, 18), QByteArray("\0\0"
                                             "10010001"
                                             "\0\0\0\0\0\x80\x59\x40",
                                             18));
    EXPECT_EQ(gio.sliced(124, 10), QByteArray("\x01\0"
                                              "20050001",
                                              10));
    EXPECT_EQ(gio.sliced(142, 10), QByteArray("\x01\0"
                                              "        ",
                                              10))
        << "an empty slot is on the credit side";
    EXPECT_EQ(gio.sliced(254, 9), QByteArray("\0\0\0\0\xCE\x8B\xE4\x40"
                                             "1",
                                             9));
    EXPECT_EQ(prova.archivio.leggiTot(Conta::Gio).numero, 1);

    // The document changed: its movement comes back, is changed and replaced in place.
    documento.recordfattura = 4;
    prova.sessione.modificamovimento = true;
    form.prepara(setfat(documento, prova.contesto));
    EXPECT_EQ(form.testo({Borftec::Campo::Avere, 3}), u"22"_s);
    form.cambia({Borftec::Campo::Avere, 3}, u"22,50"_s);
    EXPECT_EQ(form.totale(Borftec::Totale::Sbilancio), -0.5);
    form.salva();
    EXPECT_EQ(prova.archivio.leggiTot(Conta::Gio).numero, 1);
    EXPECT_EQ(saldi(iva), QList<double>({0, 22.5}));
    EXPECT_EQ(saldi(cliente), QList<double>({102, 0}));

    // A deleted movement is not found again: the operator is told, and a new one is made.
    Gio eliminato = prova.archivio.gio.leggi(1);
    eliminato.cancellato = 1;
    prova.archivio.gio.scrivi(1, eliminato);
    EXPECT_EQ(setfat(documento, prova.contesto).righe[3].avere, u"22"_s);
    EXPECT_TRUE(prova.operatore.messaggi.back().testo.startsWith(u"Non è stato possibile recuperare"));
}

TEST_F(MovimentoTest, DataEContiSbagliatiNonScrivonoNulla) {
    form.prepara(setfat(documento, prova.contesto));
    form.attiva();
    form.cambia(u"31/02/2015"_s, &Movimento::data);
    form.salva();
    EXPECT_EQ(prova.operatore.messaggi.back().testo, u"La data del movimento non è valida"_s);
    form.cambia(u"28/02/2015"_s, &Movimento::data);
    form.salva();
    EXPECT_EQ(prova.operatore.messaggi.back().testo, u"Uno o più conti selezionati non esistono"_s);
    EXPECT_TRUE(azienda.leggi(u"borlano.gio"_s).isEmpty());
    EXPECT_TRUE(prova.navigatore.mostrati.isEmpty());
}

TEST_F(MovimentoTest, SiCercanoContiESiSpostanoRighe) {
    conto(u"10010001", u"Clienti Italia");
    conto(u"40010001", u"Ricavi");
    form.attiva();
    EXPECT_EQ(form.conti(), QStringList({u"10 01 0001 Clienti Italia"_s, u"40 01 0001 Ricavi"_s}));
    form.cerca(u"ric"_s);
    EXPECT_EQ(form.contoScelto(), 1);
    form.cambia({Borftec::Campo::Mastro, 1}, u"1"_s);
    EXPECT_EQ(form.contoScelto(), 0);
    form.prendiConto(1);
    const auto posto = form.prendiFuoco();
    ASSERT_TRUE(posto);
    EXPECT_EQ(posto->linea, 1);
    EXPECT_EQ(form.testo({Borftec::Campo::Sottoconto, 1}), u"0001"_s);
    form.entra({Borftec::Campo::Mastro, 0});
    form.inserisciRiga();
    EXPECT_EQ(form.testo({Borftec::Campo::Mastro, 1}), QString());
    EXPECT_EQ(form.testo({Borftec::Campo::Mastro, 2}), u"40"_s);
    form.togliRiga();
    form.togliRiga();
    EXPECT_EQ(form.testo({Borftec::Campo::Mastro, 0}), u"40"_s);
}

TEST_F(MovimentoTest, UnMovimentoSostituitoTornaDalSuoLatoUnoEliminatoDaQuelloOpposto) {
    const int n = conto(u"10010001", u"Clienti");
    VoceGio voce = vuoto<VoceGio>();
    voce.conto.set(u"10010001");
    voce.importo = 30.0;
    const auto applica = [&] { inRaffica(prova.archivio, [&](Raffica& r) { applicaconto(r, voce); }); };
    const auto storna = [&] { inRaffica(prova.archivio, [&](Raffica& r) { stornaconto(r, voce); }); };
    applica();
    EXPECT_EQ(saldi(n), QList<double>({-30, 0}));
    voce.segno = 1;
    applica();
    EXPECT_EQ(saldi(n), QList<double>({-30, -30}));
    storna();
    EXPECT_EQ(saldi(n), QList<double>({-60, -30}));
    voce.segno = 0;
    storna();
    EXPECT_EQ(saldi(n), QList<double>({-60, -60}));
    voce.importo = -1.0;
    storna();
    voce.conto.set(u"99");
    voce.importo = 1.0;
    storna(); // an account that is not in the chart
    voce.conto.set(u"10010001");
    voce.importo = std::numeric_limits<double>::quiet_NaN();
    applica();
    storna();
    voce.importo = std::numeric_limits<double>::infinity();
    storna();
    EXPECT_EQ(saldi(n), QList<double>({-60, -60})) << "a garbled amount moves nothing";
}

TEST_F(MovimentoTest, ContiMaiScrittiSonoVuoti) {
    documento.cliente = vuoto<Cli>();
    documento.cliente.sede.ragione1.bytes[0] = 'R';
    documento.cliente.contoiva.bytes = {'\0', '\0', '0', '5', '0', '0', '0', '1'};
    documento.coppia.fte.parcella = 1;
    const Movimento m = setpar(documento, prova.contesto);
    EXPECT_EQ(m.righe[0].conto.unito(), QString());
    EXPECT_TRUE(m.descrizione.contains(u" a R prot."_s)) << qPrintable(m.descrizione);
    const DatiCliente d = DatiCliente::da(documento.cliente);
    EXPECT_EQ(d.contoiva.mastro + u'|' + d.contoiva.conto, u"|05"_s);
    EXPECT_EQ(d.banca + d.coordinate, QString());
}

} // namespace
} // namespace bor
