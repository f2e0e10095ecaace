#include "ui/stampatabella.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

Tabella lunga(int righe, int caratteri) {
    Tabella tabella{u"Registro di Rossi"_s,
                    u"Anno 2015"_s,
                    {{u"N."_s, GenereColonna::Numero, 6},
                     {u"Data"_s, GenereColonna::Data, 11},
                     {u"Cliente"_s, GenereColonna::Testo, caratteri},
                     {u"Importo"_s, GenereColonna::Importo, 12}},
                    righe,
                    [](int riga, CelleRiga& celle) {
                        celle.numero(riga + 1);
                        celle.data(QDate(2015, 1, 1).addDays(riga));
                        celle.testo(
                            u"Cliente con un nome lungo quanto serve a non starci in nessun foglio, né "
                            u"in piedi né coricato, per quante colonne gli lascino le altre: mai più");
                        celle.importo(riga == 0 ? 0 : 1000000000.25 * riga);
                    }};
    tabella.totali = [](CelleRiga& celle) {
        celle.vuota();
        celle.vuota();
        celle.testo(u"Totale");
        celle.importo(4950000001237.5);
    };
    return tabella;
}

/// The pages of the PDF of a table, as text.
QStringList pagine(const Tabella& tabella, const Figura& figura = {}) {
    const QTemporaryDir cartella;
    const QString file = cartella.filePath(u"tabella.pdf"_s);
    EXPECT_EQ(salvaFile(file, [&](QIODevice& uscita) { return scriviPdf(tabella, uscita, {}, figura); }),
              QString());
    QProcess lettore;
    lettore.start(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s});
    EXPECT_TRUE(lettore.waitForFinished());
    return QString::fromUtf8(lettore.readAllStandardOutput()).split(u'\f', Qt::SkipEmptyParts);
}

TEST(StampaTabella, UnaFiguraStaSullaPrimaPaginaENessunaRigaVaPersa) {
    const Figura figura{80, [](QPainter& penna, const QRectF& posto) {
                            penna.drawText(posto, Qt::AlignBottom | Qt::AlignLeft, u"FIGURA"_s);
                        }};
    for (const int righe : {1, 35, 40, 100}) {
        const QStringList tutte = pagine(lunga(righe, 30), figura);
        EXPECT_EQ(tutte.join(u' ').count(u"FIGURA"_s), 1);
        EXPECT_LT(tutte[0].indexOf(u"FIGURA"_s), tutte[0].indexOf(u"01/01/2015"_s));
        EXPECT_EQ(tutte.join(u' ').count(u"/2015 "_s), righe);
        EXPECT_EQ(tutte.last().count(u"Totale"_s), 1);
        EXPECT_EQ(tutte.last().count(u"Pagina %1 di %1"_s.arg(tutte.size())), 1);
    }
}

TEST(StampaTabella, OgniPaginaHaTestataENumero) {
    const QStringList tutte = pagine(lunga(100, 30));
    ASSERT_EQ(tutte.size(), 2);
    for (int i = 0; i < 2; ++i) {
        for (const QString& scritta : {u"Registro di Rossi"_s, u"Anno 2015"_s, u"Cliente"_s, u"Importo"_s,
                                       u"Pagina %1 di 2"_s.arg(i + 1)})
            EXPECT_EQ(tutte[i].count(scritta), scritta == u"Cliente" ? tutte[i].count(u"Cliente"_s) : 1)
                << i << qPrintable(scritta);
    }
    EXPECT_TRUE(tutte[0].contains(u"01/01/2015"));
    EXPECT_TRUE(tutte[1].contains(u"10/04/2015"));
    EXPECT_FALSE(tutte[0].contains(u"Totale"));
    EXPECT_EQ((tutte[0] + tutte[1]).count(u"Cliente con un nome"_s), 100);
}

TEST(StampaTabella, UnTestoLungoSiTagliaUnNumeroNo) {
    const QString ultima = pagine(lunga(100, 30)).last();
    EXPECT_FALSE(ultima.contains(u"mai più"));
    EXPECT_TRUE(ultima.contains(u"99.000.000.024,75"));
    EXPECT_TRUE(ultima.contains(u"4.950.000.001.237,50"));
    // An amount of zero stays blank.
    EXPECT_FALSE(pagine(lunga(1, 30)).first().contains(u"0,00"));
}

TEST(StampaTabella, UnaTabellaSenzaRigheHaUnaPaginaEUnaLargaStaDiTraverso) {
    Tabella vuota = lunga(0, 30);
    vuota.totali = {};
    EXPECT_TRUE(pagine(vuota).value(0).contains(u"Pagina 1 di 1"));
    EXPECT_EQ(pagine(lunga(40, 30)).size(), 1);
    EXPECT_EQ(pagine(lunga(60, 140)).size(), 2);
}

TEST(StampaTabella, SiFermaQuandoLOperatoreInterrompe) {
    QBuffer uscita;
    uscita.open(QIODevice::WriteOnly);
    int chieste = 0;
    EXPECT_FALSE(scriviPdf(lunga(1000, 30), uscita, [&](int pagina, int pagine) {
        EXPECT_EQ(pagina, ++chieste);
        return pagina < 3 && pagine > 3;
    }));
    EXPECT_EQ(chieste, 3);
}

TEST(StampaTabella, UnPdfScrittoAMetaSiDice) {
    const QTemporaryDir cartella;
    const QString file = cartella.filePath(u"tabella.pdf"_s);
    rlimit prima{};
    getrlimit(RLIMIT_FSIZE, &prima);
    const auto segnale = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit poco{20000, prima.rlim_max};
    setrlimit(RLIMIT_FSIZE, &poco);
    const QString errore =
        salvaFile(file, [](QIODevice& uscita) { return scriviPdf(lunga(1000, 30), uscita); });
    setrlimit(RLIMIT_FSIZE, &prima);
    std::signal(SIGXFSZ, segnale);
    EXPECT_TRUE(errore.contains(u"spazio sul disco")) << qPrintable(errore);
    EXPECT_FALSE(QFile::exists(file));
}

} // namespace
} // namespace bor
