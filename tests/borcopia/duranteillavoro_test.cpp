// Copies taken while two programs register documents, with warehouse rows and movements: each of them is a
// company in which the checker finds no error, and whose documents have the lines they were stored with.
#include "borcopia/copiatore.h"
#include "borcopia/ripristino.h"
#include "integrita/turno.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace bor::copia {
namespace {

/// How many copies; BOR_COPIE=100 makes it a load test.
int quanteCopie() {
    const int volute = qEnvironmentVariableIntValue("BOR_COPIE");
    return volute > 0 ? volute : 8;
}

/// The archive has room for some 2,700 of these documents: so many a copy.
constexpr int documentiPerCopia = 24;

/// How many documents both programs have stored, and how many they may.
struct Conto {
    std::atomic<int> registrati = 0;
    std::atomic<int> permessi = documentiPerCopia;
};

/// Stores new documents, opens each again and stores it with other lines until it is told to stop; its
/// document is then the one whose net to pay stands in its lines.
void lavora(const AziendaDiProva& azienda, int chi, Conto& conto) {
    Turno s(azienda);
    const auto finche = [&s](auto passo) {
        for (int volta = 0; volta < 50; ++volta) {
            s.p.prova.orologio.momento = QDateTime::currentDateTime();
            if (passo())
                return;
        }
        ::_exit(1);
    };
    for (int n = 1; conto.permessi > 0; ++n) {
        while (conto.permessi > 0 && conto.registrati >= conto.permessi)
            QThread::msleep(1);
        s.nuovo(QString::number(chi * 100000 + n));
        finche([&s] { return s.salva(); });
        finche([&s] { return s.registra(); });
        s.p.apri(s.p.documento.recordfattura);
        for (int volta = 0; volta < 3; ++volta) {
            const QString segno = u"%1"_s.arg(n * 10 + volta);
            s.p.documento.ddd[0].descrizione = segno;
            s.p.documento.coppia.f2e.pdf.set(segno);
            s.p.documento.estremi.pdf = segno;
            finche([&s] { return s.salva(); });
            finche([&s] { return s.registra(); });
            QThread::msleep(5);
        }
        ++conto.registrati;
    }
}

/// Whether the records of each document and its lines are of one save.
void verificaRighe(const QString& unita) {
    const Percorsi percorsi(unita, QString());
    Disco disco;
    Archivio a(percorsi, disco, 7);
    a.apri(Apertura::SolaLettura);
    for (int n = 1; n <= a.leggiTot(Conta::Fte).numero; ++n) {
        const CoppiaFte coppia = a.leggi(n);
        const QString segno = coppia.f2e.pdf.text().trimmed();
        QFile file(a.reale(percorsoRighe(a, coppia.fte)));
        if (segno.isEmpty() || !file.open(QIODevice::ReadOnly))
            continue;
        EXPECT_TRUE(file.readAll().contains("\r\n" + segno.toLatin1() + "\r\n")) << n;
    }
}

TEST(CopiaDuranteIlLavoro, NonHaErroriEOgniDocumentoHaLeSueRighe) {
    AziendaDiProva azienda;
    fondaDitta(azienda);
    void* comune = ::mmap(nullptr, sizeof(Conto), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(comune, MAP_FAILED);
    auto& conto = *new (comune) Conto;
    std::vector<pid_t> programmi;
    for (const int chi : {1, 2}) {
        programmi.push_back(::fork());
        if (programmi.back() == 0) {
            lavora(azienda, chi, conto);
            ::_exit(0);
        }
    }
    const QTemporaryDir copie;
    qint64 blocco = 0;
    int prima = 0;
    for (int n = 0; n < quanteCopie(); ++n) {
        conto.permessi = conto.registrati + documentiPerCopia;
        const EsitoCopia copia = creaCopia(azienda.percorsi(), 7, copie.path(), [](int) { return true; });
        ASSERT_EQ(copia.errore, QString());
        blocco = std::max(blocco, copia.blocco);
        const EsitoVerifica letta = verificaCopia(copia.percorso, [](int) { return true; });
        EXPECT_EQ(letta.lettura.errore, QString());
        for (const verifica::Discordanza& d : letta.discordanze)
            EXPECT_NE(d.gravita, verifica::Gravita::Errore) << n << ": " << qPrintable(d.testo());
        const QTemporaryDir nuova;
        ASSERT_EQ(ripristina(copia.percorso, Percorsi(nuova.path(), nuova.filePath(u"c"_s)),
                             [](int) { return true; })
                      .errore,
                  QString());
        verificaRighe(nuova.path());
        QFile::remove(copia.percorso);
        prima = conto.registrati;
    }
    EXPECT_GT(prima, 0);
    conto.permessi = 0;
    for (const pid_t programma : programmi) {
        int stato = -1;
        ::waitpid(programma, &stato, 0);
        EXPECT_EQ(stato, 0);
    }
    std::printf("%d copie, %d documenti, blocco al massimo %lld ms\n", quanteCopie(), prima,
                static_cast<long long>(blocco));
}

} // namespace
} // namespace bor::copia
