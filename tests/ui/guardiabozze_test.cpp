#include "ui/guardiabozze.h"

#include "ui/gesti.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLineEdit>

namespace bor {
namespace {

TEST(GuardiaBozze, EntroDueSecondiDaUnTastoESenzaTastiMai) {
    int volte = 0;
    QElapsedTimer orologio;
    qint64 dopo = 0;
    const GuardiaBozze guardia([&] {
        ++volte;
        dopo = orologio.elapsed();
    });
    QLineEdit casella;
    casella.show();
    QTest::qWait(1500);
    EXPECT_EQ(volte, 0);
    orologio.start();
    QTest::keyClicks(&casella, QStringLiteral("abc"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return volte > 0; }, 4000));
    EXPECT_LT(dopo, 2000);
    QTest::qWait(1500);
    EXPECT_EQ(volte, 1);
}

} // namespace
} // namespace bor
