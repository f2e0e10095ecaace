// What stands on file, and on screen, when a save or a delete stops halfway, and when two programs save at
// once.
#include "document/programma.h"

#include <gtest/gtest.h>

#include <QFile>

#include <set>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

/// Runs `lavoro` in a process of its own; its exit code.
template <class Lavoro>
int inProcesso(Lavoro lavoro) {
    const pid_t figlio = ::fork();
    if (figlio == 0) {
        lavoro();
        ::_exit(0);
    }
    int stato = 0;
    ::waitpid(figlio, &stato, 0);
    return WEXITSTATUS(stato);
}

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

TEST_F(InterrottoTest, CadutaDopoOgniScritturaDiUnaCancellazione) {
    Archivio& archivio = p.prova.archivio;
    archivio.aggiungi(archivio.mag, Conta::Mag, vuoto<Mag>());
    Con conto = vuoto<Con>();
    conto.codice.set(u"12");
    conto.progressivodare = 100.0;
    archivio.aggiungi(archivio.con, Conta::Con, conto);
    for (int n = 1; n <= 7; ++n) {
        p.nuovo(u"1"_s);
        p.salva();
        p.apri(p.documenti());
        p.salva();
        Gio gio = vuoto<Gio>();
        gio.riferimentofattura = p.documento.coppia.fte.stamp;
        gio.voce[0].segno = 1;
        gio.voce[0].conto.set(u"00000012");
        gio.voce[0].importo = 10.0;
        const int movimento = archivio.aggiungi(archivio.gio, Conta::Gio, gio);
        const int record = p.documento.record;
        const QString righe = QString::number(double{p.documento.coppia.fte.nfile}).prepend(u'f');
        EXPECT_EQ(inProcesso([&] {
                      Programma q(azienda);
                      q.apri(record);
                      q.disco.caduta = n;
                      q.elimina();
                  }),
                  DiscoGuasto::uscitaPerCaduta);
        EXPECT_EQ(archivio.fte.leggi(record).annullata == 1, n >= 2);
        EXPECT_EQ(QFile::exists(azienda.percorso(righe)), n < 4);
        EXPECT_EQ(archivio.gio.leggi(movimento).cancellato == 1, n >= 6);
        Programma q(azienda);
        q.apri(record);
        EXPECT_TRUE(q.elimina());
        EXPECT_EQ(archivio.fte.leggi(record).annullata, 1);
        EXPECT_EQ(archivio.gio.leggi(movimento).cancellato, 1);
        EXPECT_FALSE(QFile::exists(azienda.percorso(righe)));
        EXPECT_EQ(archivio.leggiTot(Conta::Gio).cancellato, 1);
    }
    // Seven movements of 10 in credit came out of the debit total; the one stopped between account and mark
    // was taken out again.
    EXPECT_EQ(archivio.con.leggi(1).progressivodare, 20.0);
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
