// Numbers, money and archive text.
#include "common/avvio.h"
#include "common/numeri.h"
#include "common/testo.h"
#include "common/valuta.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

constexpr Valuta euro;
constexpr Valuta lire{.euro = false};

TEST(Testo, TuttiI256ByteTornanoComeErano) {
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes.append(static_cast<char>(i));
    const QString testo = daCp1252(bytes);
    EXPECT_EQ(inCp1252(testo), bytes);
    EXPECT_EQ(QSet<QChar>(testo.begin(), testo.end()).size(), 256);
    EXPECT_EQ(daCp1252("\x80\xE0"), u"€à"_s);
    EXPECT_EQ(inCp1252(u"日"), QByteArray("?"));
}

TEST(Testo, PulireTagliareRiempireMaiuscole) {
    EXPECT_EQ(puliscitesto(QString::fromLatin1("\0 a\x1F\xFF"
                                               "b \0",
                                               7)),
              u"ab"_s);
    EXPECT_EQ(maiuscolo(u"straße è µ ÿ"), u"STRAßE È µ Ÿ"_s);
    EXPECT_EQ(zeriDavanti(u"7", 3) + zeriDavanti(u"1234", 3), u"007234"_s);
    EXPECT_EQ(pezzo(u"abcdef", 3, 2) + pezzo(u"abc", 4) + pezzo(u"abc", 2), u"cdbc"_s);
}

TEST(Numeri, ValoreDiUnTesto) {
    struct Caso {
        QStringView testo;
        double valore;
    };
    for (const auto& [testo, atteso] : std::initializer_list<Caso>{{u"  12/A", 12},
                                                                   {u"-3.5kg", -3.5},
                                                                   {u"+4", 4},
                                                                   {u"1.2.3", 1.2},
                                                                   {u"12,5", 12},
                                                                   {u"A1", 0},
                                                                   {u"", 0},
                                                                   {u"-", 0},
                                                                   {u".5", 0.5},
                                                                   {u"12E3", 12},
                                                                   {u"1.5E+20", 1.5e20},
                                                                   {u"1E+999", 0}})
        EXPECT_EQ(valore(testo), atteso) << qPrintable(testo.toString());
    EXPECT_EQ(valoreIntero(u"99999999999"), 2147483647);
    EXPECT_EQ(valoretesto(u"1.234,56"), 1234.56);
    EXPECT_EQ(valoretesto(u"1..2"), 1.2);
    EXPECT_EQ(valoretesto(u"1.,5"), 1);
    EXPECT_EQ(valorevirgola(u" 12,5 "), 12.5);
    EXPECT_EQ(valorevirgola(u"1.234,5"), 1.234);
}

TEST(Numeri, TestoDecimaleHaAlPiuQuindiciCifre) {
    EXPECT_EQ(testoDecimale(0.1 + 0.2), u"0.3"_s);
    EXPECT_EQ(testoDecimale(-0.5), u"-0.5"_s);
    EXPECT_EQ(testoDecimale(1234567.25), u"1234567.25"_s);
    EXPECT_EQ(testoDecimale(0.00001), u"0.00001"_s);
    EXPECT_EQ(testoDecimale(1e14), u"100000000000000"_s);
    EXPECT_EQ(testoDecimale(1.5e15), u"1.5E+15"_s);
    EXPECT_EQ(testoDecimale(-0.0), u"0"_s);
    EXPECT_EQ(testoCasella(0), QString());
    for (const double x : {1e15, 1.25e300, 3e-300, 123456789.123456, -7e-7})
        EXPECT_EQ(valore(testoDecimale(x)), x);
}

TEST(Numeri, MascheraArrotondaLeQuindiciCifreLontanoDaZero) {
    EXPECT_EQ(testoFisso(1.005, 2), u"1.01"_s);
    EXPECT_EQ(testoFisso(-2.5, 0), u"-3"_s);
    EXPECT_EQ(testoFisso(9.995, 2), u"10.00"_s);
    EXPECT_EQ(testoFisso(0.004, 2), u"0.00"_s);
    EXPECT_EQ(testoFisso(10, 8), u"10.00000000"_s);
    EXPECT_EQ(testoItaliano(-1234567.5, 2), u"-1.234.567,50"_s);
    EXPECT_EQ(testoItaliano(123, 0), u"123"_s);
    EXPECT_EQ(numerotesto(u"1500"), u"1.500"_s);
    EXPECT_EQ(numerotesto(u"1500.5"), u"1.500,50"_s);
    EXPECT_EQ(numerotesto(u"0"), QString());
}

TEST(Importi, ArrotondamentoDellaSuite) {
    EXPECT_EQ(euro.arrotonda(1.485), 1.49);
    EXPECT_EQ(euro.arrotonda(1.484), 1.48);
    EXPECT_EQ(euro.arrotonda(1.0049), 1.01);
    EXPECT_EQ(euro.arrotonda(-1.485), -1.48);
    EXPECT_EQ(lire.arrotonda(2.49), 3);
    EXPECT_EQ(lire.arrotonda(10.48), 10);
    EXPECT_EQ(euro.percentuale(150.55, 10), 15.06);
    EXPECT_EQ(lire.percentuale(101, 10), 10);
    EXPECT_EQ(lire.percentualeecc(101, 10), 11);
    EXPECT_EQ(euro.arrotondaaltra(2.49), 3);
    EXPECT_EQ(tronca(-1.231), -1.24);
    const Valuta quattro{.decimaliprezzo = 4};
    EXPECT_EQ(quattro.arrotondaprezzo(1.00005), 1.0001);
    EXPECT_EQ(quattro.prezzotesto(1.5), u"1,5000"_s);
    EXPECT_EQ(Valuta{.decimaliprezzo = 7}.prezzotesto(1.5), u"1,50"_s);
    EXPECT_EQ(euro.importotesto(0.004), u"0,00"_s);
    EXPECT_EQ(lire.importotesto(1234567), u"1.234.567"_s);
    EXPECT_EQ(lire.importotesto(0.3) + euro.importotesto(0), QString());
}

TEST(Avvio, SoloIlLanciatoreAvviaIlModulo) {
    EXPECT_EQ(controllaAvvio(u"$$qv#m0070").codiceazienda, 7);
    EXPECT_EQ(controllaAvvio(u"$$qv#m12a").codiceazienda, 12);
    EXPECT_EQ(controllaAvvio(u"$$qv#m").esito, EsitoAvvio::Valido);
    EXPECT_EQ(controllaAvvio(u"$$qx#m001").esito, EsitoAvvio::SuiteVecchia);
    EXPECT_EQ(controllaAvvio(u"").esito, EsitoAvvio::Rifiutato);
    EXPECT_EQ(controllaAvvio(rigaAvvio(1234)).codiceazienda, 234);
}

} // namespace
} // namespace bor
