// Dates on screen, on file, and as stamps.
#include "common/date.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <set>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(Date, ValidaSoloInFormaCompletaEConUnGiornoCheEsiste) {
    EXPECT_EQ(dataValida(u" 29/02/2016 "), QDate(2016, 2, 29));
    for (const QStringView t : {u"29/02/2015", u"1/2/2015", u"010215", u"31-12-2015", u"", u"31/12/2015x"})
        EXPECT_FALSE(dataValida(t)) << qPrintable(t.toString());
}

TEST(Date, LeFormeBreviSiCompletano) {
    EXPECT_EQ(completaData(u"311215"), u"31/12/2015"_s);
    EXPECT_EQ(completaData(u"31121999"), u"31/12/1999"_s);
    EXPECT_EQ(completaData(u"1/2/2015"), u"01/02/2015"_s);
    EXPECT_EQ(completaData(u"010285"), u"01/02/1985"_s);
    EXPECT_EQ(completaData(u"310215"), u"310215"_s);
    EXPECT_EQ(completaData(u"domani"), u"domani"_s);
    const QString inesistente = completaData(u"31042016");
    EXPECT_EQ(inesistente, u"31/04/2016"_s);
    EXPECT_EQ(dataDaGiornoMeseAnno(giornoMeseAnno(inesistente)), inesistente);
}

TEST(Date, UnGiornoCheNonEsisteSiRiconosceInOgniForma) {
    for (const QStringView t : {u"31/04/2016", u" 31042016 ", u"310416", u"1/13/15", u"29-02-2015"})
        EXPECT_TRUE(dataInesistente(t)) << qPrintable(t.toString());
    for (const QStringView t : {u"", u"30/04/2016", u"300416", u"3104", u"31/04", u"maggio", u"2016"})
        EXPECT_FALSE(dataInesistente(t)) << qPrintable(t.toString());
}

TEST(Date, LeDueFormeDelFileNonSiConfondono) {
    EXPECT_EQ(dataDaAnnoMeseGiorno(u"20151231"), u"31/12/2015"_s);
    EXPECT_EQ(dataDaGiornoMeseAnno(u"31122015"), u"31/12/2015"_s);
    EXPECT_EQ(annoMeseGiorno(u"31/12/2015"), u"20151231"_s);
    EXPECT_EQ(giornoMeseAnno(u"31/12/2015"), u"31122015"_s);
    EXPECT_EQ(dataDaAnnoMeseGiorno(QString(8, QChar(0))) + dataDaGiornoMeseAnno(u"        "), QString());
}

TEST(Date, IlTimbroNonSiRipeteMai) {
    EXPECT_EQ(contoGiorni(QDateTime(QDate(2015, 3, 15), QTime(12, 0))), 42078.5);
    const QDateTime adesso(QDate(2015, 3, 15), QTime(12, 0));
    constexpr double millisecondo = 1.0 / 86400000;
    EXPECT_EQ(timbro(adesso, 0), 42078.5);
    std::set<double> timbri;
    for (int ms = 0; ms < 50; ++ms) {
        const QDateTime momento = adesso.addMSecs(ms);
        for (int n = 1; n <= 1000; ++n) {
            const double t = timbro(momento, 31000 + n);
            ASSERT_GE(t, 42078.5 + ms * millisecondo);
            ASSERT_LT(t, 42078.5 + (ms + 1) * millisecondo);
            ASSERT_TRUE(timbri.insert(t).second);
        }
    }
}

} // namespace
} // namespace bor
