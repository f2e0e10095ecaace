// Rows of a document as text and back, and what a pasted text comes to.
#include "document/borftek.h"
#include "document/borftex.h"
#include "document/testorighe.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(TestoRighe, NumeriItalianiENonAltro) {
    const auto letto = [](const QString& testo) {
        const auto x = leggiNumeroItaliano(testo);
        return x ? QString::number(x->valore) + (x->dubbio ? u"?"_s : QString()) : u"-"_s;
    };
    for (const auto& [testo, atteso] :
         std::initializer_list<std::pair<QString, QString>>{{u"1.250,00"_s, u"1250"_s},
                                                            {u"1250,5"_s, u"1250.5"_s},
                                                            {u"1.250"_s, u"1250?"_s},
                                                            {u"12.5"_s, u"12.5"_s},
                                                            {u"€ 3,10"_s, u"3.1"_s},
                                                            {u"10%"_s, u"10"_s},
                                                            {u"-2"_s, u"-2"_s},
                                                            {u"\u22122,5"_s, u"-2.5"_s},
                                                            {u",5"_s, u"0.5"_s},
                                                            {u"1\u00A0250,00"_s, u"1250"_s},
                                                            {u"1.234.567"_s, u"1.23457e+06"_s},
                                                            {u"1,250.00"_s, u"-"_s},
                                                            {u"12 5"_s, u"-"_s},
                                                            {u"1.25.3"_s, u"-"_s},
                                                            {u"12a"_s, u"-"_s},
                                                            {u""_s, u"-"_s},
                                                            {u"-"_s, u"-"_s},
                                                            {u"1E5"_s, u"-"_s},
                                                            {u"1234567890123456"_s, u"-"_s},
                                                            {u"12,"_s, u"-"_s}})
        EXPECT_EQ(letto(testo), atteso) << qPrintable(testo);
}

TEST(TestoRighe, CelleDiUnFoglioDiCalcolo) {
    EXPECT_EQ(celleDi(u"a\t\"b\tc\nd\"\"e\"\tf\r\n\"3\" tubo\t'=1+1\n"_s),
              (QList<QStringList>{{u"a"_s, u"b c d\"e"_s, u"f"_s}, {u"\"3\" tubo"_s, u"=1+1"_s}}));
    EXPECT_TRUE(testoDiRighe(u"a\tb") && testoDiRighe(u"a\nb\n"));
    EXPECT_FALSE(testoDiRighe(u"a\r\n") || testoDiRighe(u"") || testoDiRighe(u"a b"));
    Riga riga;
    riga.descrizione = u"=cmd"_s;
    riga.quantita = -2;
    EXPECT_EQ(testoRighe(std::span(&riga, 1)), u"\t'=cmd\t\t-2\t\t\t\t\n");
}

class IncollaTest : public testing::Test {
protected:
    IncollaTest() {
        Cli cli = clienteDi(u"Rossi"_s);
        cli.sconto1 = 7;
        azienda.cliente(cli);
        azienda.articolo(articoloDi(u"VITE"_s, u"Vite"_s, 2.5, 1));
        azienda.articolo(articoloDi(u"VITE10"_s, u"Vite lunga"_s, 5, 13));
        contesto.emplace(azienda);
        Prx testi = vuoto<Prx>();
        testi.marca = Prx::marcaValida;
        testi.riga[0].set(u"Acciaio inox");
        contesto->archivio.prx.scrivi(2, testi);
        documento.recordcliente = 1;
        contesto->impostazioni.gnr.righemodulo.set(u"03");
        form.emplace(contesto->contesto, documento);
        form->attiva();
    }
    const Riga& riga(int n) const { return form->righe().riga(n); }
    QString rilievi(const QString& testo) {
        QStringList tutti;
        for (const RigaIncollata& r : form->appunti().prova(testo).righe)
            tutti.append(u"%1:%2:%3"_s.arg(r.linea).arg(r.dentro ? u"si"_s : u"no"_s, r.rilievi.join(u'/')));
        return tutti.join(u'|');
    }

    AziendaDiProva azienda;
    std::optional<ContestoDiProva> contesto;
    Documento documento;
    std::optional<Borftex> form;
};

TEST_F(IncollaTest, LeRigheCopiateTornanoUgualiColLoroArticolo) {
    form->appunti().incolla(u"VITE10\t\t\t3\nCodice no\tMano d'opera\th\t1,5\t10\t\t1.042,50\t02\n"_s);
    EXPECT_EQ(riga(1).recart, 2);
    EXPECT_EQ(riga(1).descrizione, u"Vite lunga");
    EXPECT_EQ(riga(1).prezzo, 5);
    EXPECT_EQ(riga(1).sconto1, 7) << "price and discount of the list";
    EXPECT_EQ(riga(1).iva, CodiceIva(13));
    EXPECT_EQ(riga(2).descrizione, u"Acciaio inox") << "additional text of the article";
    EXPECT_EQ(riga(3), (Riga{.descrizione = u"Mano d'opera"_s,
                             .um = u"h"_s,
                             .sconto1 = 10,
                             .iva = 2,
                             .quantita = 1.5,
                             .prezzo = 1042.5}));
    // Up from the row behind them, and put in once more in front of the first.
    form->entra({Borftex::Campo::Artic, 2});
    form->appunti().scegli(-1);
    form->appunti().scegli(-1);
    EXPECT_TRUE(form->appunti().scelta(1) && form->appunti().scelta(3) && !form->appunti().scelta(4));
    const QString copia = form->appunti().copia();
    EXPECT_EQ(copia, u"VITE10\tVite lunga\tpz\t3\t7\t\t5\t13\n\tAcciaio inox\t\t\t\t\t\t\n"
                     "\tMano d'opera\th\t1,5\t10\t\t1042,5\t02\n");
    EXPECT_FALSE(form->appunti().prova(copia).conRilievi());
    form->appunti().incolla(copia);
    EXPECT_FALSE(form->appunti().scelta(1));
    for (int n = 1; n <= 3; ++n)
        EXPECT_EQ(riga(n), riga(n + 3)) << n;
    EXPECT_EQ(riga(7), Riga());
}

TEST_F(IncollaTest, CiòCheNonSiCapisceEDettoRigaPerRiga) {
    const QString testo = u"Articolo\tDescrizione\tUM\n"
                          "ZZ\tAltro\tpezzi\tdue\t5,5\t120\t1.250\t37\tin più\n\n"
                          "VITE\tVite\t\t1\t\t\t2,50\t04\n"
                          "\t"_s +
                          QString(70, u'x');
    EXPECT_EQ(rilievi(testo),
              u"1:no:è l'intestazione delle colonne: non entra|"
              "2:si:le colonne oltre la 8 non entrano/l'articolo \"ZZ\" non c'è: riga senza articolo/"
              "unità di misura: più di 2 caratteri, il resto non entra/codice iva: \"37\" non va, vale "
              "quello proposto/"
              "quantità: \"due\" non è un numero, resta senza/prezzo: \"1.250\" è letto come 1250/"
              "sconto: \"5,5\" non va, resta senza/sconto: \"120\" non va, resta senza|"
              "4:si:|5:si:descrizione: più di 60 caratteri, il resto non entra");
    EXPECT_EQ(riga(1), Riga()) << "nothing is put in yet";
    form->appunti().incolla(testo);
    EXPECT_EQ(riga(1), (Riga{.descrizione = u"Altro"_s, .um = u"pe"_s, .iva = 3, .prezzo = 1250}));
    EXPECT_EQ(riga(2).recart, 1);
    EXPECT_EQ(riga(2).iva, CodiceIva(4));
    EXPECT_EQ(riga(2).sconto1, 0) << "a price of its own";
    EXPECT_EQ(riga(3).descrizione.size(), 60);
    // Without any tab: codes where they are some, else descriptions.
    EXPECT_EQ(rilievi(u"vite\nRiferimento ordine 12\n"_s), u"1:si:|2:si:");
}

TEST_F(IncollaTest, LeRigheInUsoNonVannoPerdute) {
    TabellaRighe piene(righeMerce);
    for (std::size_t i = 0; i < 498; ++i)
        piene[i].descrizione = QString::number(i);
    documento.ddd = piene;
    form->attiva();
    const QString testo = u"\tuno\nVITE10\t\n\ttre\n\tquattro\n"_s;
    EXPECT_EQ(rilievi(testo), u"1:si:|2:no:non entra: le righe del documento sono finite|3:si:|"
                              "4:no:non entra: le righe del documento sono finite");
    form->appunti().incolla(testo);
    EXPECT_EQ(riga(1).descrizione + riga(2).descrizione + riga(3).descrizione + riga(500).descrizione,
              u"unotre0497");
    EXPECT_TRUE(contesto->operatore.messaggi.isEmpty());
}

TEST_F(IncollaTest, QualunqueTestoLasciaUnDocumentoIntero) {
    const QString alfabeto = u"\t\t\t\n\n\r\"\"VITE10 ,.-=1239€%è"_s + QChar(0) + QChar(0xD83D);
    QRandomGenerator caso(7);
    for (int volta = 0; volta < 200; ++volta) {
        QString testo;
        for (int i = 0; i < 120; ++i)
            testo += alfabeto[caso.bounded(alfabeto.size())];
        form->attiva();
        const Incollate prova = form->appunti().prova(testo);
        form->appunti().incolla(testo);
        int inUso = 0;
        for (const Riga& r : form->righe().tutte()) {
            ASSERT_LE(r.descrizione.size(), 60);
            ASSERT_TRUE(r.iva.nessuno() || r.iva.valido());
            inUso += r != Riga() ? 1 : 0;
        }
        ASSERT_EQ(std::ssize(form->righe().tutte()), righeMerce);
        ASSERT_LE(inUso, prova.inserite);
    }
}

TEST_F(IncollaTest, RigheDiParcella) {
    documento.coppia.fte.parcella = 1;
    Borftek parcella(contesto->contesto, documento);
    parcella.attiva();
    const QString testo = u"31/02/2015\tUdienza\t16,00\t\t1.200,00\n\tCopie\tx\n"_s;
    const Incollate prova = parcella.appunti().prova(testo);
    EXPECT_EQ(prova.righe[0].rilievi, QStringList{u"la data 31/02/2015 non esiste: resta com'è scritta"_s});
    EXPECT_EQ(prova.righe[1].rilievi, QStringList{u"anticipazioni: \"x\" non è un numero, resta senza"_s});
    parcella.appunti().incolla(testo);
    EXPECT_EQ(parcella.righe()[0], (Rigap{u"31/02/2015"_s, u"Udienza"_s, 0, 16, 1200}));
    parcella.entra({Borftek::Campo::Data, 0});
    parcella.appunti().scegli(1);
    EXPECT_TRUE(parcella.appunti().scelta(2) && !parcella.appunti().scelta(3));
    EXPECT_EQ(parcella.appunti().copia(), u"31/02/2015\tUdienza\t16\t\t1200\n\tCopie\t\t\t\n");

    parcella.scorri(189);
    parcella.entra({Borftek::Campo::Data, 11});
    const QString lungo = u"\t\tx\n\tultima\n\taltra\n"_s;
    parcella.appunti().incolla(lungo);
    parcella.appunti().incolla(u"\tultima\n\taltra\n"_s);
    EXPECT_EQ(parcella.righe().back().descrizione, u"ultima");
    EXPECT_EQ(std::ssize(parcella.righe()), righeParcella);
    EXPECT_EQ(parcella.appunti().prova(lungo).inserite, 0);
}

} // namespace
} // namespace bor
