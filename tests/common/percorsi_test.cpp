// DOS paths on this machine.
#include "common/percorsi.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(PercorsiDos, SenzaBadareAlleMaiuscoleESenzaUscireDallUnita) {
    const QTemporaryDir radice;
    QDir(radice.path()).mkpath(u"Suprok/PDF"_s);
    const Percorsi p(radice.path(), radice.path() + u"/c"_s);
    EXPECT_EQ(p.reale(u"\\suprok\\pdf\\Ftr1.pdf"), radice.path() + u"/Suprok/PDF/Ftr1.pdf"_s);
    EXPECT_EQ(p.reale(u"suprok\\.\\altro"), radice.path() + u"/Suprok/altro"_s);
    EXPECT_EQ(p.reale(u"C:\\bordoc.rto"), radice.path() + u"/c/bordoc.rto"_s);
    for (const QStringView vietato : {u"\\..\\etc", u"\\a\\..\\b", u"d:\\x", u"\\a/b", u"\\a*b", u"\\a\nb"})
        EXPECT_FALSE(p.reale(vietato)) << qPrintable(vietato.toString());
    EXPECT_EQ(p.dos(radice.path() + u"/Suprok/PDF/x.pdf"_s), u"\\Suprok\\PDF\\x.pdf"_s);
    EXPECT_FALSE(p.dos(u"/altrove/x.pdf"_s));
}

TEST(PercorsiDos, UnFileCheMancaNonCostaLElencoDellaCartella) {
    const QTemporaryDir radice;
    for (int n = 1; n <= 20000; ++n)
        ASSERT_TRUE(QFile(radice.filePath(u"F%1"_s.arg(n))).open(QIODevice::WriteOnly));
    const Percorsi p(radice.path(), radice.path());
    QElapsedTimer tempo;
    tempo.start();
    for (int n = 30001; n <= 30050; ++n)
        ASSERT_EQ(p.reale(u"\\f%1"_s.arg(n)), radice.filePath(u"f%1"_s.arg(n)));
    EXPECT_LT(tempo.elapsed(), 1000);
    EXPECT_EQ(p.reale(u"\\f123"), radice.filePath(u"F123"_s));
}

TEST(PercorsiDos, LaCartellaDellAzienda) {
    EXPECT_EQ(cartellaAzienda(7), u"\\suprok\\suprok\\boraz0.007"_s);
    EXPECT_EQ(cartellaAzienda(1234), u"\\suprok\\suprok\\boraz0.234"_s);
    EXPECT_EQ(cartellaAzienda(0), u"\\suprok\\suprok\\boraz0.000"_s);
}

} // namespace
} // namespace bor
