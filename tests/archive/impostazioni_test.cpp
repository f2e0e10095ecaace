// Settings files, tables and the general settings record.
#include "support/azienda.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

void scriviRadice(const AziendaDiProva& azienda, const QString& nome, const QByteArray& bytes) {
    QFile file(azienda.radice() + nome);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

TEST(Impostazioni, LaValutaSiLeggeOVienePredefinita) {
    const AziendaDiProva azienda;
    {
        const ContestoDiProva prova(azienda);
        EXPECT_TRUE(prova.impostazioni.valuta.euro);
        EXPECT_EQ(prova.impostazioni.valuta.lirePerEuro, 1936.27);
        EXPECT_EQ(prova.impostazioni.valuta.decimaliprezzo, 2);
    }
    scriviRadice(azienda, u"borlano.eur"_s, "2,1936.5,\"ITL\",EUR,4");
    {
        const ContestoDiProva prova(azienda);
        EXPECT_TRUE(prova.impostazioni.valuta.euro);
        EXPECT_EQ(prova.impostazioni.valuta.lirePerEuro, 1936.5);
        EXPECT_EQ(prova.impostazioni.valuta.decimaliprezzo, 4);
        EXPECT_FALSE(prova.impostazioni.generaPdf);
    }
    scriviRadice(azienda, u"borlano.eur"_s, "0,1,L,E,3\r\n1\r\n7\r\n");
    const ContestoDiProva lire(azienda);
    EXPECT_FALSE(lire.impostazioni.valuta.euro);
    EXPECT_EQ(lire.impostazioni.valuta.lirePerEuro, 1.0);
    EXPECT_EQ(lire.impostazioni.valuta.decimaliprezzo, 3);
    EXPECT_TRUE(lire.impostazioni.generaPdf);
    scriviRadice(azienda, u"borlano.eur"_s, "0,1,L");
    EXPECT_TRUE(ContestoDiProva(azienda).impostazioni.valuta.euro) << "the first five fail together";
}

TEST(Impostazioni, IlRecordGnrNasceMigraESiRipara) {
    const AziendaDiProva azienda;
    (void)ContestoDiProva(azienda);
    const QByteArray nato = azienda.leggi(u"borlano.gnr"_s);
    ASSERT_EQ(nato.size(), 346);
    EXPECT_EQ(nato.sliced(183, 2), "91");
    EXPECT_EQ(nato.sliced(248, 2), "01");

    QByteArray vecchio(346, '\x7F');
    vecchio.replace(183, 1, "0");
    vecchio.replace(248, 2, "25");
    azienda.scrivi(u"borlano.gnr"_s, vecchio);
    (void)ContestoDiProva(azienda);
    const QByteArray migrato = azienda.leggi(u"borlano.gnr"_s);
    EXPECT_EQ(migrato.sliced(183, 2), "91");
    EXPECT_EQ(migrato.sliced(201, 2), "11");
    EXPECT_EQ(migrato.sliced(248, 2), "01");
    EXPECT_EQ(migrato.left(183), vecchio.left(183));
    EXPECT_EQ(migrato.sliced(203, 45), vecchio.sliced(203, 45));
    EXPECT_EQ(migrato.sliced(250), vecchio.sliced(250));

    QByteArray scelto = migrato;
    scelto.replace(201, 1, "0");
    azienda.scrivi(u"borlano.gnr"_s, scelto);
    (void)ContestoDiProva(azienda);
    EXPECT_EQ(azienda.leggi(u"borlano.gnr"_s), scelto) << "a choice of the operator stays";

    QFile::remove(azienda.percorso(u"borlano.gnr"_s));
    scriviRadice(azienda, u"borlano.gnr"_s, scelto);
    (void)ContestoDiProva(azienda);
    EXPECT_EQ(azienda.leggi(u"borlano.gnr"_s), scelto) << "the suite's root has one to start from";
}

TEST(Impostazioni, LeTabelleSiLeggonoPerPosto) {
    const AziendaDiProva azienda;
    QByteArray tab;
    int n = 0;
    const auto linee = [&](int quante) {
        for (int i = 0; i < quante; ++i)
            tab += QByteArray::number(++n) + "\r\n";
    };
    const auto campi = [&](int coppie) {
        for (int i = 0; i < coppie; ++i) {
            n += 2;
            tab += '"' + QByteArray::number(n - 1) + ",x\"," + QByteArray::number(n) + "\r\n";
        }
    };
    linee(8 * 4);
    linee(8 * 3);
    campi(9);
    linee(9 * 2);
    linee(30 * 2);
    campi(9);
    linee(40);
    linee(40);
    linee(30 * 5);
    linee(40 * 6);
    linee(8 * 4);
    linee(8 * 3);
    linee(8 * 2);
    linee(8 * 2);
    linee(30 * 2);
    campi(11);
    linee(60);
    azienda.scrivi(u"borlano.tab"_s, tab);
    const ContestoDiProva prova(azienda);
    const Tabelle& t = prova.tabelle;
    EXPECT_EQ(t.aliquote[1].aliquota, u"1"_s);
    EXPECT_EQ(t.aliquota(8), 29);
    EXPECT_EQ(t.esenzioni[0].riferimento, u"57,x"_s);
    EXPECT_EQ(t.regimeiva(), 8) << "second character of 58";
    EXPECT_EQ(t.tipiiva[0], u"76"_s);
    EXPECT_EQ(t.tipopagamenti[30].codice, u"152"_s);
    EXPECT_EQ(t.contabili[1], u"153,x"_s);
    EXPECT_EQ(t.ricavi[40], u"210"_s);
    EXPECT_EQ(t.vettori[40].codici, u"640"_s);
    EXPECT_EQ(t.aliquote[9].aliquota, u"641"_s);
    EXPECT_EQ(t.esenzioni[16].testo, u"712"_s);
    EXPECT_EQ(t.tipopagamenti[60].codice, u"788"_s);
    EXPECT_EQ(t.contabili[20], u"809,x"_s);
    EXPECT_EQ(t.ricavi[100], u"870"_s);
    EXPECT_EQ(t.aliquota(0) + t.aliquota(17), 0);
}

} // namespace
} // namespace bor
