#include "common/tabella.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

QByteArray csv(const Tabella& tabella) {
    QBuffer uscita;
    uscita.open(QIODevice::WriteOnly);
    EXPECT_TRUE(scriviCsv(tabella, uscita));
    return uscita.data();
}

QJsonObject json(const Tabella& tabella) {
    QBuffer uscita;
    uscita.open(QIODevice::WriteOnly);
    EXPECT_TRUE(scriviJson(tabella, uscita));
    return QJsonDocument::fromJson(uscita.data()).object();
}

Tabella fatture() {
    Tabella tabella{u"Registro"_s,
                    u"2015 \"tutte\""_s,
                    {{u"Cliente"_s, GenereColonna::Testo, 30},
                     {u"Data"_s, GenereColonna::Data},
                     {u"Copie"_s, GenereColonna::Numero},
                     {u"Importo"_s, GenereColonna::Importo, 14, u"importo"_s}},
                    2,
                    [](int riga, CelleRiga& celle) {
                        celle.testo(riga == 0 ? u"Così; \"fan\" tutte"_s : u"riga\nspezzata\\"_s);
                        celle.data(riga == 0 ? QDate(2015, 3, 9) : QDate());
                        celle.numero(riga == 0 ? 12.5 : -3);
                        celle.importo(riga == 0 ? -1234.5 : 0);
                    }};
    tabella.totali = [](CelleRiga& celle) {
        for (int i = 0; i < 3; ++i)
            celle.vuota();
        celle.importo(-1234.5);
    };
    return tabella;
}

/// A table of one column of texts, or of one of amounts.
QByteArray colonnaCsv(const QStringList& testi) {
    return csv({{}, {}, {{u"T"_s}}, static_cast<int>(testi.size()), [&](int riga, CelleRiga& celle) {
                    celle.testo(testi[riga]);
                }});
}

TEST(Tabella, IlCsvSiApreNeiFogliDiCalcoloItaliani) {
    EXPECT_EQ(csv(fatture()).toStdString(), "\xEF\xBB\xBF"
                                            "Cliente;Data;Copie;Importo\r\n"
                                            "\"Così; \"\"fan\"\" tutte\";09/03/2015;12,5;-1234,50\r\n"
                                            "\"riga\nspezzata\\\";;-3;0,00\r\n");
}

TEST(Tabella, OgniGiornoHaLeSueCifre) {
    const QDate primo(1980, 1, 1);
    constexpr int giorni = 40'000; // more than are kept, in leaps that come back to the same place
    const auto giorno = [&](int riga) { return primo.addDays(qint64{riga} * 1024 % giorni); };
    const Tabella tabella{{}, {}, {{u"G"_s, GenereColonna::Data}}, giorni, [&](int riga, CelleRiga& celle) {
                              celle.data(giorno(riga));
                          }};
    const QList<QByteArray> righe = csv(tabella).split('\n');
    ASSERT_EQ(righe.size(), giorni + 2);
    for (int riga = 0; riga < giorni; ++riga)
        ASSERT_EQ(righe[riga + 1], giorno(riga).toString(u"dd/MM/yyyy").toLatin1() + '\r');
    EXPECT_EQ(json(tabella)[u"righe"].toArray()[1].toObject()[u"G"].toString(),
              giorno(1).toString(Qt::ISODate));
}

TEST(Tabella, UnTestoNonDiventaFormula) {
    EXPECT_EQ(
        colonnaCsv({u"=1+1"_s, u"+39 06"_s, u"-cmd|' /C calc'!A0"_s, u"@SUM(A1)"_s, u"  =1"_s, u"\t=1"_s,
                    u"\r=1"_s, u"=A1;B1"_s, u"-"_s, u"-1-1"_s})
            .toStdString(),
        "\xEF\xBB\xBFT\r\n'=1+1\r\n'+39 06\r\n'-cmd|' /C calc'!A0\r\n'@SUM(A1)\r\n'  =1\r\n\"'\t=1\"\r\n"
        "\"'\r=1\"\r\n\"'=A1;B1\"\r\n'-\r\n'-1-1\r\n");
    EXPECT_EQ(colonnaCsv({u"-12,50"_s, u"+5"_s, u"-1.234,5"_s, u"a=b"_s, u""_s}).toStdString(),
              "\xEF\xBB\xBFT\r\n-12,50\r\n+5\r\n-1.234,5\r\na=b\r\n\r\n");
}

TEST(Tabella, GliImportiSiArrotondanoComeSulloSchermo) {
    const std::vector<double> importi = {1.005, -1.005, 0.125, 2.5, -0.001, 99999999999.99, 1e15, 0.1 + 0.2};
    Tabella tabella{{}, {}, {{u"T"_s}}, 8, [&](int riga, CelleRiga& celle) {
                        celle.importo(importi[static_cast<std::size_t>(riga)]);
                    }};
    EXPECT_EQ(csv(tabella).toStdString(), "\xEF\xBB\xBFT\r\n1,01\r\n-1,01\r\n0,13\r\n2,50\r\n0,00\r\n"
                                          "99999999999,99\r\n1000000000000000,00\r\n0,30\r\n");
    tabella.decimali = 0;
    EXPECT_TRUE(csv(tabella).startsWith("\xEF\xBB\xBFT\r\n1\r\n-1\r\n0\r\n3\r\n0\r\n100000000000\r\n"));
}

TEST(Tabella, LeCelleDiTroppoNonSpostanoLeRighe) {
    const Tabella tabella{{}, {}, {{u"A"_s}, {u"B"_s}}, 2, [](int riga, CelleRiga& celle) {
                              for (int i = 0; i < riga * 3; ++i)
                                  celle.testo(u"x");
                          }};
    EXPECT_EQ(csv(tabella).toStdString(), "\xEF\xBB\xBF"
                                          "A;B\r\n;\r\nx;x\r\n");
    const QJsonArray righe = json(tabella)[u"righe"_s].toArray();
    EXPECT_TRUE(righe[0].toObject()[u"A"_s].isNull());
    EXPECT_EQ(righe[1].toObject().size(), 2);
}

TEST(Tabella, IlJsonHaTitoloFiltroRigheETotali) {
    const QJsonObject oggetto = json(fatture());
    EXPECT_EQ(oggetto[u"titolo"_s].toString(), u"Registro");
    EXPECT_EQ(oggetto[u"filtro"_s].toString(), u"2015 \"tutte\"");
    const QJsonArray righe = oggetto[u"righe"_s].toArray();
    ASSERT_EQ(righe.size(), 2);
    EXPECT_EQ(righe[0].toObject()[u"Cliente"_s].toString(), u"Così; \"fan\" tutte");
    EXPECT_EQ(righe[0].toObject()[u"Data"_s].toString(), u"2015-03-09");
    EXPECT_EQ(righe[0].toObject()[u"importo"_s].toDouble(), -1234.5);
    EXPECT_EQ(righe[1].toObject()[u"Cliente"_s].toString(), u"riga\nspezzata\\");
    EXPECT_EQ(righe[1].toObject()[u"Copie"_s].toInt(), -3);
    EXPECT_TRUE(righe[1].toObject()[u"Data"_s].isNull());
    EXPECT_EQ(oggetto[u"totali"_s].toObject()[u"importo"_s].toDouble(), -1234.5);
}

TEST(Tabella, LeRigheCheNeSommanoAltreNonVannoAiProgrammi) {
    Tabella tabella = fatture();
    tabella.subtotale = [](int riga) { return riga == 0; };
    EXPECT_EQ(csv(tabella).count("\r\n"), 2);
    EXPECT_EQ(json(tabella)[u"righe"_s].toArray().size(), 1);
}

TEST(Tabella, UnaScritturaFallitaLasciaIlFileDiPrima) {
    QFile piena(u"/dev/full"_s);
    ASSERT_TRUE(piena.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    EXPECT_FALSE(scriviCsv(fatture(), piena));
    EXPECT_FALSE(scriviJson(fatture(), piena));

    const QTemporaryDir cartella;
    const QString percorso = cartella.filePath(u"registro.csv"_s);
    const auto scrivi = [](QIODevice& uscita) { return scriviCsv(fatture(), uscita); };
    EXPECT_EQ(salvaFile(percorso, scrivi), QString());
    const QString errore = salvaFile(percorso, [](QIODevice& uscita) {
        uscita.write("mezzo");
        return false;
    });
    EXPECT_TRUE(errore.contains(percorso));
    QFile file(percorso);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), csv(fatture()));
    EXPECT_EQ(QDir(cartella.path()).entryList(QDir::Files).size(), 1);
    EXPECT_TRUE(salvaFile(cartella.filePath(u"manca/registro.csv"_s), scrivi).contains(u"permessi"));
}

} // namespace
} // namespace bor
