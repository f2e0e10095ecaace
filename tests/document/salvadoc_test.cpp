// Saving, opening and deleting documents, down to the bytes on file.
#include "document/programma.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

/// Bytes at a place of a record; numbers are given in hex as they lie on file.
struct Posto {
    int offset;
    QByteArray bytes;
};
QByteArray hex(const char* cifre) {
    return QByteArray::fromHex(cifre);
}
QByteArray disponi(int lunghezza, const QList<Posto>& posti) {
    QByteArray record(lunghezza, '\0');
    for (const Posto& posto : posti)
        record.replace(posto.offset, posto.bytes.size(), posto.bytes);
    return record;
}
QByteArray bianchi(int quanti) {
    return QByteArray(quanti, ' ');
}

class SalvaTest : public testing::Test {
protected:
    SalvaTest() { azienda.cliente(u"Rossi"_s); }

    AziendaDiProva azienda;
    Programma p{azienda};
};

TEST_F(SalvaTest, FatturaDiMerceConScontiEDueAliquote) {
    p.prova.tabelle.aliquote[10].aliquota = u"10"_s;
    p.nuovo(u"7/A"_s);
    Documento& d = p.documento;
    d.coppia.fte.resx1.bytes.fill('\xE9');
    d.coppia.fte.resx2.bytes.fill('\x81');
    d.coppia.fte.resx[1] = 1.5;
    d.estremi.protocollo = u"12"_s;
    d.estremi.registro = 2;
    d.estremi.voce1 = 2;
    d.estremi.quota2 = u"12.5"_s;
    d.estremi.pdf = u" \\a.pdf "_s;
    d.scadenze.rib = true;
    d.scadenze.provaliq = u"3"_s;
    d.prospetti.spesometro = d.prospetti.noleggio = d.prospetti.autofattura = true;
    d.prospetti.classenoleggio = 1;
    d.prospetti.terminemese = u"3"_s;
    d.prospetti.termineanno = u"2016"_s;
    d.recordfpa = 7;
    p.prova.tabelle.aliquote[1].ritenuta.clear();
    d.ddd[0] = rigaDi(100, 10);
    d.ddd[1] = {.descrizione = u"Trasporto"_s, .iva = 10, .quantita = 2, .prezzo = 25};
    p.riporta();
    d.scadenze.rate[0].importo = u"100"_s;
    d.scadenze.rate[4] = {u"15/07/2015"_s, u"64.8"_s};
    ASSERT_EQ(p.salva().dopo, DopoSalva::Movimento);
    EXPECT_TRUE(p.prova.operatore.domande.isEmpty());

    const QByteArray nessuno = hex("0000");
    const auto testi = [](int offset, const char* testo) { return Posto{offset, testo}; };
    EXPECT_EQ(azienda.leggi(u"borlano.fte"_s).toHex(' '),
              disponi(522, {{0, hex("0100")},
                            testi(2, "7/A       "),
                            {12, hex("0300")},
                            testi(14, "201503162015031515042015"),
                            {38, bianchi(24 + 32)},
                            {94, hex("0000000000805640")},
                            {158, hex("cdcccccccccc3340")},
                            {286, hex("0000000000005940")},
                            {352, hex("0100")},
                            {356, "2" + bianchi(39)},
                            {400, bianchi(2)},
                            testi(402, "3   "),
                            {406, hex("cdcccccccccc1040")},
                            {418, hex("0000000000002940")},
                            {434, hex("0000000000002840")},
                            {442, hex("0200")},
                            {444, hex("01000000ce8be440")},
                            {452, "100" + hex("0000803f") + "0\xE9" + "21" + QByteArray(33, '\x81')},
                            {504, hex("000000000000f83f")}})
                  .toHex(' '));
    EXPECT_EQ(azienda.leggi(u"borlano.f2e"_s).toHex(' '), disponi(838, {{0, hex("e703")},
                                                                        {10, hex("0000000000004940")},
                                                                        {42, hex("0000000000001440")},
                                                                        {98, "15072015" + bianchi(24)},
                                                                        {130, hex("3333333333335040")},
                                                                        {290, QByteArray(48, '0')},
                                                                        {338, "\\a.pdf" + bianchi(54)},
                                                                        {430, bianchi(64)},
                                                                        {526, hex("0200")},
                                                                        testi(572, "032016"),
                                                                        {579, hex("0000000000001c40")},
                                                                        {587, bianchi(251)}})
                                                              .toHex(' '));
    EXPECT_EQ(azienda.leggi(u"borlano.tot"_s).sliced(72).toHex(), "01000100000007000000803f");
    EXPECT_FALSE(QFile::exists(azienda.percorso(u"f1"_s))) << "a first save writes no lines file";
}

TEST_F(SalvaTest, RigheFinoAlSecondoSalvataggio) {
    p.nuovo(u"8"_s);
    p.documento.ddd[0] = rigaDi(12.5, 10);
    p.documento.scorporo = true;
    p.documento.testata.trasporto.ddt = u"DDT 4"_s;
    const EsitoSalva esito = p.salva();
    ASSERT_EQ(esito.dopo, DopoSalva::Movimento);
    EXPECT_EQ(p.registrazioni.chiamate, QStringList({u"movimento"_s}));
    EXPECT_FALSE(esito.modificamovimento);
    EXPECT_TRUE(p.inSospeso());

    p.apri(1);
    EXPECT_EQ(p.documento.ddd[0], rigaDi(12.5, 10));
    EXPECT_EQ(p.documento.testata.trasporto.ddt, u"DDT 4"_s);
    p.documento.testata.trasporto.causale = 3;
    azienda.articolo(Art{});
    aggiungi(p.prova.archivio, p.prova.archivio.mag, Conta::Mag, Mag{});
    p.prova.operatore.risposte = {true, false};
    EXPECT_EQ(p.salva().dopo, DopoSalva::Registro);
    EXPECT_EQ(p.registrazioni.chiamate.mid(1), QStringList({u"togli"_s, u"metti"_s}));
    EXPECT_FALSE(p.inSospeso());
    EXPECT_EQ(p.prova.operatore.attese, 0);

    const QByteArray file = azienda.leggi(u"f2"_s);
    EXPECT_TRUE(
        file.startsWith(" 1 \r\n 0 \r\nDDT 4\r\n\r\n\r\n\r\n\r\n 3 \r\n-1 \r\n0\r\n1\r\n8\r\n15/03/2015\r\n"
                        "16/03/2015\r\n 1 \r\n\r\nVITE\r\nVite \xE0 testa \x80\r\npz\r\n 10 \r\n 0 \r\n"
                        " 1 \r\n 1 \r\n 12.5 \r\n 0 \r\n"));
    EXPECT_EQ(file.count("\r\n"), 14 + 5000);
    Programma altro{azienda};
    altro.apri(1);
    EXPECT_EQ(altro.documento.ddd, p.documento.ddd);
    EXPECT_TRUE(altro.documento.scorporo);
    EXPECT_EQ(altro.documento.coppia.fte.nfile, 2.0F);
}

TEST_F(SalvaTest, ParcellaConRitenutaEContributi) {
    CoppiaFte coppia = documentoDi(1, u"9"_s, 0, 0);
    coppia.fte.parcella = 1;
    coppia.f2e.resy1.bytes.fill('\x9D');
    azienda.documento(coppia);
    p.apri(1);
    p.documento.dddp[0] = {u"1/3"_s, u"Parere"_s, 0, 0, 1000};
    p.documento.testata.pratica.descrizione[0] = u"Causa"_s;
    p.documento.testata.pratica.ivaspe = 2;
    p.documento.scadenze = {.pagamento = 1, .rate = {Rata{u"15/04/2015"_s, {}}}};
    const TotaliParcella t = totaliParcella(p.documento.dddp, p.documento.testata.pratica, p.prova.tabelle,
                                            p.prova.contesto.valuta());
    riportaTotali(p.documento, t.iva, t.baseritenuta, t.ritenuta, p.prova.contesto);
    p.prova.operatore.risposte = {true};
    const EsitoSalva esito = p.salva();
    EXPECT_EQ(esito.dopo, DopoSalva::Movimento);
    EXPECT_TRUE(esito.modificamovimento);
    EXPECT_EQ(p.prova.operatore.domande.size(), 1) << "a fee bill is not asked about the warehouse";

    const QByteArray fte = azienda.leggi(u"borlano.fte"_s);
    EXPECT_EQ(fte.sliced(94, 8), hex("0000000000409040"));
    EXPECT_EQ(fte.sliced(158, 8), hex("9a99999999996c40"));
    EXPECT_EQ(fte.sliced(286, 8), hex("3333333333939040"));
    EXPECT_EQ(fte.sliced(396, 2), hex("0100"));
    const QByteArray f2e = azienda.leggi(u"borlano.f2e"_s);
    EXPECT_EQ(f2e.sliced(398, 8), hex("0000000000006a40"));
    EXPECT_EQ(f2e.sliced(494, 8), hex("0000000000409040"));
    EXPECT_EQ(f2e.sliced(528, 36), QByteArray(36, '\x9D')) << "what no screen shows stays";
    EXPECT_TRUE(
        azienda.leggi(u"p1"_s).startsWith(" 1 \r\n 0 \r\nCausa\r\n\r\n\r\n\r\n 0 \r\n 2 \r\n 0 \r\n9\r\n"
                                          "15/03/2015\r\n15/03/2015\r\n1/3\r\nParere\r\n\r\n\r\n1000\r\n"));
    EXPECT_EQ(azienda.leggi(u"p1"_s).count("\r\n"), 12 + 1000);
    p.apri(1);
    EXPECT_EQ(p.documento.dddp[0].onorari, 1000);
}

TEST_F(SalvaTest, NotaScorporoIvaDifferitaELire) {
    p.prova.tabelle.aliquote[1].ritenuta.clear();
    p.nuovo(u"1"_s, 1);
    p.documento.scorporo = true;
    p.documento.ddd[0] = rigaDi(122);
    p.documento.estremi.esig = true;
    p.documento.prospetti.differita[0] = {u"5"_s, u"2016"_s, u"100"_s, u"22"_s};
    p.documento.prospetti.differita[1].mese = u"5"_s;
    p.riporta();
    ASSERT_EQ(p.salva().dopo, DopoSalva::Movimento);
    QByteArray fte = azienda.leggi(u"borlano.fte"_s);
    EXPECT_EQ(fte.sliced(350, 2), hex("0100"));
    EXPECT_EQ(fte.sliced(94, 8), hex("0000000000005940"));
    EXPECT_EQ(fte.sliced(158, 8), hex("0000000000003640"));
    EXPECT_EQ(fte.sliced(459, 1), "1");
    const QByteArray f2e = azienda.leggi(u"borlano.f2e"_s);
    EXPECT_EQ(f2e.sliced(162, 8) + f2e.sliced(226, 8), hex("0000000000005940") + hex("0000000000003640"));
    EXPECT_EQ(f2e.sliced(290, 18), "052016050000000000");

    p.prova.impostazioni.valuta.euro = false;
    p.nuovo(u"2"_s);
    p.documento.ddd[0] = rigaDi(163934);
    p.riporta();
    ASSERT_EQ(p.salva().dopo, DopoSalva::Movimento);
    fte = azienda.leggi(u"borlano.fte"_s).sliced(522);
    EXPECT_EQ(fte.sliced(94, 8), hex("00000000f0020441"));
    EXPECT_EQ(fte.sliced(158, 8), hex("00000000409ce140"));
    EXPECT_EQ(fte.sliced(286, 8), hex("00000000006a0841"));
}

TEST_F(SalvaTest, ControlliPrimaDiScrivere) {
    p.nuovo(u"1"_s);
    p.documento.scadenze.rate[3] = {u"31/02/2015"_s, u"10"_s};
    EsitoSalva esito = p.salva();
    EXPECT_EQ(esito.fuoco->campo, CampoTea::Scadenza);
    EXPECT_EQ(esito.fuoco->indice, 3);
    p.documento.estremi.datareg.clear();
    EXPECT_EQ(p.salva().fuoco->campo, CampoTea::DataReg);
    p.documento.estremi.data = u"30/02/2015"_s;
    EXPECT_EQ(p.salva().fuoco->campo, CampoTea::Data);
    QStringList testi;
    for (const Messaggio& m : p.prova.operatore.messaggi)
        testi.append(m.testo);
    EXPECT_EQ(testi, QStringList({u"Una o più date di scadenza non sono valide"_s,
                                  u"La data di registrazione del documento non è valida"_s,
                                  u"La data del documento non è valida"_s}));

    p.nuovo(u"1"_s);
    p.documento.scadenze.rate[0].importo = u"0.02"_s;
    p.prova.operatore.risposte = {false};
    EXPECT_EQ(p.salva().dopo, DopoSalva::Resta);
    EXPECT_EQ(p.documenti(), 0);
    EXPECT_EQ(azienda.leggi(u"borlano.fte"_s).size(), 0);
}

TEST_F(SalvaTest, ContatoriAiLoroLimiti) {
    Tot tot{.numero = 3, .modificato = 0, .cancellato = 0, .ultimonumero = 40, .progressivo = 1e9F};
    p.prova.archivio.scriviTot(Conta::Fte, tot);
    p.nuovo(u"40000"_s);
    EXPECT_EQ(p.salva().dopo, DopoSalva::Movimento);
    EXPECT_EQ(p.prova.archivio.leggiTot(Conta::Fte).ultimonumero, 40);
    EXPECT_EQ(p.documento.coppia.fte.nfile, 1e9F);

    tot.numero = 32767;
    p.prova.archivio.scriviTot(Conta::Fte, tot);
    const int scritture = p.disco.scritture;
    p.nuovo(u"5"_s);
    EXPECT_EQ(p.salva().dopo, DopoSalva::Resta);
    EXPECT_EQ(p.disco.scritture, scritture);
    EXPECT_TRUE(p.prova.operatore.messaggi.last().testo.contains(u"32767"_s));
}

TEST_F(SalvaTest, EliminareChiedeEDiceDelMovimento) {
    p.nuovo(u"1"_s);
    p.documento.ddd[0] = rigaDi(1);
    p.salva();
    p.prova.operatore.risposte = {false};
    EXPECT_FALSE(p.elimina());
    EXPECT_EQ(p.prova.archivio.fte.leggi(1).annullata, 0);
    aggiungi(p.prova.archivio, p.prova.archivio.gio, Conta::Gio, vuoto<Gio>());
    EXPECT_TRUE(p.elimina());
    EXPECT_EQ(p.prova.operatore.messaggi.last().testo,
              u"Non è stato trovato alcun movimento contabile associato alla fattura"_s);
    EXPECT_FALSE(p.inSospeso());
    EXPECT_EQ(azienda.leggi(u"borlano.tot"_s).sliced(72, 6).toHex(), "010001000100");
    p.apri(1);
    p.salva();
    EXPECT_EQ(p.prova.archivio.fte.leggi(1).annullata, 0) << "a save brings the document back";
}

TEST_F(SalvaTest, FileDalNomeVecchioOMancante) {
    CoppiaFte coppia = documentoDi(1, u"12/A"_s, 100, 22);
    azienda.documento(coppia);
    p.apri(1);
    EXPECT_EQ(p.documento.ddd[0], Riga());
    EXPECT_EQ(p.documento.coppia.fte.nfile, -1.0F);
    EXPECT_EQ(p.documento.estremi.protocollo, u"1"_s) << "no protocol shows the record number";
    azienda.scrivi(u"FTR12.A15"_s,
                   " 1 \r\n 0 \r\nd\r\no\r\n\r\n\r\n\r\n 90 \r\n 2 \r\n1\r\n0\r\n12/A\r\n\r\n\r\n 3 \r\n\r\n"
                   "VITE\r\nVite\r\npz\r\n 5 \r\n 0 \r\n 99 \r\n2,5\r\n1.234,50\r\n 7");
    p.apri(1);
    const Riga& riga = p.documento.ddd[0];
    EXPECT_EQ(riga.quantita, 2.5);
    EXPECT_EQ(riga.prezzo, 1234.5);
    EXPECT_EQ(riga.iva, 99) << "a code outside the tables stays";
    EXPECT_EQ(p.documento.ddd[1].recart, 7);
    EXPECT_EQ(p.documento.testata.trasporto.causale, -1);
    EXPECT_EQ(p.documento.testata.trasporto.aspetto, 2);
    EXPECT_EQ(p.documento.testata.trasporto.spedizione, Mezzo::Destinatario);
    p.salva();
    EXPECT_TRUE(azienda.leggi(u"f1"_s).contains("\r\n 99 \r\n"));
}

} // namespace
} // namespace bor
