// Bursts of writes: what stands on file when one fails, stops halfway, or meets another program.
#include "archive/raffica.h"
#include "support/azienda.h"
#include "support/disco_guasto.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <cstring>
#include <limits>
#include <thread>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

Con contoDi(double dare) {
    Con conto = vuoto<Con>();
    conto.progressivodare = dare;
    return conto;
}

/// Two accounts, and a burst that adds to the first one twice, to the second once, and writes a movement.
class RafficaTest : public testing::Test {
protected:
    RafficaTest() {
        for (int n = 1; n <= 2; ++n)
            prova.archivio.con.scrivi(n, contoDi(100));
        disco.ripara();
    }
    EsitoRaffica registra(Archivio& archivio) {
        Raffica raffica(archivio, u"fattura 12/À"_s);
        for (const int n : {1, 2, 1}) {
            Con conto = raffica.leggi(archivio.con, n);
            conto.progressivodare += 10;
            raffica.scrivi(archivio.con, n, conto);
        }
        Gio gio = vuoto<Gio>();
        gio.riferimentofattura = 5;
        raffica.aggiungi(archivio.gio, Conta::Gio, gio);
        return raffica.esegui();
    }
    /// Totals of the two accounts and the count of the movements.
    QList<double> stato() const {
        const Archivio& a = prova.archivio;
        return {a.con.leggi(1).progressivodare, a.con.leggi(2).progressivodare,
                double(a.leggiTot(Conta::Gio).numero)};
    }
    const QList<double> prima{100, 100, 0};
    const QList<double> dopo{120, 110, 1};

    AziendaDiProva azienda;
    DiscoGuasto disco;
    ContestoDiProva prova{azienda, disco};
};

TEST_F(RafficaTest, ScriveOgniRecordUnaVoltaNellOrdineDelPrimoTocco) {
    disco.annota = true;
    EXPECT_EQ(registra(prova.archivio), EsitoRaffica::Riuscita);
    EXPECT_EQ(stato(), dopo);
    QStringList operazioni;
    for (const Operazione& o : disco.operazioni)
        operazioni.append((o.tipo == Operazione::Tipo::Scarico ? u"="_s : u""_s) + o.percorso.last(3));
    EXPECT_EQ(operazioni.join(u' '), u"rip =rip =007 con gio tot =tot =con =gio rip =rip"_s);
    EXPECT_TRUE(azienda.leggi(u"borlano.rip"_s).startsWith(QByteArray(8, '\0')));
    EXPECT_TRUE(prova.archivio.prendiRecuperi().empty());
}

TEST_F(RafficaTest, UnaScritturaFallitaRimetteTuttoELaRipetizioneParteDaCapo) {
    const int tutte = [this] {
        AziendaDiProva altra;
        DiscoGuasto d;
        ContestoDiProva c(altra, d);
        registra(c.archivio);
        return d.scritture;
    }();
    for (int n = 1; n <= tutte; ++n) {
        for (const bool perSempre : {false, true}) {
            for (const bool corta : {false, true}) {
                disco.ripara();
                disco.guasto = n;
                disco.perSempre = perSempre;
                disco.corta = corta;
                const bool riuscita = registra(prova.archivio) == EsitoRaffica::Riuscita;
                const QString guasto = prova.archivio.disco().nonScritto();
                disco.ripara();
                EXPECT_TRUE(riuscita || guasto.contains(u"borlano."_s)) << n;
                {
                    const Raffica vuota(prova.archivio, {});
                    EXPECT_TRUE(vuota.riuscita());
                }
                EXPECT_EQ(stato(), riuscita ? dopo : prima) << n << perSempre << corta;
                EXPECT_TRUE(prova.archivio.prendiRecuperi().empty()) << "nothing of this run is completed";
                EXPECT_EQ(registra(prova.archivio), EsitoRaffica::Riuscita);
                EXPECT_EQ(stato()[0] - (riuscita ? 20 : 0), 120) << "nothing counted twice";
                for (int k = 1; k <= 2; ++k)
                    prova.archivio.con.scrivi(k, contoDi(100));
                prova.archivio.scriviTot(Conta::Gio, vuoto<Tot>());
                prova.archivio.prendiRecuperi();
            }
        }
    }
}

TEST_F(RafficaTest, CioCheUnAltroHaCompletatoNonSiRipeteDueVolte) {
    for (const bool toccato : {false, true}) {
        disco.ripara();
        disco.guasto = 4; // the log is on disk; nothing more can be written, the operator is told so
        disco.perSempre = true;
        ASSERT_EQ(registra(prova.archivio), EsitoRaffica::NonScritta);
        disco.ripara();
        ContestoDiProva altro(azienda);
        ASSERT_EQ(recupera(altro.archivio), EsitoRaffica::Riuscita);
        if (toccato)
            altro.archivio.con.scrivi(2, contoDi(500));
        EXPECT_EQ(registra(prova.archivio), EsitoRaffica::Riuscita);
        EXPECT_EQ(stato(), toccato ? QList<double>({160, 510, 3}) : dopo);
    }
}

TEST_F(RafficaTest, UnaRafficaInterrottaSiCompletaELOperatoreSaQuale) {
    disco.caduta = 4; // the log is on disk, and of the records the accounts
    registra(prova.archivio);
    disco.ripara();
    EXPECT_NE(stato(), dopo);
    ContestoDiProva altro(azienda);
    EXPECT_EQ(recupera(altro.archivio), EsitoRaffica::Riuscita);
    EXPECT_EQ(stato(), dopo);
    const auto recuperi = altro.archivio.prendiRecuperi();
    ASSERT_EQ(recuperi.size(), 1U);
    EXPECT_EQ(recuperi[0].documento, u"fattura 12/À"_s);
    EXPECT_TRUE(recuperi[0].lasciati.isEmpty());
    EXPECT_EQ(recupera(altro.archivio), EsitoRaffica::Riuscita);
    EXPECT_TRUE(altro.archivio.prendiRecuperi().empty()) << "once";
}

TEST_F(RafficaTest, UnRecordCambiatoDaAltriSiLasciaStareEUnoStrappatoSiCompleta) {
    disco.caduta = 3;
    registra(prova.archivio);
    disco.ripara();
    Con torto = contoDi(120);
    std::memset(reinterpret_cast<char*>(&torto) + 61, 0, 4); // torn between 100 and 120
    torto.progressivodare = contoDi(100).progressivodare;
    prova.archivio.con.scrivi(1, torto);
    prova.archivio.con.scrivi(2, contoDi(777.5));
    ASSERT_EQ(recupera(prova.archivio), EsitoRaffica::Riuscita);
    EXPECT_EQ(stato(), QList<double>({120, 777.5, 1}));
    const auto recuperi = prova.archivio.prendiRecuperi();
    ASSERT_EQ(recuperi.size(), 1U);
    EXPECT_EQ(recuperi[0].lasciati, QStringList{u"borlano.con n. 2"_s});
}

TEST_F(RafficaTest, NullaSiScriveSuCioCheNonSiELetto) {
    for (const QString& file : {u"borlano.tot"_s, u"borlano.con"_s, u"borlano.gio"_s, u"borlano.rip"_s}) {
        disco.illeggibile = file;
        disco.scritture = 0;
        EXPECT_EQ(registra(prova.archivio), EsitoRaffica::NonLetta);
        EXPECT_EQ(disco.scritture, 0) << qPrintable(file);
        EXPECT_TRUE(disco.nonLetto().endsWith(file));
    }
    disco.ripara();
    EXPECT_EQ(stato(), prima);
    Tot pieno = vuoto<Tot>();
    pieno.numero = 32767;
    prova.archivio.scriviTot(Conta::Gio, pieno);
    EXPECT_EQ(registra(prova.archivio), EsitoRaffica::Piena);
    EXPECT_EQ(stato(), QList<double>({100, 100, 32767}));
}

TEST_F(RafficaTest, SiAspettaUnAltroProgrammaMaNonPerSempre) {
    ContestoDiProva altro(azienda);
    auto occupante = std::make_unique<Raffica>(altro.archivio, u"altro"_s);
    std::thread libera([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        occupante.reset();
    });
    EXPECT_EQ(registra(prova.archivio), EsitoRaffica::Riuscita);
    libera.join();
    const Raffica ancora(altro.archivio, u"altro"_s);
    QElapsedTimer tempo;
    tempo.start();
    disco.scritture = 0;
    EXPECT_EQ(registra(prova.archivio), EsitoRaffica::Occupata);
    EXPECT_EQ(disco.scritture, 0);
    EXPECT_GE(tempo.elapsed(), 4900);
    EXPECT_LT(tempo.elapsed(), 10000);
}

TEST_F(RafficaTest, UnDiarioGuastoSiIgnora) {
    disco.caduta = 3;
    registra(prova.archivio);
    disco.ripara();
    const QByteArray intero = azienda.leggi(u"borlano.rip"_s);
    ASSERT_TRUE(decodifica(intero));
    EXPECT_EQ(decodifica(intero + "x")->voci.size(), 4U) << "what an earlier, longer log left behind";
    for (qsizetype n = 0; n < intero.size(); ++n) {
        EXPECT_FALSE(decodifica(intero.first(n)));
        QByteArray sporco = intero;
        sporco[n] = static_cast<char>(sporco[n] ^ 0x10);
        EXPECT_FALSE(decodifica(sporco)) << n;
    }
    for (const int record : {0, -5, 32768, 65536 + 1}) {
        Diario strano = *decodifica(intero);
        strano.voci[0].record = record;
        const auto letto = decodifica(codifica(strano));
        EXPECT_TRUE(!letto || letto->voci[0].record == 1) << record;
    }
}

} // namespace
} // namespace bor
