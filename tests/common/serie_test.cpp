#include "common/serie.h"

#include <gtest/gtest.h>

namespace bor {
namespace {

TEST(Serie, SiContaDalSuoPrimoValoreEFuoriNonCeNulla) {
    Serie<int, 0, 2> daZero;
    Serie<int, 1, 3> daUno;
    for (int i = 0; i < 3; ++i) {
        daZero[i] = 10 + i;
        daUno[i + 1] = 20 + i;
    }
    const auto& lettaDaZero = daZero;
    const auto& lettaDaUno = daUno;
    EXPECT_EQ(lettaDaZero[0] + lettaDaZero[2], 22);
    EXPECT_EQ(lettaDaUno[1] + lettaDaUno[3], 42);
    for (const int fuori : {-1, 0, 4, 1 << 30})
        EXPECT_EQ(lettaDaUno[fuori], 0) << fuori;
    EXPECT_EQ(lettaDaZero[-1] + lettaDaZero[3], 0);
}

TEST(SerieDeathTest, UnaScritturaFuoriFermaIlProgramma) {
    Serie<int, 1, 3> serie;
    EXPECT_DEATH(serie[0] = 1, "row 0 is outside 1 to 3");
    EXPECT_DEATH(serie[4] = 1, "row 4 is outside 1 to 3");
}

} // namespace
} // namespace bor
