// A copy of a company: what is in it, what comes back, and that nothing half done or damaged passes for
// whole.
#include "archive/archivio.h"
#include "archive/diario.h"
#include "archive/filecasuale.h"
#include "archive/promemoria.h"
#include "archive/raffica.h"
#include "borcopia/appunti.h"
#include "borcopia/copiatore.h"
#include "borcopia/elencocopie.h"
#include "borcopia/nastro.h"
#include "borcopia/ripristino.h"
#include "support/azienda.h"
#include "support/processo.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QSaveFile>
#include <QThread>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace bor::copia {
namespace {

using Contenuto = QMap<QString, QByteArray>;

void scrivi(const QString& percorso, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(percorso).path());
    QSaveFile file(percorso);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit());
}

QByteArray leggi(const QString& percorso) {
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every file below a folder.
Contenuto contenuto(const QString& cartella) {
    Contenuto file;
    QDirIterator voce(cartella, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (voce.hasNext()) {
        const QString percorso = voce.next();
        file[percorso.mid(cartella.size() + 1)] = leggi(percorso);
    }
    return file;
}

bool avanti(int) {
    return true;
}

/// A customer, two invoices with their lines files, settings of all companies, lines in the user's own data.
class CopiaTest : public testing::Test {
protected:
    CopiaTest() {
        azienda.cliente(u"Rossi"_s);
        for (int n = 1; n <= 2; ++n) {
            CoppiaFte coppia = documentoDi(1, QString::number(n), 100, 22);
            coppia.fte.nfile = static_cast<float>(n);
            azienda.documento(coppia);
            azienda.scrivi(u"f%1"_s.arg(n), QByteArray(300000, char('0' + n)));
        }
        Archivio a(azienda.percorsi(), disco, 7);
        a.apri();
        Tot tot = a.leggiTot(Conta::Fte);
        tot.progressivo = 2;
        a.scriviTot(Conta::Fte, tot);
        azienda.scrivi(u"borlano.int"_s, "Officina Citt\xe0\r\n");
        scrivi(azienda.percorso(u"sotto/nota.txt"_s), "nota");
        scrivi(azienda.radice() + u"borlano.eur"_s, "1,1936.27,0,0,2\r\n");
        scrivi(azienda.radice() + u"borxpdf.ini"_s, "password=segreta\r\n");
        scrivi(azienda.percorsi().cartellaBozze(7) + u"/5.righe"_s, "righe");
    }
    EsitoCopia crea(const Avanzamento& avanzamento = avanti) const {
        return creaCopia(azienda.percorsi(), 7, copie.path(), avanzamento);
    }
    EsitoLetturaCopia torna(const QString& copia, const QString& cartella) const {
        return ripristina(copia, Percorsi(cartella, copie.filePath(u"utente/c"_s)), avanti);
    }
    QStringList nellaCartella() const { return QDir(copie.path()).entryList(QDir::Files | QDir::Hidden); }
    QString errore(const QString& copia) const { return verificaCopia(copia, avanti).lettura.errore; }

    AziendaDiProva azienda;
    Disco disco;
    QTemporaryDir copie;
};

TEST_F(CopiaTest, TornaTuttoQuelloCheEDellAziendaENullaDAltri) {
    const EsitoCopia copia = crea();
    ASSERT_EQ(copia.errore, QString());
    const EsitoVerifica letta = verificaCopia(copia.percorso, avanti);
    EXPECT_EQ(letta.lettura.errore, QString());
    EXPECT_EQ(letta.errori(), 0) << qPrintable(letta.discordanze.value(0).testo());
    EXPECT_EQ(letta.lettura.appunti.nome, u"Officina Città"_s);

    const QTemporaryDir nuova;
    ASSERT_EQ(torna(copia.percorso, nuova.path()).errore, QString());
    Contenuto atteso = contenuto(azienda.percorso({}).chopped(1));
    atteso.remove(u"borlano.rip"_s);
    EXPECT_TRUE(atteso.contains(u"sotto/nota.txt"_s));
    EXPECT_EQ(contenuto(nuova.filePath(u"suprok/suprok/boraz0.007"_s)), atteso);
    EXPECT_EQ(QDir(nuova.filePath(u"suprok/suprok"_s)).entryList(QDir::Files), QStringList{u"borlano.eur"_s});
    EXPECT_EQ(QDir(nuova.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"suprok"_s});
    const Percorsi percorsi(nuova.path(), copie.filePath(u"utente/c"_s));
    EXPECT_EQ(leggi(percorsi.cartellaBozze(7) + u"/5.righe"_s), "righe");

    EXPECT_TRUE(torna(copia.percorso, nuova.path()).errore.contains(u"non è vuota"_s));
    EXPECT_EQ(contenuto(nuova.filePath(u"suprok/suprok/boraz0.007"_s)), atteso);
}

TEST_F(CopiaTest, QuelloCheCambiaDuranteLaLetturaECopiatoComEAllaFine) {
    int volte = 0;
    const EsitoCopia copia = crea([&](int) {
        if (++volte == 3) {
            azienda.scrivi(u"f1"_s, "nuove");
            azienda.scrivi(u"f3"_s, "altre");
            QFile::remove(azienda.percorso(u"f2"_s));
            azienda.cliente(u"Bianchi"_s);
        }
        return true;
    });
    ASSERT_EQ(copia.errore, QString());
    ASSERT_GT(volte, 3);
    const QTemporaryDir nuova;
    ASSERT_EQ(torna(copia.percorso, nuova.path()).errore, QString());
    Contenuto atteso = contenuto(azienda.percorso({}).chopped(1));
    atteso.remove(u"borlano.rip"_s);
    EXPECT_EQ(atteso[u"f1"_s], "nuove");
    EXPECT_EQ(contenuto(nuova.filePath(u"suprok/suprok/boraz0.007"_s)), atteso);
}

/// The copy is past its first lock when it tells 99 for the first time, and has read what it lacked.
TEST_F(CopiaTest, SoloChiRegistraNelFrattempoFaRileggereSottoIlBlocco) {
    // Younger files might change again in the same tick of their clock.
    QThread::msleep(2200);
    const auto copiaMentre = [this](const std::function<void()>& cambia) {
        bool fatto = false;
        const EsitoCopia copia = crea([&](int percento) {
            if (percento == 99 && !std::exchange(fatto, true))
                cambia();
            return true;
        });
        EXPECT_EQ(copia.errore, QString());
        const QTemporaryDir nuova;
        EXPECT_EQ(torna(copia.percorso, nuova.path()).errore, QString());
        return contenuto(nuova.filePath(u"suprok/suprok/boraz0.007"_s));
    };
    const auto quieta = copiaMentre([this] { scrivi(azienda.percorso(u"sotto/nota.txt"_s), "dopo"); });
    EXPECT_EQ(quieta[u"sotto/nota.txt"_s], "nota") << "nobody has registered: nothing is read again";

    const auto registrata = copiaMentre([this] {
        Archivio a(azienda.percorsi(), disco, 7);
        a.apri();
        Raffica raffica(a, {});
        Fte fte = raffica.leggi(a.fte, 1);
        fte.numero.set(u"77"_s);
        raffica.cambia(a.fte, Conta::Fte, 1, fte);
        ASSERT_EQ(raffica.esegui([this] { azienda.scrivi(u"f1"_s, "settantasette"); }),
                  EsitoRaffica::Riuscita);
    });
    EXPECT_EQ(registrata[u"f1"_s], "settantasette");
    EXPECT_EQ(registrata[u"borlano.fte"_s], azienda.leggi(u"borlano.fte"_s));
    EXPECT_EQ(registrata[u"sotto/nota.txt"_s], "dopo");
}

TEST_F(CopiaTest, UnaRegistrazioneRimastaAMetaEPrimaCompletata) {
    const QByteArray prima = azienda.leggi(u"borlano.fte"_s).first(sizeof(Fte));
    QByteArray dopo = prima;
    dopo[5] = '9';
    azienda.scrivi(u"borlano.rip"_s, codifica({u"fattura 9"_s, {{3, 1, prima, dopo}}}));
    const EsitoCopia copia = crea();
    EXPECT_EQ(copia.errore, QString());
    EXPECT_EQ(copia.avvisi.filter(u"fattura 9"_s).size(), 1);
    const QTemporaryDir nuova;
    ASSERT_EQ(torna(copia.percorso, nuova.path()).errore, QString());
    EXPECT_TRUE(leggi(nuova.filePath(u"suprok/suprok/boraz0.007/borlano.fte"_s)).startsWith(dopo));
}

TEST_F(CopiaTest, InterrottaPienaOUccisaNonLasciaNullaCheParaIntero) {
    for (const int quando : {0, 2, 5})
        EXPECT_TRUE(
            crea([volte = quando](int) mutable { return volte-- > 0; }).errore.contains(u"interrotta"_s));
    EXPECT_TRUE(nellaCartella().isEmpty());

    const auto conPocoPosto = [this] {
        const rlimit limite{500, 500};
        ::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limite);
        const QString errore = crea().errore;
        ::_exit(errore.contains(u"non accetta file così grandi"_s) && nellaCartella().isEmpty() ? 7 : 1);
    };
    EXPECT_EQ(inProcesso(conPocoPosto), 7);

    inProcesso([this] {
        crea([volte = 3](int) mutable {
            if (--volte == 0)
                ::raise(SIGKILL);
            return true;
        });
    });
    EXPECT_EQ(nellaCartella().size(), 1);
    EXPECT_TRUE(elencaCopie(copie.path()).isEmpty());
    EXPECT_EQ(crea().errore, QString());
    EXPECT_EQ(nellaCartella().size(), 1);
    EXPECT_EQ(elencaCopie(copie.path(), 7).size(), 1);
}

TEST_F(CopiaTest, ChiPuoSoloLeggereAspettaChiRegistra) {
    Archivio a(azienda.percorsi(), disco, 7);
    a.apri();
    { const Raffica raffica(a, {}); } // makes the log
    const QString tot = azienda.percorso(u"borlano.tot"_s);
    QFile::setPermissions(tot, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    for (const QString& cartella : {azienda.percorsi().radiceCorrente(), copie.path()})
        QFile::setPermissions(cartella, QFile::Permissions(0x7777));
    std::optional<BloccoByte> blocco(std::in_place, a.tot, byteContatori);
    const pid_t figlio = ::fork();
    if (figlio == 0) {
        constexpr uid_t nessuno = 65534;
        if (::geteuid() == 0 && ::setresuid(nessuno, nessuno, nessuno) != 0)
            ::_exit(2);
        ::_exit(crea().errore.isEmpty() ? 0 : 1);
    }
    QThread::msleep(600);
    int stato = -1;
    EXPECT_EQ(::waitpid(figlio, &stato, WNOHANG), 0) << "read while another program wrote";
    blocco.reset();
    EXPECT_EQ(::waitpid(figlio, &stato, 0), figlio);
    EXPECT_EQ(stato, 0);
    EXPECT_EQ(elencaCopie(copie.path(), 7).size(), 1);
}

TEST_F(CopiaTest, DaPiuProgrammiInsiemeRestanoTutte) {
    constexpr int programmi = 4;
    constexpr int copieDiOgnuno = 5;
    std::vector<pid_t> figli;
    for (int n = 0; n < programmi; ++n) {
        figli.push_back(::fork());
        if (figli.back() != 0)
            continue;
        int fatte = 0;
        while (fatte < copieDiOgnuno && CopiaNuova(copie.path(), 7).conferma())
            ++fatte;
        ::_exit(fatte == copieDiOgnuno ? 0 : 1);
    }
    for (const pid_t figlio : figli) {
        int stato = -1;
        ::waitpid(figlio, &stato, 0);
        EXPECT_EQ(stato, 0);
    }
    EXPECT_EQ(elencaCopie(copie.path(), 7).size(), programmi * copieDiOgnuno);
}

TEST_F(CopiaTest, UnaCopiaTagliataOGuastaNonPassa) {
    const QString buona = crea().percorso;
    const QByteArray bytes = leggi(buona);
    const QString altra = copie.filePath(u"altra"_s);
    for (qsizetype n = 0; n < bytes.size(); n += 97) {
        scrivi(altra, bytes.first(n));
        EXPECT_NE(errore(altra), QString()) << n;
        QByteArray guasta = bytes;
        guasta[n] = static_cast<char>(guasta[n] ^ 0x10);
        scrivi(altra, guasta);
        // A bit of the packing that changes nothing of what is packed does no harm.
        const QTemporaryDir nuova;
        if (torna(altra, nuova.path()).errore.isEmpty())
            EXPECT_EQ(errore(altra), QString()) << n;
        else
            EXPECT_TRUE(QDir(nuova.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
                << n;
    }
}

TEST_F(CopiaTest, NessunNomePortaFuoriDallaCartella) {
    for (const QString& nome : {u"../fuori"_s, u"/tmp/fuori"_s, u"suprok/suprok/../../../fuori"_s,
                                u"suprok/suprok/a\\b"_s, u"altro"_s}) {
        QFile file(copie.filePath(u"ostile"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        NastroScritto nastro(file.handle());
        ASSERT_TRUE(nastro.inizia({nome, 3, 0}) && nastro.scrivi("abc") && nastro.chiudi());
        const QTemporaryDir nuova;
        EXPECT_TRUE(
            torna(file.fileName(), nuova.filePath(u"qui"_s)).errore.contains(u"non è di una copia"_s));
        EXPECT_EQ(contenuto(nuova.path()), Contenuto());
    }
}

/// A drive that lets every file be executed, and a tool of the suite that is looked for where it lies.
TEST_F(CopiaTest, NullaEntraNellUnitaCheNonSiaDellaCopia) {
    for (const QString& nome : {u"suprok/suprok/borxpdf"_s, u"suprok/suprok/borxpdf.ini"_s,
                                u"suprok/suprok/boraz0.008/borlano.tot"_s, u"suprok/suprok/x/borlano.eur"_s,
                                u"suprok/suprok/boraz0.007/borlano.rip"_s, u"utente/righe/x/5.righe"_s,
                                u"utente/righe/5.bozza"_s}) {
        QFile file(copie.filePath(u"ostile"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        NastroScritto nastro(file.handle());
        const QByteArray appunti = Appunti{7, {}, {}, {}, {}, QDateTime::currentDateTime()}.testo();
        ASSERT_TRUE(nastro.inizia({nomeAppunti.toString(), appunti.size(), 0}) && nastro.scrivi(appunti) &&
                    nastro.inizia({nome, 3, 0}) && nastro.scrivi("abc") && nastro.chiudi());
        const QTemporaryDir nuova;
        EXPECT_TRUE(
            torna(file.fileName(), nuova.path()).errore.endsWith(u"non è di una copia: "_s + nome + u'.'));
        EXPECT_EQ(contenuto(nuova.path()), Contenuto());
    }
    const QTemporaryDir nuova;
    QDir(nuova.path()).mkdir(u".ripristino-parziale"_s);
    EXPECT_TRUE(torna(crea().percorso, nuova.path()).errore.contains(u"la cartella nascosta"_s));
}

TEST_F(CopiaTest, NessunFileMancaInSilenzioENessunaCopiaContieneCopie) {
    const QString dentro = azienda.percorso(u"sotto/copie/nuove"_s);
    EXPECT_TRUE(creaCopia(azienda.percorsi(), 7, dentro, avanti).errore.contains(u"altra cartella"_s));
    EXPECT_FALSE(QFile::exists(dentro));
    const QByteArray latino = QFile::encodeName(azienda.percorso(u"sotto/citt"_s)) + "\xe0.txt";
    const int descrittore = ::open(latino.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(descrittore, 0);
    ::close(descrittore);
    EXPECT_TRUE(crea().errore.contains(u"rinominate il file"_s));
    EXPECT_TRUE(nellaCartella().isEmpty());
}

TEST_F(CopiaTest, SiEliminanoSoloLeProprieCopiePiuVecchie) {
    for (int n = 0; n < 4; ++n)
        ASSERT_EQ(crea().errore, QString());
    AziendaDiProva altraUnita;
    altraUnita.cliente(u"Verdi"_s);
    const QString altrui = creaCopia(altraUnita.percorsi(), 7, copie.path(), avanti).percorso;
    const QString falsa = copie.filePath(u"boraz0.007_2001-01-01_000000.tar.zst"_s);
    scrivi(falsa, "no copy");
    const QList<CopiaInElenco> tutte = elencaCopie(copie.path(), 7);
    ASSERT_EQ(tutte.size(), 6);
    const QString unita = azienda.percorsi().radiceCorrente();
    const QString nuova = QFileInfo(tutte[1].percorso).fileName();
    EXPECT_EQ(sfoltisci(copie.path(), 7, unita, 2, nuova).size(), 2);
    const QList<CopiaInElenco> rimaste = elencaCopie(copie.path(), 7);
    EXPECT_EQ(rimaste.size(), 4);
    EXPECT_EQ(rimaste.first().percorso, tutte.first().percorso);
    EXPECT_TRUE(QFile::exists(altrui) && QFile::exists(falsa));

    const QString inAnticipo = copie.filePath(u"boraz0.007_2099-01-01_000000.tar.zst"_s);
    ASSERT_TRUE(QFile::copy(tutte[1].percorso, inAnticipo)) << "as of a clock that was ahead";
    EXPECT_EQ(sfoltisci(copie.path(), 7, unita, 1, nuova).size(), 2);
    EXPECT_TRUE(QFile::exists(tutte[1].percorso) && !QFile::exists(inAnticipo));
}

TEST_F(CopiaTest, IlProgrammaDiceComEAndataERicordaLUltima) {
    const QString unita = azienda.percorsi().radiceCorrente();
    const auto borcopia = [&](const QStringList& argomenti) {
        QProcess processo;
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert(u"XDG_DATA_HOME"_s, copie.filePath(u"dati"_s));
        processo.setProcessEnvironment(ambiente);
        processo.start(QStringLiteral(BOR_BIN_DIR "/borcopia"), argomenti);
        EXPECT_TRUE(processo.waitForFinished());
        return processo.exitCode();
    };
    const QStringList comune{u"--unita"_s, unita, u"--azienda"_s, u"7"_s, u"--in"_s, copie.path()};
    EXPECT_EQ(borcopia(comune), 0);
    EXPECT_EQ(borcopia(comune + QStringList{u"--conserva"_s, u"1"_s}), 0);
    const QList<CopiaInElenco> copiate = elencaCopie(copie.path(), 7);
    ASSERT_EQ(copiate.size(), 1);
    const auto ultima = ultimaCopia(azienda.percorso({}).chopped(1));
    ASSERT_TRUE(ultima);
    EXPECT_EQ(ultima->file, copiate.first().percorso);

    CoppiaFte senzaCliente = documentoDi(99, u"3"_s, 1, 0);
    azienda.documento(senzaCliente);
    EXPECT_EQ(borcopia(comune + QStringList{u"--conserva"_s, u"1"_s}), 1);
    EXPECT_EQ(elencaCopie(copie.path(), 7).size(), 2) << "the last one without errors stays";
    EXPECT_EQ(borcopia({u"--verifica"_s, copiate.first().percorso}), 0);
    EXPECT_EQ(borcopia({u"--ripristina"_s, copiate.first().percorso, u"--in"_s, copie.path()}), 2);
    for (const QStringList& sbagliati : {QStringList{u"--unita"_s, unita}, comune + QStringList{u"altro"_s},
                                         QStringList{u"--elenca"_s, u"--in"_s, copie.filePath(u"nessuna"_s)},
                                         comune + QStringList{u"--conserva"_s, u"0"_s},
                                         QStringList{u"--unita"_s, copie.path(), u"--in"_s, copie.path()}})
        EXPECT_EQ(borcopia(sbagliati), 2);
}

} // namespace
} // namespace bor::copia
