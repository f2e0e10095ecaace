#include "borxpdf/comando.h"
#include "borxpdf/impostazioniposta.h"
#include "borxpdf/lotto.h"
#include "borxpdf/posta.h"
#include "common/lottopdf.h"
#include "common/registroposta.h"
#include "prova.h"
#include "serverposta.h"

#include <QBuffer>
#include <QFile>
#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace bor;
using namespace bor::pdf;

namespace {

/// The decoded body of the message's part of this type.
QByteArray parte(const QByteArray& messaggio, const QByteArray& tipo) {
    const qsizetype testa = messaggio.indexOf("Content-Type: " + tipo);
    const qsizetype inizio = messaggio.indexOf("\r\n\r\n", testa) + 4;
    return testa < 0
               ? QByteArray()
               : QByteArray::fromBase64(messaggio.mid(inizio, messaggio.indexOf("\r\n--", inizio) - inizio));
}

qsizetype quanti(const QByteArrayList& comandi, const QByteArray& inizio) {
    return std::count_if(comandi.begin(), comandi.end(),
                         [&](const QByteArray& c) { return c.startsWith(inizio); });
}

ImpostazioniPosta posta(const ServerPosta& server, Sicurezza sicurezza) {
    return {.server = u"localhost"_s,
            .porta = server.porta(),
            .sicurezza = sicurezza,
            .mittente = u"info@rossi.it"_s,
            .nome = u"Rossi \"Città\" Srl"_s};
}

Messaggio messaggio() {
    return {.destinatario = u"ada@bianchi.it"_s,
            .oggetto = u"Fattura 12"_s,
            .testo = u"Perché no?\n.\nSaluti"_s,
            .allegati = {{u"ftr12.pdf"_s, QByteArray("%PDF\r\n.\r\n\0\xff", 12).repeated(5000)}}};
}

class PostaCifrata : public testing::Test {
protected:
    void SetUp() override {
        m_fileCertificato = m_cartella.filePath(u"cert.pem"_s);
        const QString chiave = m_cartella.filePath(u"key.pem"_s);
        QProcess openssl;
        openssl.start(u"openssl"_s,
                      {u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-batch"_s,
                       u"-subj"_s, u"/CN=localhost"_s, u"-addext"_s, u"subjectAltName=DNS:localhost"_s,
                       u"-keyout"_s, chiave, u"-out"_s, m_fileCertificato});
        ASSERT_TRUE(openssl.waitForFinished());
        QFile file(chiave);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        m_certificato = {QSslCertificate::fromPath(m_fileCertificato).value(0),
                         QSslKey(file.readAll(), QSsl::Rsa)};
    }

    QTemporaryDir m_cartella;
    QString m_fileCertificato;
    Certificato m_certificato;
};

} // namespace

TEST(Posta, IlComandoSpedisceTestoEPdfInteri) {
    const Unita unita;
    ServerPosta server({});
    unita.scrivi(u"c:\\bordoc.rto"_s, dueFogli());
    unita.scrivi(u"\\suprok\\suprok\\boraz0.007\\borlano.pdf"_s,
                 "\r\nLa fattura n. {numero} \x96 perch\xe9\r\n");
    unita.scrivi(u"\\suprok\\suprok\\borxpdf.ini"_s,
                 "[posta]\nserver=127.0.0.1\nsicurezza=nessuna\nmittente=info@rossi.it\nporta=" +
                     QByteArray::number(server.porta()));
    QString errore;
    ASSERT_TRUE(
        esegui(*ComandoPdf::leggi(
                   {u"\\suprok\\suprok\\boraz0.007\\borlano.lxf,c:\\bordoc.rto,\\suprok\\pdf\\ftr12.pdf,"
                    "ada@bianchi.it,Gentile Città, ecco\\nSaluti"_s}),
               unita.percorsi(), errore))
        << qPrintable(errore);

    ASSERT_EQ(server.messaggi().size(), 1);
    EXPECT_TRUE(server.comandi().contains("MAIL FROM:<info@rossi.it>"));
    EXPECT_TRUE(server.comandi().contains("RCPT TO:<ada@bianchi.it>"));
    const QByteArray ricevuto = server.messaggi().first();
    EXPECT_EQ(parte(ricevuto, "text/plain; charset=utf-8"), "Gentile Citt\xc3\xa0, ecco\r\nSaluti");
    const QByteArray pdf = parte(ricevuto, "application/pdf");
    EXPECT_TRUE(pdf.startsWith("%PDF-") && pdf == unita.leggi(u"\\suprok\\pdf\\ftr12.pdf"_s));
    EXPECT_TRUE(ricevuto.contains("filename=\"ftr12.pdf\""));
    EXPECT_TRUE(ricevuto.contains("Subject: =?UTF-8?B?" +
                                  QByteArray("La fattura n. 12 \xe2\x80\x93 perch\xc3\xa9").toBase64() +
                                  "?=\r\n"));
}

TEST(Posta, UnLottoFaIPdfELiSpedisceInsiemeEUnGuastoNonFermaGliAltri) {
    const Unita unita;
    ServerPosta server({});
    unita.scrivi(u"\\suprok\\suprok\\borxpdf.ini"_s,
                 "[posta]\nserver=127.0.0.1\nsicurezza=nessuna\nmittente=info@rossi.it\nporta=" +
                     QByteArray::number(server.porta()));
    const QString layout = u"\\suprok\\suprok\\boraz0.007\\borlano.lxf"_s;
    const QByteArray guasto = dueFogli().chopped(30);
    const auto unPdf = [&](const QString& nome, const QByteArray& rapporto) {
        return ComandoLotto{.layout = layout, .pdf = nome, .byte = rapporto.size()}.linea() + rapporto;
    };
    const QStringList pdf = {u"\\p\\ftr1.pdf"_s, u"\\p\\ftr3.pdf"_s};
    QByteArray ingresso =
        unPdf(pdf[0], dueFogli()) + unPdf(u"\\p\\ftr2.pdf"_s, guasto) + unPdf(pdf[1], dueFogli()) +
        ComandoLotto{.layout = layout, .indirizzo = u"ada@bianchi.it"_s, .allegati = pdf}.linea() +
        ComandoLotto{.layout = layout, .indirizzo = u"no"_s, .allegati = pdf}.linea();
    QBuffer comandi(&ingresso);
    QBuffer risposte;
    ASSERT_TRUE(comandi.open(QIODevice::ReadOnly) && risposte.open(QIODevice::ReadWrite));
    ASSERT_TRUE(eseguiLotto(comandi, risposte, unita.percorsi()));
    risposte.seek(0);
    QList<bool> fatti;
    while (!risposte.atEnd())
        fatti.append(RispostaLotto::leggi(risposte.readLine()).value().errore.isEmpty());
    EXPECT_EQ(fatti, (QList{true, false, true, true, false}));
    EXPECT_TRUE(unita.leggi(u"\\p\\ftr2.pdf"_s).isEmpty());
    ASSERT_EQ(server.messaggi().size(), 1);
    const QByteArray ricevuto = server.messaggi().first();
    EXPECT_TRUE(ricevuto.contains("filename=\"ftr1.pdf\"") && ricevuto.contains("filename=\"ftr3.pdf\""));
    EXPECT_TRUE(ricevuto.contains("Subject: Documento n. 1, 3\r\n"));
    EXPECT_EQ(parte(ricevuto, "application/pdf"), unita.leggi(pdf[0]));

    // The log of the user tells of each.
    const auto registro = RegistroPosta::diFile(unita.percorsi(), layout);
    ASSERT_TRUE(registro);
    QFile file(registro->file());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray righe = file.readAll();
    EXPECT_EQ(righe.count("\"spedita\""), 2);
    EXPECT_EQ(righe.count("\"non spedita\""), 2);

    QByteArray rotto = "questo non e` un comando\n" + unPdf(u"\\p\\ftr9.pdf"_s, dueFogli());
    QBuffer male(&rotto);
    ASSERT_TRUE(male.open(QIODevice::ReadOnly));
    EXPECT_FALSE(eseguiLotto(male, risposte, unita.percorsi()));
    EXPECT_TRUE(unita.leggi(u"\\p\\ftr9.pdf"_s).isEmpty());
}

TEST(Posta, UnIndirizzoCattivoNonRaggiungeIlServerEIlPdfResta) {
    const Unita unita;
    unita.scrivi(u"c:\\bordoc.rto"_s, dueFogli());
    for (const QString& indirizzo : {u""_s, u"a@b.it\r\nRCPT TO:<c@d.it>"_s, u"a@b.it;c@d.it"_s}) {
        QString errore;
        EXPECT_FALSE(esegui(*ComandoPdf::leggi({u"l,c:\\bordoc.rto,\\p\\ftr1.pdf,"_s + indirizzo}),
                            unita.percorsi(), errore));
        EXPECT_TRUE(errore.startsWith(
            u"Il PDF %1 è pronto ma non è stato spedito"_s.arg(unita.reale(u"\\p\\ftr1.pdf"_s))))
            << qPrintable(errore);
        EXPECT_TRUE(unita.leggi(u"\\p\\ftr1.pdf"_s).startsWith("%PDF-"));
    }
}

TEST(Posta, NessunTestoAggiungeUnIntestazione) {
    ServerPosta server({});
    Messaggio ostile = messaggio();
    ostile.oggetto = u"Fattura\r\nBcc: spia@x.it\r\n\r\ncorpo\0fine"_s;
    ostile.allegati[0].nome = u"a\"\r\nX-Spia: 1\r\n.pdf"_s;
    ImpostazioniPosta impostazioni = posta(server, Sicurezza::Nessuna);
    impostazioni.nome = u"Rossi\" <altro@x.it>\nBcc: spia@x.it"_s;
    QString errore;
    ASSERT_TRUE(spedisci(impostazioni, ostile, errore)) << qPrintable(errore);
    const QByteArray ricevuto = server.messaggi().value(0);
    EXPECT_EQ(ricevuto.count("\nBcc"), 0);
    EXPECT_EQ(ricevuto.count("\nX-Spia"), 0);
    EXPECT_TRUE(ricevuto.contains("From: \"Rossi' <altro@x.it> Bcc: spia@x.it\" <info@rossi.it>\r\n"));
    EXPECT_EQ(parte(ricevuto, "text/plain"), "Perch\xc3\xa9 no?\r\n.\r\nSaluti");
    EXPECT_EQ(parte(ricevuto, "application/pdf"), ostile.allegati[0].pdf);
    EXPECT_EQ(quanti(server.comandi(), "RCPT"), 1);
}

TEST(Posta, UnaLungaIntestazioneSiDivideTraICaratteri) {
    EXPECT_EQ(testoIntestazione(u"Fattura 12"_s), "Fattura 12");
    EXPECT_EQ(testoIntestazione(u"=?utf-8?q?x?="_s), "=?UTF-8?B?PT91dGYtOD9xP3g/PQ==?=");
    const QString lunga = u"€"_s.repeated(300);
    QByteArray insieme;
    for (const QByteArray& parola : testoIntestazione(lunga).split(' ')) {
        EXPECT_LE(parola.size(), 75);
        const QByteArray pezzo = QByteArray::fromBase64(parola.mid(10).chopped(2));
        EXPECT_EQ(QString::fromUtf8(pezzo).count(u'\xfffd'), 0);
        insieme += pezzo;
    }
    EXPECT_EQ(insieme, u"€"_s.repeated(120).toUtf8());
}

TEST(Posta, IlRifiutoDelServerSiDiceConLeSueParole) {
    ServerPosta server({.rifiuta = "RCPT"});
    QString errore;
    EXPECT_FALSE(spedisci(posta(server, Sicurezza::Nessuna), messaggio(), errore));
    EXPECT_EQ(errore, u"il server di posta ha rifiutato il messaggio: 550 Casella sconosciuta"_s);
    EXPECT_TRUE(server.messaggi().isEmpty());
}

TEST_F(PostaCifrata, ConStarttlsETlsLaPasswordPassaSoloCifrata) {
    for (const bool tls : {false, true}) {
        ServerPosta server({.tls = tls, .starttls = !tls, .certificato = m_certificato});
        ImpostazioniPosta impostazioni = posta(server, tls ? Sicurezza::Tls : Sicurezza::Starttls);
        impostazioni.certificati = m_fileCertificato;
        impostazioni.utente = u"rossi"_s;
        impostazioni.password = "segreta";
        QString errore;
        EXPECT_TRUE(spedisci(impostazioni, messaggio(), errore)) << qPrintable(errore);
        const QByteArrayList comandi = server.comandi();
        EXPECT_EQ(parte(server.messaggi().value(0), "application/pdf"), messaggio().allegati[0].pdf);
        const auto accesso = comandi.join('\n').indexOf(QByteArray("\0rossi\0segreta", 14).toBase64());
        EXPECT_GT(accesso, comandi.join('\n').indexOf("STARTTLS")) << comandi.join('\n').constData();
    }
}

TEST_F(PostaCifrata, SenzaCifraturaOConUnCertificatoIgnotoNonSiSpedisce) {
    for (const bool offerta : {false, true}) {
        ServerPosta server({.starttls = offerta, .certificato = m_certificato});
        ImpostazioniPosta impostazioni = posta(server, Sicurezza::Starttls);
        impostazioni.utente = u"rossi"_s;
        impostazioni.password = "segreta";
        QString errore;
        EXPECT_FALSE(spedisci(impostazioni, messaggio(), errore));
        EXPECT_TRUE(errore.contains(offerta ? u"certificato"_s : u"non offre una connessione sicura"_s))
            << qPrintable(errore);
        EXPECT_TRUE(server.messaggi().isEmpty());
        EXPECT_TRUE(quanti(server.comandi(), "AUTH") == 0);
    }
}
