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
    const QStringList raffica = {u"rip"_s, u"rip"_s, u"fte"_s, u"f2e"_s,
                                 u"tot"_s, u"tot"_s, u"fte"_s, u"f2e"_s};
    for (const bool esistente : {false, true}) {
        for (int n = 1; n <= raffica.size() + (esistente ? 1 : 0); ++n) {
            if (esistente)
                p.apri(1);
            else
                p.nuovo(u"1"_s);
            p.documento.ddd[0] = rigaDi(n);
            const bool conRighe = n > raffica.size();
            const QByteArray righe = azienda.leggi(u"f2"_s);
            p.disco.ripara();
            // The first burst also makes the log, and the lines follow the two writes that empty it.
            p.disco.guasto =
                conRighe ? n + 2 : n + (n > 2 && azienda.leggi(u"borlano.rip"_s).isEmpty() ? 1 : 0);
            p.registrazioni.chiamate.clear();
            const CoppiaFte prima = p.prova.archivio.leggi(1);
            EXPECT_EQ(p.salva().dopo, DopoSalva::Resta);
            const QString atteso = conRighe ? u"f2"_s : raffica[n - 1];
            EXPECT_TRUE(p.prova.operatore.messaggi.last().testo.contains(atteso + u'"')) << n;
            EXPECT_EQ(p.documento.ddd[0], rigaDi(n));
            EXPECT_EQ(azienda.leggi(u"f2"_s), righe) << "no file half written";
            EXPECT_EQ(p.documenti(), esistente ? 1 : 0);
            EXPECT_TRUE(conRighe || p.prova.archivio.leggi(1).fte.numero == prima.fte.numero);
            EXPECT_EQ(p.prova.operatore.attese, 0);
            EXPECT_TRUE(p.registrazioni.chiamate.isEmpty());
        }
        p.disco.ripara();
        EXPECT_NE(p.salva().dopo, DopoSalva::Resta);
        EXPECT_EQ(p.documenti(), 1);
    }
}

TEST_F(InterrottoTest, NullaSiSalvaSuCioCheNonSiELetto) {
    p.nuovo(u"1"_s);
    p.salva();
    const QByteArray fte = azienda.leggi(u"borlano.fte"_s);
    p.nuovo(u"2"_s);
    p.disco.illeggibile = u"borlano.tot"_s;
    EXPECT_EQ(p.salva().dopo, DopoSalva::Resta);
    EXPECT_TRUE(p.prova.operatore.messaggi.last().testo.contains(u"borlano.tot"_s));
    EXPECT_EQ(azienda.leggi(u"borlano.fte"_s), fte) << "the first document is still there";
    p.disco.illeggibile = u"borlano.f2e"_s;
    EXPECT_FALSE(documentoEsistente(p.prova.contesto, 1, p.sospese));
    p.disco.ripara();
    EXPECT_EQ(p.salva().dopo, DopoSalva::Movimento);
    EXPECT_EQ(p.documenti(), 2);
}

TEST_F(InterrottoTest, UnArchivioImpegnatoNonScriveNullaELoDice) {
    p.nuovo(u"1"_s);
    ContestoDiProva altro(azienda);
    {
        const Raffica occupante(altro.archivio, {});
        EXPECT_EQ(p.salva().dopo, DopoSalva::Resta);
    }
    ASSERT_EQ(p.prova.operatore.messaggi.size(), 1);
    EXPECT_EQ(p.prova.operatore.messaggi[0].testo,
              u"L'archivio è impegnato da un altro computer: riprovate fra qualche secondo."_s);
    EXPECT_EQ(p.prova.operatore.messaggi[0].titolo, u"Attenzione"_s);
    EXPECT_TRUE(azienda.leggi(u"borlano.fte"_s).isEmpty());
    EXPECT_EQ(p.salva().dopo, DopoSalva::Movimento);
}

TEST_F(InterrottoTest, LeRigheTenuteTornanoAncheSeUnAltroHaSalvatoSenza) {
    p.nuovo(u"1"_s);
    p.documento.ddd[0] = rigaDi(5);
    p.salva();
    // Another program opens the new document, finds no lines and saves it so.
    Programma altro(azienda);
    altro.apri(1);
    altro.salva();
    p.apri(1);
    EXPECT_EQ(p.documento.ddd[0], rigaDi(5)) << "the lines that this run kept";
    EXPECT_NE(p.salva().dopo, DopoSalva::Resta);
    EXPECT_FALSE(p.sospese.riprendi(p.documento)) << "its lines file has them now";
    altro.apri(1);
    EXPECT_EQ(altro.documento.ddd[0], rigaDi(5));

    aggiungi(p.prova.archivio, p.prova.archivio.mag, Conta::Mag, vuoto<Mag>());
    p.registrazioni.magazzinoPieno = true;
    EXPECT_EQ(p.salva().dopo, DopoSalva::Resta);
    EXPECT_TRUE(p.prova.operatore.messaggi.last().testo.contains(u"32767"_s));
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
            q.prova.orologio.momento = QDateTime::currentDateTime();
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
    std::set<double> timbri;
    for (int n = 1; n <= p.documenti(); ++n) {
        const CoppiaFte coppia = p.prova.archivio.leggi(n);
        numeri.insert(coppia.fte.numero.trimmed());
        righe.insert(coppia.fte.nfile);
        timbri.insert(coppia.fte.stamp);
    }
    EXPECT_EQ(numeri.size(), std::size_t{2 * perProgramma});
    EXPECT_EQ(righe.size(), std::size_t{2 * perProgramma});
    EXPECT_EQ(timbri.size(), std::size_t{2 * perProgramma});
}

} // namespace
} // namespace bor
