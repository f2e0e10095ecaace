// What a document becomes in today's electronic invoice, and what is refused with a word.
#include "fatturapa/documentofel.h"
#include "xmlcheck/controlloxml.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

std::string motivi(const Composta& c) {
    std::string tutti;
    for (const Rilievo& r : c.rilievi)
        tutti += testoRilievo(r).toStdString();
    return tutti;
}

const RiepilogoFel& riepilogo(const Composta& c, const QString& natura, double aliquota = 0) {
    static const RiepilogoFel nessuno;
    const auto trovato = std::ranges::find_if(c.fattura.riepiloghi, [&](const RiepilogoFel& r) {
        return r.natura == natura && r.aliquota == aliquota;
    });
    return trovato == c.fattura.riepiloghi.end() ? nessuno : *trovato;
}

} // namespace

TEST(Componi, DueScontiStannoInCascataConOttoDecimali) {
    DocumentoDiProva d;
    d.riga(0) = {.codice = u"C1"_s,
                 .descrizione = u"Toner «XL» – 10 €"_s,
                 .um = u"m²"_s,
                 .sconto1 = 10,
                 .sconto2 = 5,
                 .iva = 1,
                 .quantita = 3,
                 .prezzo = 7.125};
    const Composta c = d.composta();
    EXPECT_FALSE(c.rifiutata()) << motivi(c);
    const LineaFel& l = c.fattura.linee[0];
    EXPECT_EQ(l.descrizione, u"Toner «XL» - 10 EUR");
    EXPECT_EQ(l.um, u"m2");
    EXPECT_EQ(l.sconti, (std::vector<double>{10, 5}));
    EXPECT_DOUBLE_EQ(l.totale, 18.275625);
    EXPECT_DOUBLE_EQ(riepilogo(c, {}, 22).imponibile, 18.28);
    const QByteArray xml = scriviFattura(c.fattura);
    EXPECT_TRUE(xml.contains("<PrezzoUnitario>7.125</PrezzoUnitario>"));
    EXPECT_TRUE(xml.contains("<PrezzoTotale>18.275625</PrezzoTotale>"));
    EXPECT_TRUE(xml.contains("<Denominazione>Caffè &amp; Figli S.r.l.</Denominazione>"));
    EXPECT_FALSE(xml.contains("<Importo>"));
}

TEST(Componi, CommentiQuantitaNegativeEPrezziConIva) {
    DocumentoDiProva d;
    d.documento.scorporo = true;
    d.riga(0).descrizione = u"Consegna entro 10 giorni"_s;
    d.riga(1) = {.descrizione = u"Reso"_s, .iva = 2, .quantita = -2, .prezzo = 5.5};
    d.riga(2) = {.iva = 1, .quantita = Riga::soloPrezzo, .prezzo = 122};
    const Composta c = d.composta();
    EXPECT_FALSE(c.rifiutata()) << motivi(c);
    EXPECT_EQ(c.fattura.linee[0].aliquota, 10) << "a comment goes with the first priced line";
    EXPECT_EQ(c.fattura.linee[0].totale, 0);
    EXPECT_EQ(c.fattura.linee[1].quantita, 2);
    EXPECT_EQ(c.fattura.linee[1].prezzo, -5);
    EXPECT_EQ(c.fattura.linee[2].quantita, std::nullopt);
    EXPECT_EQ(c.fattura.linee[2].descrizione, u"-");
    EXPECT_EQ(c.fattura.linee[2].prezzo, 100);
    EXPECT_EQ(riepilogo(c, {}, 22).imposta, 22);
}

TEST(Componi, ClientiPubbliciPrivatiEdEsteri) {
    DocumentoDiProva d;
    d.riga(0) = {.descrizione = u"Carta"_s, .iva = 1, .quantita = 1, .prezzo = 100};
    d.propri.cliente = {.pec = u"ditta@pec.example"_s};
    EXPECT_EQ(d.composta().fattura.trasmissione.destinatario, u"0000000");
    EXPECT_EQ(d.composta().fattura.trasmissione.pec, u"ditta@pec.example");
    d.propri.cliente.codice = u"abc1234"_s;
    EXPECT_EQ(d.composta().fattura.trasmissione.destinatario, u"ABC1234");
    Cli ente = clienteFel();
    ente.clix2.set(u"UFABCD");
    d.cliente(ente);
    EXPECT_TRUE(d.composta().fattura.trasmissione.pubblica);
    EXPECT_EQ(d.composta().fattura.trasmissione.destinatario, u"UFABCD");
    Cli tedesco = clienteFel();
    tedesco.nazione.set(u"DE");
    tedesco.sede.cap.set(u"80331");
    d.cliente(tedesco);
    const FatturaElettronica f = d.composta().fattura;
    EXPECT_EQ(f.trasmissione.destinatario, u"XXXXXXX");
    EXPECT_EQ(f.cessionario.sede.cap, u"00000");
    EXPECT_EQ(f.cessionario.sede.nazione, u"DE");
}

TEST(Componi, LoSplitPaymentLasciaLIvaFuoriDalleRate) {
    DocumentoDiProva d;
    d.tipoPagamento(u'1');
    d.riga(0) = {.descrizione = u"Carta"_s, .iva = 1, .quantita = 1, .prezzo = 100};
    EXPECT_EQ(d.composta().fattura.pagamento.rate[0].importo, 122);
    d.propri.cliente.splitpayment = u"SI"_s;
    const FatturaElettronica f = d.composta().fattura;
    EXPECT_EQ(f.pagamento.rate[0].importo, 100);
    EXPECT_EQ(f.totale, 122);
    EXPECT_EQ(f.riepiloghi[0].esigibilita, u"S");
    EXPECT_EQ(f.pagamento.modalita, u"MP05");
    EXPECT_EQ(f.pagamento.iban, u"IT60X0542811101000000123456");
}

TEST(Componi, EsentiConNaturaBolloEDichiarazioneDIntento) {
    DocumentoDiProva d;
    d.riga(0) = {.descrizione = u"Corso"_s, .iva = 19, .quantita = 1, .prezzo = 77.47};
    EXPECT_EQ(d.composta().fattura.linee[0].natura, u"N4");
    EXPECT_EQ(d.composta().fattura.bollo, std::nullopt);
    d.riga(0).prezzo = 77.48;
    EXPECT_EQ(d.composta().fattura.bollo, 2);
    d.propri.documento.bollo = u"NO"_s;
    EXPECT_EQ(d.composta().fattura.bollo, std::nullopt);
    d.riga(0).iva = 18;
    EXPECT_TRUE(d.composta().rifiutata()) << "N3 without its subcode";
    d.propri.nature[18] = u"N3.5"_s;
    d.propri.cliente.intento = u"08060120341234567-000001"_s;
    d.propri.cliente.intentoricezione = u"02/03/2015"_s;
    const Composta c = d.composta();
    EXPECT_FALSE(c.rifiutata()) << motivi(c);
    EXPECT_EQ(riepilogo(c, u"N3.5"_s).riferimento, u"Art. 8");
    EXPECT_TRUE(
        scriviFattura(c.fattura).contains("<RiferimentoTesto>08060120341234567-000001</RiferimentoTesto>"));
}

TEST(Componi, LaParcellaPortaAnticipazioniCasseERitenuta) {
    DocumentoDiProva d;
    d.documento.coppia.fte.parcella = 1;
    d.documento.testata.pratica.ivaono = 3;
    d.documento.dddp[0] = {.data = u"08/12/2014"_s,
                           .descrizione = u"Perizia"_s,
                           .spese = 50,
                           .anticipazioni = 30,
                           .onorari = 1000};
    const Composta c = d.composta();
    EXPECT_FALSE(c.rifiutata()) << motivi(c);
    const FatturaElettronica& f = c.fattura;
    EXPECT_EQ(f.tipo, u"TD06");
    ASSERT_EQ(f.linee.size(), 3U);
    EXPECT_EQ(f.linee[0].descrizione, u"08/12/2014 Perizia");
    EXPECT_EQ(f.linee[1].descrizione, u"08/12/2014 Perizia - spese");
    EXPECT_EQ(f.linee[2].natura, u"N1");
    ASSERT_EQ(f.casse.size(), 2U);
    EXPECT_EQ(f.casse[0].tipo, u"TC04");
    EXPECT_EQ(f.casse[0].importo, 20);
    EXPECT_EQ(f.casse[0].natura, u"N4");
    EXPECT_EQ(f.casse[1].importo, 40);
    EXPECT_EQ(f.casse[1].aliquotaiva, 22);
    EXPECT_TRUE(f.casse[1].ritenuta);
    EXPECT_EQ(riepilogo(c, u"N4"_s).imponibile, 20);
    EXPECT_EQ(riepilogo(c, u"N1"_s).imponibile, 30);
    ASSERT_EQ(f.ritenute.size(), 1U);
    EXPECT_EQ(f.ritenute[0].importo, 208);
    EXPECT_EQ(f.ritenute[0].aliquota, 20);
    // 1000 + 40 + 50 at 22 %, 20 and 30 without, less the withholding: the advances are in the payment too.
    EXPECT_NEAR(f.pagamento.rate[0].importo, 1090 * 1.22 + 50 - 208, 0.005);
}

TEST(Componi, RiferimentiDelDocumentoEDellOperatore) {
    DocumentoDiProva d;
    d.riga(0) = {.descrizione = u"Carta"_s, .iva = 1, .quantita = 1, .prezzo = 100};
    d.documento.testata.trasporto.ddt = u"60 del 13/03/2015"_s;
    d.documento.testata.trasporto.ordine = u"Ord. 330 del 01/03/2015"_s;
    d.propri.documento.cig = u"Z5413A7F20"_s;
    FatturaElettronica f = d.composta().fattura;
    EXPECT_EQ(f.tipo, u"TD24") << "goods of an earlier day";
    EXPECT_EQ(f.ddt[0].numero, u"60");
    EXPECT_EQ(f.ordini[0].numero, u"Ord. 330");
    EXPECT_EQ(f.ordini[0].data, QDate(2015, 3, 1));
    EXPECT_EQ(f.ordini[0].cig, u"Z5413A7F20");
    d.documento.coppia.fte.tipo = 1;
    d.propri.documento.collegatanumero = u"7"_s;
    d.propri.documento.collegatadata = u"01/02/2015"_s;
    f = d.composta().fattura;
    EXPECT_EQ(f.tipo, u"TD04");
    EXPECT_EQ(f.collegate[0].data, QDate(2015, 2, 1));
}

TEST(Componi, RifiutaConUnaFraseCioCheOggiNonSiPuoDire) {
    struct Caso {
        void (*guasta)(DocumentoDiProva&);
        QString parola;
    };
    const Caso casi[] = {
        {[](DocumentoDiProva& d) { d.valuta.euro = false; }, u"lire"_s},
        {[](DocumentoDiProva& d) { d.azienda.regimefiscale.set(u"2"); }, u"RF03"_s},
        {[](DocumentoDiProva& d) {
             d.esenzione(6, u"Art. 8", 7);
             d.riga(0).iva = 18;
         },
         u"N8"_s},
        {[](DocumentoDiProva& d) { d.riga(0).iva = 5; }, u"codice IVA 5"_s},
        {[](DocumentoDiProva& d) { d.documento.estremi.data = u"30/02/2015"_s; }, u"data"_s},
        {[](DocumentoDiProva& d) {
             d.propri.azienda.causaleritenuta.clear();
             d.riga(0).iva = 4;
         },
         u"causale"_s},
        {[](DocumentoDiProva& d) { d.propri.documento.cup = u"B19"_s; }, u"CUP"_s},
    };
    for (const Caso& caso : casi) {
        DocumentoDiProva d;
        d.riga(0) = {.descrizione = u"Carta"_s, .iva = 1, .quantita = 1, .prezzo = 100};
        caso.guasta(d);
        const Composta c = d.composta();
        EXPECT_TRUE(c.rifiutata()) << caso.parola.toStdString();
        EXPECT_TRUE(QString::fromStdString(motivi(c)).contains(caso.parola)) << motivi(c);
    }
}

TEST(Componi, NumeriGuastiDannoRilieviENonUnaCaduta) {
    using Limiti = std::numeric_limits<double>;
    for (const double guasto : {Limiti::infinity(), Limiti::quiet_NaN(), 1e300, -1e15}) {
        DocumentoDiProva d;
        d.riga(0) = {.descrizione = u"Carta"_s, .iva = 1, .quantita = 2, .prezzo = guasto};
        const Composta c = d.composta();
        const QByteArray xml = scriviFattura(c.fattura);
        EXPECT_TRUE(c.rifiutata() || !controllaXml(xml, u"IT01234567897_00001.xml"_s).empty()) << guasto;
    }
}

} // namespace bor
