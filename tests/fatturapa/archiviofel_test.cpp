// The program's own data on file: what is kept, what a hostile or broken file does, and that no progressive
// is ever given out twice.
#include "fatturapa/archiviofel.h"
#include "support/azienda.h"
#include "support/disco_guasto.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSet>

#include <algorithm>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

const auto mai = [](const QString&) { return false; };

Fte documentoCon(double stamp) {
    Fte fte = vuoto<Fte>();
    fte.stamp = stamp;
    return fte;
}

Cli clienteCon(QStringView partitaiva) {
    Cli cli = vuoto<Cli>();
    cli.partitaiva.set(partitaiva);
    return cli;
}

struct Prova {
    AziendaDiProva azienda;
    ContestoDiProva contesto{azienda};
    ArchivioFel fel{contesto.archivio};
};

} // namespace

TEST(ArchivioFel, TieneAziendaClientiEDocumentiEOgniLineaCheNonConosce) {
    Prova p;
    EXPECT_EQ(p.fel.leggi(), ArchivioFel::Stato::Assente);
    p.azienda.scrivi(u"borlano.fel"_s,
                     "# nota\r\n[azienda]\r\niban=VECCHIO\r\nchissa=1\r\n\r\n[altro]\r\nx\r\n");
    ASSERT_EQ(p.fel.leggi(), ArchivioFel::Stato::Letto);
    AziendaFel azienda = p.fel.azienda();
    EXPECT_EQ(azienda.iban, u"VECCHIO");
    azienda.iban = u"IT60\nX [b]"_s;
    ASSERT_TRUE(p.fel.salva(azienda));
    ASSERT_TRUE(p.fel.salva(3, clienteCon(u"29540810164"), {.codice = u"ABC1234"_s}));
    ASSERT_TRUE(p.fel.salva(documentoCon(42078.5), {.tipo = u"TD25"_s, .cig = u"Z1"_s}));
    EXPECT_EQ(p.azienda.leggi(u"borlano.fel"_s),
              "# nota\n[azienda]\niban=IT60 X [b]\nchissa=1\n\n[altro]\nx\n[cliente 3 "
              "29540810164]\ncodice=ABC1234\n"
              "[documento 42078.5]\ntipo=TD25\ncig=Z1\n");
    ArchivioFel ancora(p.contesto.archivio);
    ancora.leggi();
    EXPECT_EQ(ancora.cliente(3, clienteCon(u"29540810164")).codice, u"ABC1234");
    EXPECT_EQ(ancora.cliente(9, clienteCon(u"29540810164")).codice, u"ABC1234") << "his record moved";
    EXPECT_EQ(ancora.cliente(3, clienteCon(u"01234567897")).codice, u"") << "another customer in his record";
    EXPECT_EQ(ancora.documento(documentoCon(42078.5)).cig, u"Z1");
}

TEST(ArchivioFel, LaFatturaCollegataNonToccaIlResto) {
    AziendaDiProva azienda;
    ContestoDiProva contesto(azienda);
    ArchivioFel propri(contesto.archivio);
    Fte fte = documentoDi(1, u"9"_s, 1, 0).fte;
    fte.stamp = 42000.5;
    ASSERT_TRUE(propri.salva(fte, DocumentoFel{.cup = u"J1"_s}));
    const QString file = propri.progressivo(fte, [](const QString&) { return false; });
    ASSERT_TRUE(propri.collega(fte, u"8/A"_s, u"01/02/2015"_s));
    ArchivioFel dopo(contesto.archivio);
    dopo.leggi();
    EXPECT_EQ(
        dopo.documento(fte),
        (DocumentoFel{
            .file = file, .collegatanumero = u"8/A"_s, .collegatadata = u"01/02/2015"_s, .cup = u"J1"_s}));
}

TEST(ArchivioFel, IProgressiviSonoCinqueCifreInBase36) {
    EXPECT_EQ(prossimoProgressivo(u""), u"00001");
    EXPECT_EQ(prossimoProgressivo(u"0000Z"), u"00010");
    EXPECT_EQ(prossimoProgressivo(u"0zzzz"), u"00001");
    EXPECT_EQ(prossimoProgressivo(u"ZZZZY"), u"ZZZZZ");
    EXPECT_EQ(prossimoProgressivo(u"ZZZZZ"), u"");
}

TEST(ArchivioFel, UnProgressivoNonEMaiDatoDueVolte) {
    Prova p;
    EXPECT_EQ(p.fel.progressivo(documentoCon(1), mai), u"00001");
    EXPECT_EQ(p.fel.progressivo(documentoCon(2), mai), u"00002");
    EXPECT_EQ(p.fel.progressivo(documentoCon(1), mai), u"00001") << "a document keeps its own";
    EXPECT_EQ(p.fel.progressivo(documentoCon(3), [](const QString& x) { return x < u"0000B"_s; }), u"0000B");
    ASSERT_TRUE(p.fel.salva(documentoCon(3), {.file = u"00001"_s, .bollo = u"SI"_s}));
    EXPECT_EQ(p.fel.documento(documentoCon(3)).file, u"0000B") << "no edit takes it back";
    QByteArray testo = p.azienda.leggi(u"borlano.fel"_s);
    p.azienda.scrivi(u"borlano.fel"_s, testo.replace("contatore=0000B", "contatore=rotto!"));
    EXPECT_EQ(p.fel.progressivo(documentoCon(4), mai), u"0000C")
        << "the documents know better than the counter";
}

TEST(ArchivioFel, MoltiProgressiviSiScrivonoInUnaVoltaSola) {
    AziendaDiProva azienda;
    DiscoGuasto disco;
    ContestoDiProva contesto(azienda, disco);
    ArchivioFel fel(contesto.archivio);
    ASSERT_EQ(fel.progressivo(documentoCon(2), mai), u"00001");
    const std::vector<Fte> molti = {documentoCon(1), documentoCon(2), documentoCon(3), documentoCon(1)};
    disco.annota = true;
    const auto riscritture = [&] {
        return std::ranges::count(disco.operazioni, Operazione::Tipo::Sostituzione, &Operazione::tipo);
    };
    EXPECT_EQ(fel.progressivi(molti, mai), (QStringList{u"00002"_s, u"00001"_s, u"00003"_s, u"00002"_s}));
    EXPECT_EQ(riscritture(), 1);
    EXPECT_EQ(fel.progressivi(molti, mai).first(), u"00002");
    EXPECT_EQ(riscritture(), 1) << "nothing new, nothing written";
    disco.guasto = disco.scritture + 1;
    EXPECT_EQ(fel.progressivi(std::vector{documentoCon(3), documentoCon(4)}, mai), (QStringList{{}, {}}))
        << "none is used that is not on disk";
}

TEST(ArchivioFel, SenzaScritturaNessunProgressivoENullaDiCambiato) {
    AziendaDiProva azienda;
    DiscoGuasto disco;
    ContestoDiProva contesto(azienda, disco);
    ArchivioFel fel(contesto.archivio);
    ASSERT_EQ(fel.progressivo(documentoCon(1), mai), u"00001");
    const QByteArray prima = azienda.leggi(u"borlano.fel"_s);
    disco.guasto = disco.scritture + 1;
    EXPECT_EQ(fel.progressivo(documentoCon(2), mai), u"");
    disco.guasto = disco.scritture + 1;
    EXPECT_FALSE(fel.salva(AziendaFel{.iban = u"X"_s}));
    EXPECT_EQ(azienda.leggi(u"borlano.fel"_s), prima);
}

TEST(ArchivioFel, UnFileIllegibileNonVieneMaiSovrascritto) {
    Prova p;
    ASSERT_TRUE(QDir().mkdir(p.azienda.percorso(u"borlano.fel"_s)));
    EXPECT_EQ(p.fel.leggi(), ArchivioFel::Stato::Illeggibile);
    EXPECT_FALSE(p.fel.salva(AziendaFel{.iban = u"X"_s}));
    EXPECT_EQ(p.fel.progressivo(documentoCon(1), mai), u"");
}

TEST(ArchivioFel, ContenutoOstileTornaByteSuByte) {
    Prova p;
    for (const QByteArray& ostile :
         {QByteArray("\0\xff\xfe[azienda\n=\n[]\n[]\n", 17), QByteArray("[documento 1]\nfile=0000!\n"),
          QByteArray("[").repeated(100'000),
          QByteArray("iban=1\n[azienda]\niban=\xe0\niban=2\n[azienda]\niban=3\n")}) {
        p.azienda.scrivi(u"borlano.fel"_s, ostile);
        p.fel.leggi();
        ASSERT_TRUE(p.fel.salva(documentoCon(7), {.bollo = u"NO"_s}));
        const QByteArray dopo = p.azienda.leggi(u"borlano.fel"_s);
        EXPECT_TRUE(dopo.startsWith(ostile)) << ostile.first(20).toStdString();
        EXPECT_TRUE(dopo.endsWith("[documento 7]\nbollo=NO\n"));
        EXPECT_EQ(p.fel.documento(documentoCon(7)).bollo, u"NO");
    }
}

TEST(ArchivioFel, DueProgrammiInsiemeNonSiDannoLoStessoProgressivo) {
    Prova p;
    constexpr int quanti = 100;
    const pid_t figlio = fork();
    if (figlio == 0) {
        ContestoDiProva altro(p.azienda);
        ArchivioFel suo(altro.archivio);
        for (int i = 1; i <= quanti; ++i)
            suo.progressivo(documentoCon(1000 + i), mai);
        _exit(0);
    }
    for (int i = 1; i <= quanti; ++i)
        p.fel.progressivo(documentoCon(2000 + i), mai);
    int esito = 0;
    waitpid(figlio, &esito, 0);
    p.fel.leggi();
    QSet<QString> dati;
    for (int i = 1; i <= quanti; ++i)
        dati << p.fel.documento(documentoCon(1000 + i)).file << p.fel.documento(documentoCon(2000 + i)).file;
    EXPECT_EQ(dati.size(), 2 * quanti);
    EXPECT_FALSE(dati.contains(QString()));
}

} // namespace bor
