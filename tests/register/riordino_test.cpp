#include "register/borfte.h"
#include "support/azienda.h"
#include "support/disco_guasto.h"

#include <QFile>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bor {
namespace {

struct RiordinoTest : testing::Test {
    AziendaDiProva azienda;

    void documento(const QString& numero, QStringView datareg, double protocollo, bool eliminato = false) {
        CoppiaFte c = documentoDi(1, numero, 1, 0);
        c.fte.datareg.set(datareg);
        c.fte.protocollo = protocollo;
        c.fte.annullata = eliminato ? 1 : 0;
        c.f2e.pdf.set(numero);
        azienda.documento(c);
    }

    /// Document numbers in record order; both halves must tell the same.
    static QStringList numeri(ContestoDiProva& prova) {
        QStringList n;
        for (int i = 1; i <= prova.archivio.leggiTot(Conta::Fte).numero; ++i) {
            const CoppiaFte c = prova.archivio.leggi(i);
            n.append(c.fte.numero.trimmed());
            EXPECT_EQ(c.f2e.pdf.trimmed(), n.back());
        }
        return n;
    }

    void riordinaPer(ContestoDiProva& prova, TipoRiordino tipo) {
        Documento documento;
        Borfte form(prova.contesto, documento);
        form.carica();
        form.comandoRiordino().scegli();
        form.riordino(tipo);
    }
};

TEST_F(RiordinoTest, TieneLOrdineDeiPariNumeroETogliGliEliminati) {
    documento(QStringLiteral("12/B"), u"20150103", 3);
    documento(QStringLiteral("9"), u"20150101", 1, true);
    documento(QStringLiteral("12/A"), u"20150102", 2);
    documento(QStringLiteral("3"), u"20150104", 10);
    const QByteArray prima = azienda.leggi(QStringLiteral("borlano.fte"));
    ContestoDiProva prova(azienda);
    riordinaPer(prova, TipoRiordino::PerNumero);
    EXPECT_EQ(prova.operatore.domande.back().testo,
              QStringLiteral("Confermi il riordino per numero di fattura?"));
    EXPECT_EQ(numeri(prova).join(u' '), QStringLiteral("3 12/B 12/A"));
    const QByteArray dopo = azienda.leggi(QStringLiteral("borlano.fte"));
    EXPECT_EQ(dopo.size(), prima.size());
    EXPECT_EQ(dopo.sliced(3 * 522), prima.sliced(3 * 522)) << "the tail keeps its old bytes";
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.$$$")), prima);

    riordinaPer(prova, TipoRiordino::PerData);
    EXPECT_EQ(numeri(prova).join(u' '), QStringLiteral("12/A 12/B 3"));
    riordinaPer(prova, TipoRiordino::PerProtocollo);
    EXPECT_EQ(numeri(prova).join(u' '), QStringLiteral("12/A 12/B 3"));
    EXPECT_TRUE(prova.operatore.messaggi.isEmpty());
}

TEST_F(RiordinoTest, UnRifiutoNonToccaNullaERiportaIBottoni) {
    documento(QStringLiteral("2"), u"20150101", 1, true);
    const QByteArray fte = azienda.leggi(QStringLiteral("borlano.fte"));
    const QByteArray tot = azienda.leggi(QStringLiteral("borlano.tot"));
    ContestoDiProva prova(azienda);
    prova.operatore.rispostaSolita = false;
    Documento documento;
    Borfte form(prova.contesto, documento);
    form.carica();
    form.comandoRiordino().scegli();
    EXPECT_EQ(form.comandoRiordino().etichetta(),
              QStringLiteral("Seleziona il tipo di riordino da eseguire"));
    form.apertura().cella(0, Colonna::DataRegistrazione);
    EXPECT_TRUE(prova.operatore.messaggi.isEmpty()) << "no document opens while the choice is pending";
    form.riordino(TipoRiordino::PerData);
    EXPECT_FALSE(form.comandoRiordino().scelta());
    EXPECT_EQ(form.comandoRiordino().etichetta(), QStringLiteral("Inserisci"));
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.fte")), fte);
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.tot")), tot);
}

TEST_F(RiordinoTest, IDatiMaiInizializzatiEsconoVuotiConLaMarca) {
    documento(QStringLiteral("1"), u"20150101", 1);
    azienda.scrivi(QStringLiteral("borlano.f2e"), QByteArray(838, 'x'));
    ContestoDiProva prova(azienda);
    riordinaPer(prova, TipoRiordino::PerNumero);
    const QByteArray f2e = azienda.leggi(QStringLiteral("borlano.f2e"));
    EXPECT_EQ(f2e.left(2), QByteArray("\xE7\x03"));
    EXPECT_EQ(f2e.sliced(2, 96), QByteArray(96, '\0'));
    EXPECT_EQ(f2e.sliced(98, 8), QByteArray(8, ' '));
    EXPECT_EQ(f2e.sliced(338, 60), QByteArray(60, ' ')) << "the PDF goes too";
    EXPECT_EQ(f2e.sliced(526, 38), QByteArray("\1\0", 2) + QByteArray(36, ' '));
    EXPECT_EQ(f2e.sliced(572), QByteArray(7, ' ') + QByteArray(8, '\0') + QByteArray(251, ' '));
}

TEST_F(RiordinoTest, UnAltroComputerFermaIlRiordinoConIlSuoMessaggio) {
    documento(QStringLiteral("2"), u"20150101", 1);
    documento(QStringLiteral("1"), u"20150101", 1);
    const QByteArray prima = azienda.leggi(QStringLiteral("borlano.fte"));
    // Another program has the archive open until told to end.
    std::array<int, 2> pronto{};
    std::array<int, 2> fine{};
    ASSERT_EQ(::pipe(pronto.data()), 0);
    ASSERT_EQ(::pipe(fine.data()), 0);
    const pid_t altro = ::fork();
    if (altro == 0) {
        const ContestoDiProva suo(azienda);
        char c = 0;
        (void)!::write(pronto[1], &c, 1);
        (void)!::read(fine[0], &c, 1);
        ::_exit(0);
    }
    char c = 0;
    ASSERT_EQ(::read(pronto[0], &c, 1), 1);
    ContestoDiProva prova(azienda);
    riordinaPer(prova, TipoRiordino::PerNumero);
    ASSERT_EQ(prova.operatore.messaggi.size(), 1);
    EXPECT_EQ(
        prova.operatore.messaggi[0].testo,
        QStringLiteral("Si è verificato l'errore 70 durante la procedura di duplicazione del file indici. "
                       "Probabilmente qualche applicazione non è stata chiusa correttamente oppure qualche "
                       "computer della rete sta utilizzando Borlano. Verificate ed eventualmente riavviate "
                       "Windows."));
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.fte")), prima);
    EXPECT_EQ(prova.operatore.attese, 0);
    (void)!::write(fine[1], &c, 1);
    ::waitpid(altro, nullptr, 0);

    ContestoDiProva daCapo(azienda);
    riordinaPer(daCapo, TipoRiordino::PerNumero);
    EXPECT_TRUE(daCapo.operatore.messaggi.isEmpty());
    ContestoDiProva escluso(azienda);
    EXPECT_FALSE(escluso.archivio.fte.aperto()) << "after a reorder the files stay taken until the run ends";
}

TEST_F(RiordinoTest, ChiHaTrovatoIFileOccupatiNonLiRiordinaDaVuoti) {
    documento(QStringLiteral("2"), u"20150101", 1);
    documento(QStringLiteral("1"), u"20150101", 1, true);
    auto primo = std::make_unique<ContestoDiProva>(azienda);
    ASSERT_TRUE(
        primo->archivio.fte.apri(azienda.percorso(QStringLiteral("borlano.fte")), Apertura::Esclusiva));
    ContestoDiProva secondo(azienda);
    const QByteArray prima = azienda.leggi(QStringLiteral("borlano.fte"));
    riordinaPer(secondo, TipoRiordino::PerNumero);
    ASSERT_EQ(secondo.operatore.messaggi.size(), 1);
    EXPECT_TRUE(secondo.operatore.messaggi[0].testo.contains(
        QStringLiteral("durante la procedura di caricamento in memoria del dati da riordinare.")));
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.fte")), prima);
}

TEST_F(RiordinoTest, UnDiscoPienoLasciaTuttoComEraEDiceCosa) {
    documento(QStringLiteral("2"), u"20150101", 1);
    documento(QStringLiteral("1"), u"20150101", 1, true);
    const QByteArray prima = azienda.leggi(QStringLiteral("borlano.fte"));
    const QByteArray contatori = azienda.leggi(QStringLiteral("borlano.tot"));
    DiscoGuasto disco;
    ContestoDiProva prova(azienda, disco);
    disco.guasto = 6; // the copies and the log can still be written, the records no longer
    disco.perSempre = true;
    riordinaPer(prova, TipoRiordino::PerNumero);
    ASSERT_EQ(prova.operatore.messaggi.size(), 1);
    EXPECT_TRUE(prova.operatore.messaggi[0].testo.startsWith(QStringLiteral(
        "Si è verificato l'errore 61 durante la procedura di salvataggio dei dati riordinati.")));
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.$$$")), prima);
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.fte")), prima);
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.tot")), contatori);
    disco.ripara();
    riordinaPer(prova, TipoRiordino::PerNumero);
    EXPECT_EQ(numeri(prova), QStringList(QStringLiteral("2")));
}

TEST_F(RiordinoTest, IlContatoreSiRileggeDopoLaDomandaESoloIlNumeroCambia) {
    documento(QStringLiteral("2"), u"20150101", 1, true);
    ContestoDiProva prova(azienda);
    // Another program saves a document while the question stands on the screen.
    prova.operatore.suDomanda = [this] {
        documento(QStringLiteral("1"), u"20150101", 1);
        ContestoDiProva altro(azienda);
        Tot contatore = altro.archivio.leggiTot(Conta::Fte);
        contatore.progressivo = 17.0F;
        contatore.ultimonumero = 1;
        altro.archivio.scriviTot(Conta::Fte, contatore);
    };
    riordinaPer(prova, TipoRiordino::PerNumero);
    EXPECT_EQ(numeri(prova), QStringList(QStringLiteral("1")));
    EXPECT_EQ(prova.archivio.leggiTot(Conta::Fte).progressivo, 17.0F);
    EXPECT_EQ(prova.archivio.leggiTot(Conta::Fte).ultimonumero, 1);
}

TEST_F(RiordinoTest, UnContatoreIllegibileNonSiAzzera) {
    documento(QStringLiteral("2"), u"20150101", 1);
    const QByteArray contatori = azienda.leggi(QStringLiteral("borlano.tot"));
    DiscoGuasto disco;
    ContestoDiProva prova(azienda, disco);
    disco.illeggibile = QStringLiteral("borlano.tot");
    riordinaPer(prova, TipoRiordino::PerNumero);
    EXPECT_EQ(prova.operatore.messaggi.size(), 1);
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.tot")), contatori);
}

} // namespace
} // namespace bor
