// Record files, counters, and the bytes of each record type.
#include "archive/fpa.h"
#include "support/azienda.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

template <class R>
QByteArray bytesDi(const R& record) {
    return QByteArray(reinterpret_cast<const char*>(&record), sizeof(R));
}

/// A record in which every byte differs from its neighbours, all 256 values and NULs included.
template <class R>
R strano() {
    R record;
    auto bytes = std::as_writable_bytes(std::span(&record, 1));
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::byte>((i * 7 + i / 256) % 256);
    return record;
}

template <class R>
void giroCompleto(RecordFile<R>& file, const AziendaDiProva& azienda, const QString& nome) {
    const R record = strano<R>();
    ASSERT_TRUE(file.scrivi(3, record));
    EXPECT_EQ(bytesDi(file.leggi(3)), bytesDi(record)) << qPrintable(nome);
    const QByteArray suFile = azienda.leggi(nome);
    EXPECT_EQ(suFile.size(), qsizetype{3 * sizeof(R)});
    EXPECT_EQ(suFile.last(sizeof(R)), bytesDi(record));
    EXPECT_EQ(bytesDi(file.leggi(2)), QByteArray(sizeof(R), '\0'));
}

TEST(Archivio, OgniByteDiOgniRecordTornaComEra) {
    const AziendaDiProva azienda;
    ContestoDiProva prova(azienda);
    Archivio& a = prova.archivio;
    giroCompleto(a.cli, azienda, u"borlano.cli"_s);
    giroCompleto(a.art, azienda, u"borlano.art"_s);
    giroCompleto(a.con, azienda, u"borlano.con"_s);
    giroCompleto(a.fte, azienda, u"borlano.fte"_s);
    giroCompleto(a.f2e, azienda, u"borlano.f2e"_s);
    giroCompleto(a.mag, azienda, u"borlano.mag"_s);
    giroCompleto(a.gio, azienda, u"borlano.gio"_s);
    giroCompleto(a.age, azienda, u"borlano.age"_s);
    giroCompleto(a.prx, azienda, u"borlano.prx"_s);
    giroCompleto(a.src, azienda, u"borlano.src"_s);
    giroCompleto(a.srb, azienda, u"borlano.srb"_s);
}

TEST(Archivio, ICampiStannoAlLoroPosto) {
    CoppiaFte c = vuoto<CoppiaFte>();
    c.fte.numero.set(u"12/À");
    c.fte.registro = 9;
    c.fte.nfile = -1.0F;
    c.fte.iva[7] = 1.0;
    c.f2e.fpa = 1.0;
    c.f2e.raimpo[3] = 1.0;
    const QByteArray fte = bytesDi(c.fte);
    EXPECT_EQ(fte.sliced(2, 10), QByteArray("12/\xC0      "));
    EXPECT_EQ(fte.sliced(442, 2), QByteArray("\x09\0", 2));
    EXPECT_EQ(fte.sliced(455, 4), QByteArray("\0\0\x80\xBF", 4));
    EXPECT_EQ(fte.sliced(214, 8), QByteArray("\0\0\0\0\0\0\xF0\x3F", 8));
    EXPECT_EQ(bytesDi(c.f2e).sliced(579, 8), QByteArray("\0\0\0\0\0\0\xF0\x3F", 8));
    EXPECT_EQ(bytesDi(c.f2e).sliced(518, 8), QByteArray("\0\0\0\0\0\0\xF0\x3F", 8));
    Cli cli = vuoto<Cli>();
    cli.regimeiva = 24;
    cli.listino.set(u"1");
    EXPECT_EQ(bytesDi(cli).sliced(628, 1), "1");
    EXPECT_EQ(bytesDi(cli).at(712), 24);
    Gio gio = vuoto<Gio>();
    gio.voce[9].importo = 1.0;
    EXPECT_EQ(bytesDi(gio).at(249), '\x3F');
    Fpa fpa = vuoto<Fpa>();
    fpa.cartellaxml.set(u"\\xml");
    fpa.codicecig.set(u"Z12");
    EXPECT_EQ(bytesDi(fpa).sliced(2221, 5), "\\xml ");
    EXPECT_EQ(bytesDi(fpa).sliced(1070, 4), "Z12 ");
}

TEST(Archivio, LInizializzazioneLasciaCioCheNonLeAppartiene) {
    F2e f2e = strano<F2e>();
    const QByteArray prima = bytesDi(f2e);
    inizializza2(f2e);
    const QByteArray dopo = bytesDi(f2e);
    EXPECT_EQ(dopo.left(2), QByteArray("\xE7\x03"));
    EXPECT_EQ(dopo.sliced(2, 96), QByteArray(96, '\0'));
    EXPECT_EQ(dopo.sliced(290, 48), QByteArray(48, ' '));
    EXPECT_EQ(dopo.sliced(526, 2), QByteArray("\1\0", 2));
    EXPECT_EQ(dopo.sliced(564, 8), QByteArray(8, '\0'));
    EXPECT_EQ(dopo.sliced(587), QByteArray(251, ' '));
    for (const auto& [da, quanti] : {std::pair{338, 60}, {528, 36}, {572, 15}})
        EXPECT_EQ(dopo.sliced(da, quanti), prima.sliced(da, quanti)) << da;
}

TEST(Archivio, IlContatoreContaDopoIlRecordESiFermaA32767) {
    const AziendaDiProva azienda;
    ContestoDiProva prova(azienda);
    Archivio& a = prova.archivio;
    const auto aggiunto = [&a](const Con& con) {
        Raffica raffica(a, {});
        const int n = raffica.aggiungi(a.con, Conta::Con, con);
        return raffica.esegui() == EsitoRaffica::Riuscita ? n : 0;
    };
    EXPECT_EQ(aggiunto(vuoto<Con>()), 1);
    EXPECT_EQ(azienda.leggi(u"borlano.tot"_s).sliced(60, 12), QByteArray("\1\0\1\0\0\0\0\0\0\0\0\0", 12));
    Tot tot = vuoto<Tot>();
    tot.numero = 32767;
    tot.progressivo = 5.0F;
    a.scriviTot(Conta::Con, tot);
    const QByteArray con = azienda.leggi(u"borlano.con"_s);
    EXPECT_EQ(aggiunto(strano<Con>()), 0);
    EXPECT_EQ(azienda.leggi(u"borlano.con"_s), con);
    EXPECT_EQ(a.leggiTot(Conta::Con).numero, 32767);
    tot.numero = -7;
    a.scriviTot(Conta::Con, tot);
    EXPECT_EQ(aggiunto(vuoto<Con>()), 1);
    EXPECT_EQ(a.leggiTot(Conta::Con).progressivo, 5.0F);
}

TEST(Archivio, FileMozziLeggonoQuelCheCEERiscrivonoAlPosto) {
    const AziendaDiProva azienda;
    azienda.scrivi(u"borlano.con"_s, QByteArray(150 + 20, 'x'));
    ContestoDiProva prova(azienda);
    Con con;
    EXPECT_EQ(prova.archivio.con.leggi(2, con), EsitoLettura::Manca);
    EXPECT_EQ(bytesDi(con), QByteArray(20, 'x') + QByteArray(130, '\0'));
    EXPECT_EQ(prova.archivio.con.leggi(0, con), EsitoLettura::Manca);
    EXPECT_FALSE(prova.archivio.con.scrivi(0, con));
    EXPECT_TRUE(prova.archivio.con.scrivi(2, vuoto<Con>()));
    EXPECT_EQ(azienda.leggi(u"borlano.con"_s).size(), 300);
    int visti = 0;
    prova.archivio.con.scorri(-3, 5000, [&](int, const Con&) { return ++visti < 4000; });
    EXPECT_EQ(visti, 4000);
}

TEST(Archivio, UnaCartellaCheNonSiApreDaRecordVuoti) {
    const AziendaDiProva azienda;
    QDir(azienda.percorso({})).mkdir(u"borlano.cli"_s);
    ContestoDiProva prova(azienda);
    EXPECT_FALSE(prova.archivio.cli.aperto());
    EXPECT_EQ(bytesDi(prova.archivio.cli.leggi(1)), QByteArray(752, '\0'));
    EXPECT_FALSE(prova.archivio.cli.scrivi(1, vuoto<Cli>()));
    EXPECT_TRUE(prova.archivio.disco().nonScritto().endsWith(u"borlano.cli"_s));
}

TEST(Archivio, UnFileSiSostituisceIntero) {
    const AziendaDiProva azienda;
    Disco disco;
    const QString percorso = azienda.percorso(u"f12"_s);
    EXPECT_TRUE(disco.scriviFile(percorso, "vecchio"));
    EXPECT_FALSE(disco.scriviFile(azienda.percorso(u"manca/f12"_s), "nuovo"));
    EXPECT_TRUE(disco.scriviFile(percorso, "nuovo"));
    EXPECT_EQ(azienda.leggi(u"f12"_s), "nuovo");
    EXPECT_TRUE(disco.elimina(percorso));
    EXPECT_TRUE(disco.elimina(percorso));
}

} // namespace
} // namespace bor
