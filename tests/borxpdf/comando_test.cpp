#include "borxpdf/comando.h"
#include "borxpdf/impostazioniposta.h"
#include "common/indirizzoposta.h"
#include "prova.h"

using namespace Qt::StringLiterals;
using namespace bor;
using namespace bor::pdf;

TEST(Comando, DivideLaRigaEIlTestoTieneLeSueVirgole) {
    const auto uno = ComandoPdf::leggi(
        {u"\\s\\b.lxf,c:\\bordoc.rto,\\pdf\\ftr1.pdf,a@b.it,Gentile cliente, ecco, saluti"_s});
    ASSERT_TRUE(uno);
    EXPECT_EQ(uno->layout, u"\\s\\b.lxf"_s);
    EXPECT_EQ(uno->pdf, u"\\pdf\\ftr1.pdf"_s);
    EXPECT_EQ(uno->indirizzo, u"a@b.it"_s);
    EXPECT_EQ(uno->testo, u"Gentile cliente, ecco, saluti"_s);
    EXPECT_EQ(ComandoPdf::leggi(uno->argomenti())->argomenti(), uno->argomenti());

    const auto spezzato = ComandoPdf::leggi({u"l,r,\\miei"_s, u"pdf\\f.pdf,***,due"_s, u"parole"_s});
    ASSERT_TRUE(spezzato);
    EXPECT_EQ(spezzato->pdf, u"\\miei pdf\\f.pdf"_s);
    EXPECT_EQ(spezzato->testo, u"due parole"_s);

    EXPECT_TRUE(ComandoPdf::leggi({u"--anteprima"_s, u"l,r"_s})->anteprima);
    for (const QStringList& monca :
         {QStringList{}, {u"l,r"_s}, {u"l,r,p.pdf"_s}, {u"l,r,,***"_s}, {u"--anteprima"_s}})
        EXPECT_FALSE(ComandoPdf::leggi(monca)) << qPrintable(monca.join(u'|'));
}

TEST(LayoutPdf, LeggeFoglioTagliETestiNelleDueCodifiche) {
    const LayoutPdf latino(
        FileIni("; nota\r\n[Pagina]\r\nformato=A5\r\ntaglio_alto=10,5\r\nTaglio_Destra = 8\r\n"
                "senza uguale\r\n[documento]\r\nautore=Citt\xe0\r\n"));
    EXPECT_EQ(latino.pagina(), QSizeF(140, 199.5));
    EXPECT_EQ(latino.autore, u"Città"_s);
    EXPECT_EQ(LayoutPdf(FileIni("[documento]\nautore=Citt\xc3\xa0\n")).autore, u"Città"_s);
    for (const char* assurdo : {"[pagina]\nlarghezza=1e9\naltezza=-4", "[pagina]\ntaglio_alto=290",
                                "[pagina\n=\n\xff", "[pagina]\nlarghezza=nan\ntaglio_alto=-5"})
        EXPECT_EQ(LayoutPdf(FileIni(assurdo)).pagina(), QSizeF(210, 297)) << assurdo;
    EXPECT_EQ(conNumero(u"Fattura {numero}\\nSaluti"_s, u"\\a1\\ftr12.PDF"_s), u"Fattura 12\nSaluti"_s);
}

TEST(Indirizzo, UnoSoloESenzaNullaChePassiPerAltro) {
    for (const QString& buono :
         {u"info@rossi.it"_s, u"m.rossi+fatture@posta.rossi-bianchi.com"_s, u"a@localhost"_s})
        EXPECT_TRUE(indirizzoValido(buono)) << qPrintable(buono);
    for (const QString& cattivo :
         {u""_s, u"rossi"_s, u"@rossi.it"_s, u"a@"_s, u"a@b.it\nBcc: c@d.it"_s, u"a@b.it\n"_s, u"a@b.it\r"_s,
          QString(u"a@b.it"_s + QChar(0)), u"a@b.it,c@d.it"_s, u"a@b.it;c@d.it"_s, u"a@b.it c@d.it"_s,
          u"a@b@c.it"_s, u"<a@b.it>"_s, u"\"a b\"@c.it"_s, u"a@-b.it"_s, u"a..b@c.it"_s, u"perù@b.it"_s,
          QString(300, u'a') + u"@b.it"_s})
        EXPECT_FALSE(indirizzoValido(cattivo)) << qPrintable(cattivo);
}

TEST(ImpostazioniPosta, DiceCheCosaMancaOCheCosaNonÈSicuro) {
    const Unita unita;
    unita.scrivi(u"c:\\posta.pwd"_s, "segreta\r\n");
    QFile::setPermissions(unita.reale(u"c:\\posta.pwd"_s),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    const QByteArray base = "[posta]\nserver=smtp.rossi.it\nmittente=info@rossi.it\n";
    const struct {
        QByteArray ini;
        const char16_t* parola;
    } casi[] = {
        {"", u"manca il server"},
        {"[posta]\nserver=smtp.rossi.it", u"manca l'indirizzo del mittente"},
        {"[posta]\nserver=http://x/y\nmittente=a@b.it", u"nome del server"},
        {"[posta]\nserver=smtp.rossi.it\nmittente=a@b.it, c@d.it", u"mittente non è valido"},
        {base + "sicurezza=nessuna", u"su questo computer"},
        {base + "sicurezza=boh", u"boh"},
        {base + "porta=70000", u"porta"},
        {base + "utente=io", u"chmod 600"},
        {base + "utente=io\npassword_file=c:\\assente.pwd", u"/c/assente.pwd"},
        {base + "utente=io\npassword_file=\\..\\..\\etc\\passwd", u"non si può leggere"},
    };
    for (const auto& caso : casi) {
        QString errore;
        EXPECT_FALSE(ImpostazioniPosta::leggi(FileIni(caso.ini), unita.percorsi(), errore))
            << caso.ini.data();
        EXPECT_TRUE(errore.contains(QStringView(caso.parola))) << caso.ini.data() << qPrintable(errore);
    }

    QFile::setPermissions(unita.reale(u"c:\\posta.pwd"_s), QFile::ReadOwner | QFile::WriteOwner);
    QString errore;
    const auto posta =
        ImpostazioniPosta::leggi(FileIni(base + "utente=io\nsicurezza=TLS"), unita.percorsi(), errore);
    ASSERT_TRUE(posta) << qPrintable(errore);
    EXPECT_EQ(posta->password, "segreta");
    EXPECT_EQ(posta->porta, 465);
}
