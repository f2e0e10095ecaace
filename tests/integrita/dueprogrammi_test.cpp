// Two programs at work on one company, each registering documents with warehouse rows and movements, while
// one of them is killed again and again: nothing goes missing, and nothing counts twice.
#include "integrita/verificasaldi.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QThread>

#include <atomic>
#include <csignal>
#include <map>
#include <random>
#include <set>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

/// How many documents each program registers; BOR_DOCUMENTI=1000 makes it a load test.
int documenti() {
    const int voluti = qEnvironmentVariableIntValue("BOR_DOCUMENTI");
    return voluti > 0 ? voluti : 100;
}

/// What a program has begun and ended, where its end does not take it along.
struct Conto {
    std::atomic<int> iniziati;
    std::atomic<int> finiti;
};

/// The operator presses again when another program was writing.
template <class Passo>
void finche(Passo passo) {
    for (int volta = 0; !passo(); ++volta) {
        if (volta == 50)
            ::_exit(1);
    }
}

/// Registers documents "<chi>1", "<chi>2" ... from the last one begun on: stored with a movement, then opened
/// again and stored with warehouse rows and a movement in place of the first.
void lavora(const AziendaDiProva& azienda, QChar chi, Conto& conto) {
    Turno s(azienda);
    recupera(s.p.prova.archivio);
    const auto salva = [&s] {
        s.p.prova.orologio.momento = QDateTime::currentDateTime();
        return s.salva();
    };
    const auto registra = [&s] { return s.registra(); };
    while (conto.iniziati < documenti()) {
        s.nuovo(chi + QString::number(++conto.iniziati));
        finche(salva);
        finche(registra);
        s.p.apri(s.p.documento.recordfattura);
        finche(salva);
        finche(registra);
        ++conto.finiti;
    }
}

pid_t avvia(const AziendaDiProva& azienda, QChar chi, Conto& conto) {
    const pid_t figlio = ::fork();
    if (figlio == 0) {
        lavora(azienda, chi, conto);
        ::_exit(0);
    }
    return figlio;
}

/// Runs a program and kills it at the next few documents, until it has done them all; the documents that it
/// was at when it was killed.
std::set<int> avviaEUccidi(const AziendaDiProva& azienda, QChar chi, Conto& conto) {
    std::set<int> interrotti;
    std::mt19937 caso(7);
    for (int stato = 0;;) {
        const int fino = conto.iniziati + 1 + static_cast<int>(caso() % 4);
        const pid_t figlio = avvia(azienda, chi, conto);
        pid_t finito = 0;
        while (finito == 0 && conto.iniziati < fino) {
            QThread::usleep(200);
            finito = ::waitpid(figlio, &stato, WNOHANG);
        }
        if (finito == 0) {
            QThread::usleep(caso() % 20000);
            ::kill(figlio, SIGKILL);
            ::waitpid(figlio, &stato, 0);
        }
        if (WIFEXITED(stato)) {
            EXPECT_EQ(WEXITSTATUS(stato), 0);
            return interrotti;
        }
        if (conto.finiti + std::ssize(interrotti) < conto.iniziati)
            interrotti.insert(conto.iniziati);
    }
}

/// Rows and movements that live, by the stamp of their document.
struct Seguito {
    explicit Seguito(const Archivio& a) {
        a.mag.scorri(1, a.leggiTot(Conta::Mag).numero, [this](int, const Mag& mag) {
            righe[mag.stampmag] += mag.cancellato == 1 ? 0 : 1;
            return true;
        });
        a.gio.scorri(1, a.leggiTot(Conta::Gio).numero, [this](int, const Gio& gio) {
            movimenti[gio.riferimentofattura] += gio.cancellato == 1 ? 0 : 1;
            return true;
        });
    }
    std::map<double, int> righe;
    std::map<double, int> movimenti;
};

TEST(DueProgrammi, UnoDeiQualiSiUccideNonPerdonoNullaENonContanoDueVolte) {
    AziendaDiProva azienda;
    fondaDitta(azienda);
    void* comune =
        ::mmap(nullptr, 2 * sizeof(Conto), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(comune, MAP_FAILED);
    Conto* conti = new (comune) Conto[2]{};
    const pid_t primo = avvia(azienda, u'A', conti[0]);
    const std::set<int> interrotti = avviaEUccidi(azienda, u'B', conti[1]);
    int stato = -1;
    ::waitpid(primo, &stato, 0);
    ASSERT_EQ(stato, 0);

    ContestoDiProva prova(azienda);
    const Archivio& a = prova.archivio;
    ASSERT_EQ(recupera(prova.archivio), EsitoRaffica::Riuscita);
    verificaSaldi(a);
    Seguito seguito(a);
    std::set<double> timbri;
    std::set<float> file;
    std::set<QString> interi;
    const int numero = a.leggiTot(Conta::Fte).numero;
    for (int n = 1; n <= numero; ++n) {
        const CoppiaFte coppia = a.leggi(n);
        const double stamp = coppia.fte.stamp;
        const QString nome = coppia.fte.numero.text().trimmed();
        EXPECT_TRUE(timbri.insert(stamp).second) << n;
        EXPECT_TRUE(file.insert(coppia.fte.nfile).second) << n;
        if (nome.startsWith(u'B') && interrotti.contains(nome.mid(1).toInt())) {
            EXPECT_TRUE(seguito.righe[stamp] == 0 || seguito.righe[stamp] == 3) << n;
            EXPECT_LE(seguito.movimenti[stamp], 1) << n;
            continue;
        }
        EXPECT_TRUE(interi.insert(nome).second) << qPrintable(nome);
        EXPECT_EQ(seguito.righe[stamp], 3) << n;
        EXPECT_EQ(seguito.movimenti[stamp], 1) << n;
        const QByteArray righe = azienda.leggi(u"f%1"_s.arg(double{coppia.fte.nfile}));
        EXPECT_TRUE(righe.contains(QByteArray("\r\n") + nome.toLatin1() + "\r\n")) << qPrintable(nome);
    }
    EXPECT_EQ(std::ssize(interi), 2 * documenti() - std::ssize(interrotti));
    std::printf("%d documenti, %zu interrotti\n", numero, interrotti.size());
}

} // namespace
} // namespace bor
