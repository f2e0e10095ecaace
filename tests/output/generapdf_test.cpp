// Starting the PDF tool, and attaching a PDF by hand.
#include "archive/rapportodicorsa.h"
#include "output/generapdf.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

#include <QFile>

#include <optional>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class PdfTest : public testing::Test {
protected:
    PdfTest() {
        prova.impostazioni.generaPdf = true;
        documento.estremi.numero = u"12/A"_s;
        documento.cliente.email.set(u"conti@rossi.example");
    }
    QString argomento() const { return prova.sistema.avviati.value(0).value(1); }

    AziendaDiProva azienda;
    ContestoDiProva prova{azienda};
    Documento documento;
};

TEST_F(PdfTest, LaRigaDiComandoELNomeNelDocumento) {
    generapdf(documento, prova.contesto);
    ASSERT_EQ(prova.sistema.avviati.size(), 1);
    EXPECT_TRUE(prova.sistema.avviati[0][0].endsWith(u"/suprok/suprok/borxpdf"_s));
    EXPECT_EQ(argomento(),
              u"\\suprok\\suprok\\boraz0.007\\borlano.lxf,c:\\bordoc.rto,\\suprok\\pdf\\ftr12.pdf,***"_s);
    EXPECT_EQ(documento.estremi.pdf, u"\\suprok\\pdf\\ftr12.pdf"_s);

    azienda.scrivi(u"borlano.pdf"_s,
                   "\\docs\r\nogg\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\nIn allegato, la parcella.\r\n");
    documento.coppia.fte.parcella = 1;
    documento.estremi.postael = true;
    prova.sistema.avviati.clear();
    generapdf(documento, prova.contesto);
    EXPECT_EQ(argomento(), u"\\suprok\\suprok\\boraz0.007\\borlano.lxp,c:\\bordoc.rto,\\docs\\par12.pdf,"
                           "conti@rossi.example,In allegato, la parcella."_s);
}

TEST_F(PdfTest, IndirizziCheNonSonoUnoSoloNonPartono) {
    documento.estremi.postael = true;
    for (const QStringView cattivo :
         {u"a@b.it,c@d.it", u"a@b.it;c@d.it", u"a b@c.it", u"a@b.it\ncc", u"niente", u""}) {
        documento.cliente.email.set(cattivo);
        generapdf(documento, prova.contesto);
        EXPECT_TRUE(prova.operatore.messaggi.back().testo.startsWith(u"L'indirizzo di posta"_s));
    }
    for (const QStringList& avvio : prova.sistema.avviati)
        EXPECT_TRUE(avvio[1].endsWith(u"ftr12.pdf,***"_s)) << "the PDF is made, the mail is not sent";
    EXPECT_EQ(prova.sistema.avviati.size(), 6);
}

TEST_F(PdfTest, SpentoRifiutatoONonAvviatoNonLasciaNomi) {
    prova.sistema.esitoAvvia = false;
    generapdf(documento, prova.contesto);
    EXPECT_EQ(prova.operatore.messaggi.back().testo,
              u"Non è possibile eseguire il programma invio del documento a mezzo internet."_s);
    prova.operatore.rispostaSolita = false;
    generapdf(documento, prova.contesto);
    prova.impostazioni.generaPdf = false;
    prova.operatore.domande.clear();
    generapdf(documento, prova.contesto);
    EXPECT_TRUE(prova.operatore.domande.isEmpty());
    EXPECT_EQ(documento.estremi.pdf, QString());
}

TEST_F(PdfTest, UnNomeCheIlRecordTaglierebbeERifiutatoPrima) {
    const auto conCartella = [&](int caratteri) {
        azienda.scrivi(u"borlano.pdf"_s, '\\' + QByteArray(caratteri - 1, 'd') + "\r\n");
        generapdf(documento, prova.contesto);
    };
    constexpr int nome = 10; // \ftr12.pdf
    conCartella(60 - nome);
    ASSERT_EQ(prova.sistema.avviati.size(), 1);
    EXPECT_EQ(documento.estremi.pdf.size(), 60);
    documento.estremi.pdf.clear();
    conCartella(61 - nome);
    EXPECT_EQ(prova.sistema.avviati.size(), 1);
    EXPECT_EQ(prova.operatore.messaggi.back().testo,
              u"Il nome del file e della sua cartella superano i 60 caratteri"_s);
    EXPECT_EQ(documento.estremi.pdf, QString());
}

TEST_F(PdfTest, DueProgrammiNonSiScambianoLeStampe) {
    const auto stampa = [&](ContestoDiProva& suo, const char* testo) {
        suo.archivio.disco().scriviFile(suo.archivio.reale(suo.contesto.rapporto), testo);
    };
    std::optional<RapportoDiCorsa> primo(azienda.percorsi());
    prova.contesto.rapporto = primo->nome();
    ContestoDiProva altro(azienda);
    const RapportoDiCorsa secondo(azienda.percorsi());
    altro.contesto.rapporto = secondo.nome();
    stampa(prova, "Rossi");
    stampa(altro, "Bianchi");
    generapdf(documento, prova.contesto);
    EXPECT_EQ(argomento().section(u',', 1, 1), u"c:\\bordoc.rto"_s);
    QFile file(azienda.percorsi().reale(u"c:\\bordoc.rto").value());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "Rossi");
    EXPECT_EQ(secondo.nome(), u"c:\\bordoc2.rto");
    primo.reset();
    EXPECT_EQ(RapportoDiCorsa(azienda.percorsi()).nome(), u"c:\\bordoc.rto");
}

TEST_F(PdfTest, UnPdfSceltoAManoPerdeLUnita) {
    prova.operatore.fileScelto = azienda.percorsi().radiceCorrente() + u"/suprok/PDF/x.pdf"_s;
    scegliPdf(documento, prova.contesto);
    EXPECT_EQ(documento.estremi.pdf, u"\\suprok\\PDF\\x.pdf"_s);
    prova.operatore.fileScelto = azienda.percorsi().radiceCorrente() + u"/c/y.pdf"_s;
    scegliPdf(documento, prova.contesto);
    EXPECT_EQ(documento.estremi.pdf, u"\\c\\y.pdf"_s) << "the current drive comes first";
    prova.operatore.fileScelto = azienda.percorsi().radiceCorrente() + u"/suprok/x.txt"_s;
    scegliPdf(documento, prova.contesto);
    prova.operatore.fileScelto = u"/altrove/z.pdf"_s;
    scegliPdf(documento, prova.contesto);
    EXPECT_EQ(prova.operatore.messaggi.size(), 1);
    EXPECT_EQ(documento.estremi.pdf, u"\\c\\y.pdf"_s);
}

TEST_F(PdfTest, IlPdfDiUnAltroDocumentoSiDiceLaPostaNonAncora) {
    CoppiaFte vecchia = documentoDi(1, u"12"_s, 1, 0);
    vecchia.fte.datadoc.set(u"20140102");
    vecchia.f2e.pdf.set(u"\\suprok\\PDF\\ftr12.pdf");
    documento.recordfattura = azienda.documento(vecchia);
    documento.estremi.postael = true;
    generapdf(documento, prova.contesto);
    EXPECT_EQ(prova.operatore.domande.size(), 1) << "its own PDF";
    EXPECT_TRUE(argomento().endsWith(u",conti@rossi.example"_s));
    EXPECT_TRUE(prova.operatore.messaggi.isEmpty()) << "how the mail went is told by who sends it";

    documento.recordfattura = 2;
    documento.estremi.pdf.clear();
    prova.operatore.risposte = {true, false};
    generapdf(documento, prova.contesto);
    EXPECT_TRUE(prova.operatore.domande.back().testo.contains(u"n. 12 del 02/01/2014"_s));
    EXPECT_EQ(prova.operatore.domande.back().predefinita, Predefinita::No);
    EXPECT_EQ(prova.sistema.avviati.size(), 1);
    EXPECT_EQ(documento.estremi.pdf, QString());
    generapdf(documento, prova.contesto);
    EXPECT_EQ(prova.sistema.avviati.size(), 2);
}

} // namespace
} // namespace bor
