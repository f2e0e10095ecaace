#include "ui/vistaborftel.h"

#include "fatturapa/schermatafel.h"
#include "ui/finestrafattura.h"
#include "ui/gesti.h"

#include <QClipboard>
#include <QComboBox>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

QString nelFile(VistaBorftel& vista, const QString& nome) {
    return controllo<QLabel>(vista, u"nelfile."_s + nome)->text().remove(u"→\u00A0"_s);
}

TEST(VistaBorftel, SiCompilaDallaTastieraSiGeneraESiCopiaIlPercorso) {
    SchermataFel s;
    VistaBorftel vista(s.form);
    mostra(vista);
    EXPECT_EQ(fuoco(vista), u"codice"_s);
    EXPECT_EQ(nelFile(vista, u"Codice destinatario"_s), u"0000000"_s);
    EXPECT_FALSE(controllo(vista, u"copia"_s)->isEnabled());
    scrivi(vista, u"abc1234"_s);
    EXPECT_EQ(nelFile(vista, u"Codice destinatario"_s), u"ABC1234"_s);
    const auto invio = [&] { tasto(vista, Qt::Key_Return); };
    for (const QString& nome : {u"pec"_s, u"splitpayment"_s, u"intento"_s, u"intentoricezione"_s,
                                u"modalita"_s, u"rate"_s, u"tipo"_s}) {
        invio();
        EXPECT_EQ(fuoco(vista), nome);
    }
    scrivi(vista, u"TD25"_s);
    EXPECT_EQ(nelFile(vista, u"Tipo documento"_s), u"TD25 Fattura differita, triangolare"_s);
    controllo(vista, u"collegatanumero"_s)->setFocus();
    scrivi(vista, u"7"_s);
    invio();
    scrivi(vista, u"280215"_s);
    foto(vista, u"fatturaelettronica"_s);
    tasto(vista, Qt::Key_F10); // the date is settled as if its field were left
    const QByteArray xml = s.contenuto();
    EXPECT_TRUE(xml.contains("<TipoDocumento>TD25</TipoDocumento>"));
    EXPECT_TRUE(xml.contains("<Data>2015-02-28</Data>"));
    EXPECT_EQ(testoDi(vista, u"statofile"_s), u"File generato: "_s + s.xml());
    EXPECT_TRUE(s.prova.operatore.messaggi.isEmpty());
    tasto(vista, Qt::Key_F5);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), s.xml());
    tasto(vista, Qt::Key_F6);
    EXPECT_EQ(s.prova.sistema.aperti, QStringList{QFileInfo(s.xml()).path()});
    tasto(vista, Qt::Key_Escape);
    EXPECT_EQ(s.prova.navigatore.mostrati, QList{Schermo::Borfte});
}

TEST(VistaBorftel, IRilieviStannoAccantoAiCampiEF8VaDallUnoAllAltro) {
    SchermataFel s;
    VistaBorftel vista(s.form);
    mostra(vista);
    const auto* accanto = controllo<QLabel>(vista, u"rilievi.Codice destinatario"_s);
    EXPECT_FALSE(accanto->isVisible());
    scrivi(vista, u"A"_s);
    EXPECT_FALSE(accanto->isVisible()) << "nothing moves while one types";
    tasto(vista, Qt::Key_Return);
    EXPECT_TRUE(accanto->isVisible());
    foto(vista, u"fatturaelettronica-rilievo"_s);
    EXPECT_EQ(controllo(vista, u"codice"_s)->accessibleDescription(), accanto->text());
    tasto(vista, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(fuoco(vista), u"iban"_s);
    foto(vista, u"fatturaelettronica-azienda"_s);
    EXPECT_TRUE(controllo(vista, u"natura(18)"_s)->isVisible());
    EXPECT_FALSE(controllo(vista, u"natura(1)"_s)->isVisible());
    QStringList visti;
    for (int i = 0; i < 3; ++i) {
        tasto(vista, Qt::Key_F8);
        visti << fuoco(vista);
    }
    EXPECT_TRUE(visti.contains(u"codice"_s));
    EXPECT_TRUE(visti.contains(u"righe"_s)) << "the lines are not on file";
    tasto(vista, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(controllo<QTableView>(vista, u"righe"_s)->model()->rowCount(), 1);
    foto(vista, u"fatturaelettronica-righe"_s);
}

TEST(VistaBorftel, ChiEsceDaUnaDataAMetaEsceESoloDopoUnaDomanda) {
    SchermataFel s;
    VistaBorftel vista(s.form);
    mostra(vista);
    controllo(vista, u"intentoricezione"_s)->setFocus();
    scrivi(vista, u"280215"_s);
    s.prova.operatore.risposte = {false, true};
    tasto(vista, Qt::Key_Escape);
    EXPECT_TRUE(s.prova.navigatore.mostrati.isEmpty());
    tasto(vista, Qt::Key_Escape);
    EXPECT_EQ(s.prova.navigatore.mostrati, QList{Schermo::Borfte});
    vista.hide();
    vista.focusWidget()->clearFocus();
    s.form.genera();
    EXPECT_FALSE(QFile::exists(s.azienda.percorso(u"borlano.fel"_s)));
}

TEST(VistaBorftel, F7MostraLaFatturaComeEsce) {
    SchermataFel s;
    VistaBorftel vista(s.form);
    mostra(vista);
    tasto(vista, Qt::Key_F7);
    auto* lettura = controllo<QDialog>(vista, u"lettura"_s);
    ASSERT_TRUE(lettura && lettura->isVisible());
    EXPECT_TRUE(
        controllo<QTextBrowser>(*lettura, u"pagina"_s)->toPlainText().contains(u"Ferramenta Lucci"_s));
    foto(*lettura, u"lettura"_s);
    QTest::keyClick(lettura, Qt::Key_Escape);
    EXPECT_FALSE(lettura->isVisible());
    EXPECT_TRUE(s.contenuto().isEmpty()) << "reading makes no file";
}

/// An invoice of many lines, whose descriptions try to get out of their place.
QByteArray ostile(int righe) {
    QByteArray linee;
    for (int i = 1; i <= righe; ++i)
        linee += "<DettaglioLinee><NumeroLinea>" + QByteArray::number(i) +
                 "</NumeroLinea><Descrizione>&lt;img src=\"http://x.example/a.png\"&gt;&lt;a "
                 "href=\"file:///etc/passwd\"&gt;qui&lt;/a&gt;</Descrizione></DettaglioLinee>";
    return "<p:FatturaElettronica xmlns:p=\"http://ivaservizi.agenziaentrate.gov.it/docs/xsd/fatture/v1.2\" "
           "versione=\"FPR12\"><FatturaElettronicaBody><DatiBeniServizi>" +
           linee + "</DatiBeniServizi></FatturaElettronicaBody></p:FatturaElettronica>";
}

TEST(FinestraFattura, SiScorreDaTastieraSiSalvaInPdfENullaDelFileEMarcatura) {
    auto* finestra = new FinestraFattura(ostile(200), {});
    finestra->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(finestra));
    auto* pagina = controllo<QTextBrowser>(*finestra, u"pagina"_s);
    EXPECT_TRUE(pagina->toPlainText().contains(u"<img src="_s));
    for (QTextBlock blocco = pagina->document()->begin(); blocco.isValid(); blocco = blocco.next())
        for (const auto& tratto : blocco.textFormats())
            EXPECT_FALSE(tratto.format.isAnchor() || tratto.format.isImageFormat());
    QTest::keyClick(finestra->focusWidget(), Qt::Key_PageDown);
    EXPECT_GT(pagina->verticalScrollBar()->value(), 0);
    const QTemporaryDir cartella;
    EXPECT_TRUE(finestra->scriviPdf(cartella.filePath(u"f.pdf"_s)));
    QFile pdf(cartella.filePath(u"f.pdf"_s));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.readAll().startsWith("%PDF"));
    EXPECT_FALSE(finestra->scriviPdf(cartella.filePath(u"manca/f.pdf"_s)));
    finestra->close();
}

} // namespace
} // namespace bor
