// What stands on file, and on screen, when a save stops halfway, and when two programs save at once.
#include "document/programma.h"
#include "support/processo.h"

#include <gtest/gtest.h>

#include <QFile>

#include <set>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class InterrottoTest : public testing::Test {
protected:
    InterrottoTest() { azienda.cliente(u"Rossi"_s); }

    AziendaDiProva azienda;
    Programma p{azienda};
};

TEST_F(InterrottoTest, OgniScritturaCheFallisceLasciaIlDocumentoIntatto) {
    const QStringList file = {u"borlano.fte"_s, u"borlano.f2e"_s, u"borlano.tot"_s, u"f2"_s};
    for (const bool esistente : {false, true}) {
        for (int n = 1; n <= (esistente ? 4 : 3); ++n) {
            if (esistente)
                p.apri(1);
            else
                p.nuovo(u"1"_s);
            p.documento.ddd[0] = rigaDi(n);
            const QByteArray righe = azienda.leggi(u"f2"_s);
            p.disco.scritture = 0;
            p.disco.guasto = n;
            p.registrazioni.chiamate.clear();
            EXPECT_EQ(p.salva().dopo, DopoSalva::Resta);
            EXPECT_TRUE(p.prova.operatore.messaggi.last().testo.contains(file[n - 1])) << n;
            EXPECT_EQ(p.documento.ddd[0], rigaDi(n));
            EXPECT_EQ(azienda.leggi(u"f2"_s), righe) << "no file half written";
            EXPECT_EQ(p.prova.operatore.attese, 0);
            EXPECT_TRUE(p.registrazioni.chiamate.isEmpty());
        }
        p.disco.guasto = 0;
        EXPECT_NE(p.salva().dopo, DopoSalva::Resta);
        EXPECT_EQ(p.documenti(), 1);
    }
}

TEST_F(InterrottoTest, CadutaDopoOgniScritturaDiUnSalvataggio) {
    p.nuovo(u"1"_s);
    p.salva();
    p.apri(1);
    p.salva();
    for (int n = 1; n <= 4; ++n) {
        const QString numero = u"N"_s + QString::number(n);
        EXPECT_EQ(inProcesso([&] {
                      Programma q(azienda);
                      q.apri(1);
                      q.documento.estremi.numero = numero;
                      q.documento.scadenze.rate[4] = {u"15/07/2015"_s, QString::number(n)};
                      q.documento.ddd[0] = rigaDi(n);
                      q.disco.caduta = n;
                      q.salva();
                  }),
                  DiscoGuasto::uscitaPerCaduta);
        Programma q(azienda);
        q.apri(1);
        EXPECT_EQ(q.documento.estremi.numero, numero) << "the head comes first";
        EXPECT_EQ(q.documento.scadenze.rate[4].importo == QString::number(n), n >= 2);
        EXPECT_EQ(q.documento.ddd[0] == rigaDi(n), n >= 4);
        q.documento.ddd[0] = rigaDi(n);
        EXPECT_NE(q.salva().dopo, DopoSalva::Resta);
        q.apri(1);
        EXPECT_EQ(q.documento.ddd[0], rigaDi(n));
        EXPECT_EQ(q.documenti(), 1);
    }
    for (int n = 1; n <= 3; ++n) {
        inProcesso([&] {
            Programma q(azienda);
            q.nuovo(u"X"_s);
            q.disco.caduta = n;
            q.salva();
        });
        EXPECT_EQ(p.documenti(), n < 3 ? 1 : 2) << "a record that is not counted is invisible";
    }
}

TEST_F(InterrottoTest, DueProgrammiNonPrendonoLoStessoRecord) {
    constexpr int perProgramma = 1000;
    std::array<pid_t, 2> figli{};
    for (std::size_t f = 0; f < figli.size(); ++f) {
        figli[f] = ::fork();
        if (figli[f] != 0)
            continue;
        Programma q(azienda);
        for (int i = 0; i < perProgramma; ++i) {
            q.nuovo(QString::number(f) + u'-' + QString::number(i));
            q.salva();
        }
        ::_exit(0);
    }
    for (const pid_t figlio : figli)
        ::waitpid(figlio, nullptr, 0);
    ASSERT_EQ(p.documenti(), 2 * perProgramma);
    std::set<QString> numeri;
    std::set<float> righe;
    for (int n = 1; n <= p.documenti(); ++n) {
        const CoppiaFte coppia = p.prova.archivio.leggi(n);
        numeri.insert(coppia.fte.numero.trimmed());
        righe.insert(coppia.fte.nfile);
    }
    EXPECT_EQ(numeri.size(), std::size_t{2 * perProgramma});
    EXPECT_EQ(righe.size(), std::size_t{2 * perProgramma});
}

} // namespace
} // namespace bor
