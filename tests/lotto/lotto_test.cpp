// Commands on many documents: what they leave out, what they tell, what they write.
#include "lotto/apertura.h"
#include "lotto/provalotto.h"

#include "archive/blocchi.h"
#include "common/registroposta.h"
#include "document/apridoc.h"
#include "document/filerighe.h"
#include "fatturapa/generafattura.h"
#include "output/destinazionepdf.h"
#include "output/layout.h"
#include "output/stampafattura.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

using enum EsitoRiga;

QByteArray contenuto(const QString& percorso) {
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

TEST_F(LottoTest, SiStampanoInUnLavoroSoloOInUnoCiascuno) {
    auto lotto = prepara(ComandoScelti::Stampa, documenti({100, 101, 102}));
    EXPECT_TRUE(lotto->domanda().startsWith(u"Stampare 3 documenti, nell'ordine dell'elenco?"_s));
    ASSERT_EQ(lotto->opzioni().size(), 1U);
    lotto->inizia();
    EXPECT_EQ(lotto->passo(), Lotto::Passo::Avanza);
    EXPECT_FALSE(stampante.terminata) << "the job goes on";
    fino(*lotto);
    EXPECT_TRUE(stampante.terminata);
    EXPECT_GE(stampante.pagine, 3);
    EXPECT_EQ(lotto->rapporto().conto(), u"3 fatti"_s);

    stampante.terminata = false;
    lotto = prepara(ComandoScelti::Stampa, documenti({100, 101}));
    lotto->opzioni().front().scelta = false;
    lotto->inizia();
    lotto->passo();
    EXPECT_TRUE(stampante.terminata);
    stampante.presente = false;
    fino(*lotto);
    EXPECT_EQ(esito(*lotto, 1), NonFatta);
    EXPECT_TRUE(prova->operatore.messaggi.isEmpty() && prova->operatore.domande.isEmpty());
}

TEST_F(LottoTest, CioCheESparitoOCambiatoSiDiceESoloQuelloNonSiStampa) {
    const auto scelti = documenti({100, 101, 102, 103, 104});
    elimina(101);
    const auto lotto = prepara(ComandoScelti::Stampa, scelti);
    EXPECT_EQ(lotto->quanti(), 4);
    EXPECT_TRUE(lotto->domanda().contains(u"Resta fuori un documento:\n• "_s));
    EXPECT_TRUE(lotto->domanda().endsWith(u": è eliminato"_s));
    lotto->inizia();
    lotto->passo();
    // Between two documents another program deletes one, puts another one into the place of the next, and
    // takes the lines of the last away.
    elimina(102);
    prova->archivio.fte.scrivi(103, prova->archivio.fte.leggi(50));
    QFile::remove(prova->archivio.reale(percorsoRighe(prova->archivio, prova->archivio.fte.leggi(104))));
    stampante.testi.clear();
    fino(*lotto);
    EXPECT_TRUE(stampante.testi.isEmpty());
    EXPECT_EQ(esito(*lotto, 0), Fatta);
    EXPECT_EQ(testo(*lotto, 2), u"è eliminato"_s);
    EXPECT_TRUE(testo(*lotto, 3).startsWith(u"al suo posto c'è ora il documento n. "_s))
        << testo(*lotto, 3).toStdString();
    EXPECT_EQ(testo(*lotto, 4), u"le sue righe non sono su file: aprirlo e salvarlo"_s);
    EXPECT_EQ(lotto->rapporto().conto(), u"1 fatto, 4 non fatti"_s);
    std::vector<Identita> oltre = documenti({5});
    oltre[0].record = 30000;
    EXPECT_EQ(prepara(ComandoScelti::Stampa, oltre)->quanti(), 0);
}

TEST_F(LottoTest, MentreUnAltroRegistraSiAspettaSenzaFermareLoSchermo) {
    const auto lotto = prepara(ComandoScelti::Stampa, documenti({100}));
    lotto->inizia();
    Disco disco;
    FileCasuale altro(disco);
    ASSERT_TRUE(altro.apri(prova->archivio.reale(prova->archivio.borlano(u"tot"))));
    ASSERT_EQ(blocca(altro.descrittore(), F_WRLCK, byteContatori), EsitoBlocco::Preso);
    EXPECT_EQ(lotto->passo(), Lotto::Passo::Attende);
    EXPECT_EQ(lotto->finiti(), 0);
    blocca(altro.descrittore(), F_UNLCK, byteContatori);
    fino(*lotto);
    EXPECT_EQ(esito(*lotto, 0), Fatta);
}

TEST_F(LottoTest, IlPdfHaLeStessePagineEIlNomeEntraNelRecord) {
    F2e prima = prova->archivio.f2e.leggi(100);
    prima.pdf.blank();
    prova->archivio.f2e.scrivi(100, prima);
    Documento documento = documentoEsistente(prova->contesto, 100, sospese).value();
    const QByteArray rapporto = componiRapporto(documento, prova->contesto, stampante);
    const Fte testa = prova->archivio.fte.leggi(100);

    const auto lotto = prepara(ComandoScelti::Pdf, documenti({100}));
    EXPECT_TRUE(
        lotto->domanda().startsWith(u"Fare il PDF di un documento nella cartella \"\\suprok\\pdf\"?"_s))
        << lotto->domanda().toStdString();
    lotto->inizia();
    fino(*lotto);
    ASSERT_EQ(banco.comandi.size(), 1U);
    const QString nome = u"\\suprok\\pdf\\ftr%1.pdf"_s.arg(documento.estremi.numero);
    EXPECT_EQ(banco.comandi[0].pdf, nome);
    EXPECT_EQ(banco.comandi[0].byte, rapporto.size());
    EXPECT_TRUE(banco.comandi[0].layout.endsWith(u"\\borlano.lxf"_s));
    F2e dopo = prova->archivio.f2e.leggi(100);
    EXPECT_EQ(dopo.pdf.trimmed(), nome);
    dopo.pdf = prima.pdf;
    EXPECT_EQ(std::memcmp(&dopo, &prima, sizeof(F2e)), 0) << "nothing else of the record changes";
    const Fte testaDopo = prova->archivio.fte.leggi(100);
    EXPECT_EQ(std::memcmp(&testaDopo, &testa, sizeof(Fte)), 0);
    EXPECT_EQ(testo(*lotto, 0), u"PDF \"%1\""_s.arg(nome));
}

TEST_F(LottoTest, ConLoStrumentoVeroIPdfSonoSuDisco) {
    int argomenti = 0;
    const QCoreApplication programma(argomenti, nullptr);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString strumento = strumentoPdf(prova->archivio);
    QFile::remove(strumento);
    ASSERT_TRUE(QFile::link(QStringLiteral(BOR_BIN_DIR "/borxpdf"), strumento));
    const auto lotto =
        Scelti(prova->contesto, sospese, stampante).prepara(ComandoScelti::Pdf, documenti({100, 101, 103}));
    lotto->inizia();
    QElapsedTimer orologio;
    orologio.start();
    while (lotto->passo() != Lotto::Passo::Finito && orologio.elapsed() < 60'000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    EXPECT_EQ(lotto->rapporto().quante(Fatta), 3) << testo(*lotto, 0).toStdString();
    for (const int n : {100, 101, 103})
        EXPECT_TRUE(
            contenuto(prova->archivio.reale(prova->archivio.f2e.leggi(n).pdf.trimmed())).startsWith("%PDF-"))
            << n;
}

TEST_F(LottoTest, IlPdfDiUnAltroDocumentoNonSiSostituisce) {
    CoppiaFte doppio = prova->archivio.leggi(100);
    doppio.fte.datadoc.set(u"20130101");
    doppio.fte.stamp = 5.0;
    const int vecchio = azienda->documento(doppio);
    const auto insieme = prepara(ComandoScelti::Pdf, documenti({100, vecchio, 101}));
    EXPECT_EQ(insieme->quanti(), 2) << "of two of the same name in one batch the first";
    EXPECT_TRUE(testo(*insieme, 1).contains(u"è già il PDF del documento n. "_s))
        << testo(*insieme, 1).toStdString();

    F2e f2e = prova->archivio.f2e.leggi(vecchio);
    f2e.pdf.set(u"\\SUPROK\\PDF\\FTR%1.pdf"_s.arg(doppio.fte.numero.trimmed()));
    prova->archivio.f2e.scrivi(vecchio, f2e);
    EXPECT_EQ(prepara(ComandoScelti::Pdf, documenti({100, 101}))->quanti(), 1);
    elimina(vecchio);
    EXPECT_EQ(prepara(ComandoScelti::Pdf, documenti({100, 101}))->quanti(), 2);
}

TEST_F(LottoTest, UnoStrumentoCheMuoreORifiutaFermaUnDocumentoSolo) {
    banco.errori = {u"Non si può scrivere il PDF: controllare la cartella."_s};
    const auto lotto = prepara(ComandoScelti::Pdf, documenti({100, 101, 102, 103}));
    lotto->inizia();
    while (lotto->finiti() < 2)
        lotto->passo();
    banco.muore = true;
    fino(*lotto);
    EXPECT_EQ(testo(*lotto, 0), u"Non si può scrivere il PDF: controllare la cartella."_s);
    EXPECT_EQ(lotto->rapporto().quante(Fatta), 2);
    EXPECT_EQ(lotto->rapporto().quante(NonFatta), 2);
    EXPECT_LE(banco.avvii, 2);
}

TEST_F(LottoTest, InterrompiLasciaFinireQuelloInManoEDiceGliAltri) {
    const auto lotto = prepara(ComandoScelti::Pdf, documenti({100, 101, 102, 103, 104}));
    lotto->inizia();
    banco.risponde = false;
    for (int volta = 0; volta < 5; ++volta)
        lotto->passo();
    EXPECT_EQ(banco.comandi.size(), 1U) << "one in hand";
    lotto->interrompi();
    EXPECT_EQ(lotto->passo() == Lotto::Passo::Finito, false);
    banco.risponde = true;
    fino(*lotto);
    EXPECT_EQ(banco.comandi.size(), 1U);
    EXPECT_EQ(lotto->rapporto().conto(), u"1 fatto, 4 non fatti, interrotto dall'operatore"_s);
    EXPECT_EQ(prova->archivio.f2e.leggi(100).pdf.trimmed(), banco.comandi[0].pdf);

    const auto elettroniche = prepara(ComandoScelti::Elettronica, documenti({100, 101, 102}));
    elettroniche->inizia();
    elettroniche->passo();
    elettroniche->interrompi();
    fino(*elettroniche);
    EXPECT_EQ(elettroniche->rapporto().quante(NonFatta), 3);
}

TEST_F(LottoTest, LaPostaDiUnClienteEUnMessaggioSoloESiAnnota) {
    // 100 and 102 go to one customer, 101 to another, 103 has no address that is one.
    for (const int n : {100, 102}) {
        Fte fte = prova->archivio.fte.leggi(n);
        fte.cliente = 3;
        fte.parcella = 0;
        prova->archivio.fte.scrivi(n, fte);
    }
    cliente(101, u"b@c.example"_s);
    cliente(103, u"senza chiocciola"_s);
    cliente(100, u"a@b.example"_s);
    const auto lotto = prepara(ComandoScelti::Posta, documenti({100, 101, 102, 103}));
    EXPECT_TRUE(lotto->domanda().contains(
        u"Si spediscono: 3, a indirizzi diversi: 2. Senza posta, solo il PDF: 1."_s))
        << lotto->domanda().toStdString();
    lotto->inizia();
    fino(*lotto);
    std::vector<ComandoLotto> messaggi;
    for (const ComandoLotto& comando : banco.comandi)
        if (comando.pdf.isEmpty())
            messaggi.push_back(comando);
    ASSERT_EQ(messaggi.size(), 2U);
    EXPECT_EQ(messaggi[0].indirizzo, u"a@b.example"_s);
    EXPECT_EQ(messaggi[0].allegati.size(), 2);
    EXPECT_EQ(messaggi[1].allegati.size(), 1);
    EXPECT_TRUE(testo(*lotto, 2).endsWith(u"; spedito a a@b.example"_s)) << testo(*lotto, 2).toStdString();
    EXPECT_EQ(esito(*lotto, 3), ConRilievi);
    EXPECT_TRUE(testo(*lotto, 3).contains(u"; non spedito: l'indirizzo di posta del cliente non è valido"_s));

    const RegistroPosta registro(prova->archivio.percorsi(), 7);
    const Documento primo = documentoEsistente(prova->contesto, 100, sospese).value();
    auto voci = registro.voci(perPosta(primo));
    ASSERT_EQ(voci.size(), 1U);
    EXPECT_EQ(voci[0].stato, StatoPosta::Affidata);
    // The tool's own line, which knows the PDF alone.
    registro.aggiungi({.quando = prova->orologio.adesso(),
                       .documento = {},
                       .pdf = voci[0].pdf,
                       .indirizzo = voci[0].indirizzo,
                       .stato = StatoPosta::NonSpedita,
                       .motivo = u"il server non risponde"_s});
    voci = registro.voci(perPosta(primo));
    ASSERT_EQ(voci.size(), 1U);
    EXPECT_EQ(voci[0].motivo, u"il server non risponde"_s);
}

TEST_F(LottoTest, SenzaInsiemeOgniDocumentoHaIlSuoMessaggioELaPostaFallitaLasciaIlPdf) {
    cliente(100, u"a@b.example"_s);
    cliente(101, u"a@b.example"_s);
    const auto lotto = prepara(ComandoScelti::Posta, documenti({100, 101}));
    lotto->opzioni().front().scelta = false;
    lotto->inizia();
    banco.errori = {QString(), u"il server ha rifiutato il messaggio"_s};
    fino(*lotto);
    EXPECT_EQ(banco.comandi.size(), 4U);
    EXPECT_EQ(lotto->rapporto().quante(Fatta), 1);
    EXPECT_EQ(lotto->rapporto().quante(ConRilievi), 1);
}

TEST_F(LottoTest, LeElettronicheSonoQuelleDiUnaAllaVoltaAncheDel2014) {
    std::vector<Identita> scelti;
    for (int n = 1; n <= prova->archivio.leggiTot(Conta::Fte).numero; ++n)
        scelti.push_back(identita(n));
    const auto lotto = prepara(ComandoScelti::Elettronica, scelti);
    EXPECT_TRUE(lotto->domanda().contains(u"dati della fattura PA del 2014"_s));
    lotto->inizia();
    fino(*lotto);
    EXPECT_GT(lotto->rapporto().quante(Fatta), 250);
    GeneratoreFel generatore =
        GeneratoreFel::perAzienda(prova->contesto, caricaTestiPdf(prova->archivio).cartella());
    int del2014 = 0;
    for (const RigaLotto& riga : lotto->rapporto().righe) {
        if (riga.esito == NonFatta)
            continue;
        const Documento documento =
            documentoEsistente(prova->contesto, riga.documento.record, sospese).value();
        EXPECT_EQ(generatore.suDisco(documento), FileDocumento::Attuale) << riga.nome.toStdString();
        if (!documento.fatturaPa())
            continue;
        ++del2014;
        const QString numero = documento.estremi.numero;
        EXPECT_EQ(contenuto(unita.filePath(u"suprok/xml/IT04127580233_%1.xml"_s.arg(numero))),
                  contenuto(QStringLiteral(BOR_SOURCE_DIR "/tests/einvoice/attesi/demo_%1.xml").arg(numero)));
    }
    EXPECT_GT(del2014, 3);
}

TEST_F(LottoTest, IlControlloNonScriveNulla) {
    const QByteArray propri = azienda->leggi(u"borlano.fel"_s);
    const auto lotto = prepara(ComandoScelti::Controlla, documenti({100, 101, 102}));
    lotto->inizia();
    fino(*lotto);
    EXPECT_EQ(lotto->rapporto().quante(Fatta), 3) << testo(*lotto, 0).toStdString();
    EXPECT_EQ(azienda->leggi(u"borlano.fel"_s), propri);
    EXPECT_TRUE(QDir(unita.filePath(u"suprok/xml"_s)).isEmpty());
}

} // namespace
} // namespace bor
