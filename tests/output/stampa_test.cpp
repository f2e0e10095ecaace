// Printed documents, as the report file and the printer get them.
#include "document/righeiva.h"
#include "output/layout.h"
#include "output/modello.h"
#include "output/stampafattura.h"
#include "support/azienda.h"
#include "support/stampante_finta.h"

#include <QDir>
#include <QFile>
#include <QMap>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

/// A layout file in which only these items have a place, "33 020040 85 100000"; fonts are Arial 9, colour 0.
QByteArray layout(const QByteArray& voci, const QByteArray& modello = "000000") {
    QMap<int, QByteArray> posizioni;
    const QList<QByteArray> parti = voci.split(' ');
    for (qsizetype i = 0; i < parti.size(); i += 2)
        posizioni[parti[i].toInt()] = parti[i + 1];
    QByteArray file;
    for (int i = 1; i <= 100; ++i) {
        const QByteArray posizione = i == 99 ? modello : posizioni.value(i, "000000");
        file += posizione + "\r\n9\r\nArial\r\n0\r\n0\r\n0\r\n";
    }
    return file;
}

class StampaTest : public testing::Test {
protected:
    StampaTest() {
        prova.tabelle.aliquote[1].aliquota = u"22"_s;
        prova.tabelle.aliquote[2].aliquota = u"10"_s;
        prova.tabelle.esenzioni[3] = {u"art.10 DPR 633/72"_s, u"Esente"_s};
        documento.estremi.numero = u"12"_s;
        documento.estremi.data = u"15/03/2015"_s;
        documento.testata.cliente.sede.ragione1 = u"Società Però"_s;
        documento.ddd[0] = {.recart = 1,
                            .codice = u"VITE"_s,
                            .descrizione = u"Vite"_s,
                            .um = u"pz"_s,
                            .sconto1 = 10,
                            .sconto2 = 5,
                            .iva = 1,
                            .quantita = 3,
                            .prezzo = 100};
        mettiImportoIva(documento.coppia, VoceIva::Imponibile, 1, 256.5);
        mettiImportoIva(documento.coppia, VoceIva::Imposta, 1, 56.43);
    }

    /// Lines of the report file behind the first one, in groups of eleven joined by "|".
    QStringList rapporto() const {
        QFile file(azienda.percorsi().reale(u"c:\\bordoc.rto").value());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QString testo = daCp1252(file.readAll());
        EXPECT_TRUE(testo.endsWith(u"\r\n"_s));
        QStringList linee = testo.split(u"\r\n"_s);
        linee.removeLast();
        EXPECT_EQ(linee.takeFirst(), u"#FILEFORMAT=QLM-RTO"_s);
        EXPECT_EQ(linee.size() % 11, 0);
        QStringList record;
        for (qsizetype i = 0; i + 11 <= linee.size(); i += 11)
            record.append(linee.mid(i, 11).join(u'|'));
        return record;
    }
    /// Only the texts of the report file; items and cells without one leave them to `rapporto`.
    QStringList testi() const {
        QStringList t;
        for (const QString& record : rapporto()) {
            if (record.startsWith(u" 3 |"_s))
                t.append(record.split(u'|')[7]);
        }
        t.removeAll(QString());
        return t;
    }
    bool stampa() {
        return stampaDocumento(documento, prova.contesto, stampante) == EsitoStampa::ConRapporto;
    }

    AziendaDiProva azienda;
    ContestoDiProva prova{azienda};
    StampanteFinta stampante;
    Documento documento;
};

TEST_F(StampaTest, IlRapportoDiUnaFatturaRigaPerRiga) {
    azienda.scrivi(
        u"borlano.lyf"_s,
        layout("18 120030 33 020040 70 200250 82 020020 85 100000 86 180000 88 030000 93 150000", "000001"));
    azienda.scrivi(u"borlano.lkf"_s, "3\r\nlogo.png\r\n\r\n4,10,10,50,30,0,0,0,0\r\n"
                                     "\r\n\r\n2,0.5,5,250,100,255,1,0,0\r\n"
                                     " Fattura numero\r\nArial\r\n3,20,35,0,0,0,1,1,0\r\n");
    ASSERT_TRUE(stampa());
    EXPECT_EQ(prova.operatore.domande.back().testo, u"Iniziare la stampa?"_s);
    // The body has room for twenty lines; those without text have their records too.
    QStringList attesi({u" 0 | 10 | 10 | 50 | 30 | 0 | 0 |logo.png|| 0 | 0 "_s,
                        u" 2 | 1 | 5 | 210 | 100 | 0 | 255 ||| 1 | 0 "_s,
                        u" 3 | 20 | 35 | 0 | 0 | 1 | 0 | Fattura numero|Arial| 1 | 0 "_s,
                        u" 3 | 120 | 30 | 0 | 0 | 9 | 0 |Società Però|Arial| 0 | 0 "_s,
                        u" 3 | 20 | 40 | 0 | 0 | 9 | 0 |12|Arial| 0 | 0 "_s,
                        u" 3 | 188 | 250 | 0 | 0 | 9 | 0 |312,93|Arial| 0 | 0 "_s,
                        u" 3 | 20 | 20 | 0 | 0 | 9 | 0 |FATTURA|Arial| 0 | 0 "_s,
                        u" 3 | 30 | 100 | 0 | 0 | 9 | 0 |Vite|Arial| 0 | 0 "_s,
                        // Both discounts on the gross amount: 300 less 30 less 15.
                        u" 3 | 138 | 100 | 0 | 0 | 9 | 0 |255,00|Arial| 0 | 0 "_s});
    for (int r = 1; r < 20; ++r) {
        for (const int x : {30, 150})
            attesi.append(u" 3 | %1 | %2 | 0 | 0 | 9 | 0 ||Arial| 0 | 0 "_s.arg(x).arg(100 + 4 * r));
    }
    attesi.append(u" 9 ||||||||||"_s);
    EXPECT_EQ(rapporto(), attesi);
    EXPECT_EQ(stampante.pagine, 1);
    EXPECT_TRUE(stampante.terminata);
    EXPECT_TRUE(stampante.immagini[0].endsWith(u"/logo.png"_s));
}

TEST_F(StampaTest, ITotaliStannoSoloSullUltimaPaginaEIlCorpoContinua) {
    azienda.scrivi(u"borlano.lyf"_s, layout("33 020040 70 200250 85 100000 86 120000 88 030000"));
    for (std::size_t i = 0; i < 11; ++i)
        documento.ddd[i].descrizione = u"linea %1"_s.arg(i + 1);
    ASSERT_TRUE(stampa());
    const QStringList t = testi();
    EXPECT_EQ(t.count(u"12"_s), 3);
    EXPECT_EQ(t.count(u"312,93"_s), 1);
    EXPECT_EQ(t.mid(6 * 2 - 6, 1), QStringList{u"12"_s}) << "five lines, then the next page";
    EXPECT_EQ(t.last(), u"linea 11"_s);
    EXPECT_EQ(stampante.pagine, 3);
}

TEST_F(StampaTest, RigheIvaScontiECopiaPa) {
    azienda.scrivi(
        u"borlano.lyf"_s,
        layout("60 010200 61 020200 65 100200 66 120200 81 010010 85 100000 86 180000 94 050000 95 060000"));
    documento.ddd[1] = {.descrizione = u"Bollo"_s, .iva = 15, .quantita = Riga::soloPrezzo, .prezzo = 2};
    documento.coppia.f2e.fpa = 4.0;
    ASSERT_TRUE(stampa());
    EXPECT_EQ(prova.operatore.domande.back().testo, u"Stampare una copia per uso interno?"_s);
    EXPECT_EQ(testi(),
              QStringList({u"01"_s, u"15"_s, u"Iva 22%"_s, u"Esente"_s, u"2,00"_s, u"art.10 DPR 633/72"_s,
                           u"COPIA DOCUMENTO AD USO INTERNO"_s, u"10+5"_s, u"22"_s}));
    EXPECT_TRUE(rapporto()[3].startsWith(u" 3 | 20 | 204 |"_s)) << "the second VAT row stands 4 mm below";
}

TEST_F(StampaTest, LaParcellaHaLeSueVociELeSueColonne) {
    prova.tabelle.aliquote[1] = {u"22"_s, u"20"_s, {}, u"4"_s};
    documento.coppia.fte.parcella = 1;
    documento.dddp[0] = {u"01/03/2015"_s, u"Consulenza"_s, 0, 0, 1000};
    azienda.scrivi(
        u"borlano.lyp"_s,
        layout("66 100200 71 100210 72 100220 77 010010 80 100000 81 180000 82 010000 83 030000 86 200000"));
    ASSERT_TRUE(stampa());
    EXPECT_EQ(prova.operatore.domande.back().titolo, u"Stampa parcella"_s);
    EXPECT_EQ(testi(), QStringList({u"40,00"_s, u"208,00"_s, u"1.060,80"_s, u"PARCELLA"_s, u"01/03/2015"_s,
                                    u"Consulenza"_s, u"1.000,00"_s}));
}

TEST_F(StampaTest, SenzaStampanteIlRapportoECompletoESenzaRispostaNonCeNulla) {
    azienda.scrivi(u"borlano.lyf"_s, layout("33 020040 85 100000 86 180000"));
    stampante.presente = false;
    ASSERT_TRUE(stampa());
    EXPECT_EQ(testi(), QStringList{u"12"_s});
    EXPECT_EQ(stampante.pagine, 0);
    prova.operatore.rispostaSolita = false;
    documento.estremi.numero = u"13"_s;
    EXPECT_FALSE(stampa());
    EXPECT_EQ(testi(), QStringList{u"12"_s});

    prova.operatore.rispostaSolita = true;
    documento.integrata = Integrata::ReverseCharge;
    stampante.presente = true;
    EXPECT_FALSE(stampa()) << "an integrated invoice goes to paper alone";
    EXPECT_EQ(testi(), QStringList{u"12"_s});
    EXPECT_EQ(stampante.testi, QStringList{u"13"_s});
}

TEST_F(StampaTest, LayoutEModelliRovinatiDannoPagineVuote) {
    azienda.scrivi(u"borlano.lyf"_s, layout("33 020040").left(2000));
    EXPECT_TRUE(caricaLayout(prova.archivio, false).voci[33].x() == 0);
    azienda.scrivi(u"borlano.lkf"_s, "32000\r\nciao\r\nArial\r\n3,1,1,1,1,0,9,0,0\r\nmezzo");
    EXPECT_EQ(caricamodello(prova.archivio, CodiceModello::Fattura).size(), 1U);
    azienda.scrivi(u"borlano.lkf"_s, QByteArray("-1\r\n") + QByteArray(5000, '\xFF'));
    EXPECT_TRUE(caricamodello(prova.archivio, CodiceModello::Fattura).empty());
    EXPECT_TRUE(stampa()) << "nothing has a place, and the page is blank";
    EXPECT_EQ(rapporto().size(), 1);
}

TEST_F(StampaTest, VociVuoteBordoAZeroEModelliMonchiStannoNelRapporto) {
    azienda.scrivi(u"borlano.lyf"_s, layout("17 010010 85 000000 86 004000 87 040000 88 030000", "000001"));
    azienda.scrivi(u"borlano.lkf"_s, "2\r\nDitta\r\nArial\r\n3,20,35,0,0,255\r\nmezzo");
    documento.ddd[0].codice = u"12345678901234567890"_s;
    documento.ddd[0].descrizione = QString(70, u'x');
    ASSERT_TRUE(stampa());
    EXPECT_EQ(rapporto(),
              QStringList({u" 3 | 20 | 35 | 0 | 0 | 0 | 255 |Ditta|Arial| 0 | 0 "_s,
                           u" 3 | 10 | 10 | 0 | 0 | 9 | 0 ||Arial| 0 | 0 "_s,
                           u" 3 | 40 | 0 | 0 | 0 | 9 | 0 |123456789012345|Arial| 0 | 0 "_s,
                           u" 3 | 30 | 0 | 0 | 0 | 9 | 0 |%1|Arial| 0 | 0 "_s.arg(QString(60, u'x')),
                           u" 9 ||||||||||"_s}));
    EXPECT_EQ(stampante.testi.size(), 3) << "a text without characters is nothing on paper";
}

TEST_F(StampaTest, CioCheNonEUscitoSiDiceConIlRimedio) {
    const auto detto = [this] { return prova.operatore.messaggi.value(0).testo; };
    azienda.scrivi(u"borlano.lyf"_s, layout("33 020040 85 100000 86 180000"));
    stampante.presente = false;
    EXPECT_TRUE(stampa());
    EXPECT_TRUE(detto().startsWith(u"Nessuna stampante"_s));
    prova.operatore.messaggi.clear();
    EXPECT_TRUE(preparaRapporto(documento, prova.contesto, stampante)) << "a preview needs no printer";
    EXPECT_TRUE(prova.operatore.messaggi.isEmpty());
    documento.ddd[0] = {};
    EXPECT_EQ(stampaDocumento(documento, prova.contesto, stampante), EsitoStampa::Niente);
    EXPECT_TRUE(detto().startsWith(u"Il documento non ha righe"_s));
    documento.ddd[0].descrizione = u"Vite"_s;
    documento.coppia.fte.parcella = 0;
    const QString file = azienda.percorsi().reale(u"c:\\bordoc.rto").value();
    QFile::remove(file);
    ASSERT_TRUE(QDir().mkdir(file)) << "a folder stands where the report file goes";
    prova.operatore.messaggi.clear();
    stampante.presente = true;
    EXPECT_EQ(stampaDocumento(documento, prova.contesto, stampante), EsitoStampa::SoloCarta);
    EXPECT_TRUE(detto().contains(u"ripetete la stampa"_s) && !detto().contains(u"registrazione"_s));
}

} // namespace
} // namespace bor
