#include "document/codiceiva.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(CodiceIva, DiceDiCiascunNumeroQualeRigaTassaOEsenta) {
    struct Caso {
        int numero;
        bool tassato;
        bool esente;
        int riga;
        QString testo;
    };
    for (const Caso& c : {Caso{1, true, false, 1, u"01"_s}, Caso{12, true, false, 12, u"12"_s},
                          Caso{13, false, true, 1, u"13"_s}, Caso{24, false, true, 12, u"24"_s}}) {
        const CodiceIva codice(c.numero);
        EXPECT_EQ(codice.tassato(), c.tassato) << c.numero;
        EXPECT_EQ(codice.esente(), c.esente) << c.numero;
        EXPECT_EQ(codice.riga(), c.riga) << c.numero;
        EXPECT_EQ(codice.testo(), c.testo);
        EXPECT_TRUE(codice.valido()) << c.numero;
    }
    EXPECT_EQ(CodiceIva::diEsente(12).numero(), 24);
}

TEST(CodiceIva, FuoriDaiVentiquattroNonTassaENonEsenta) {
    for (const int numero : {-1, 0, 25, 32767}) {
        const CodiceIva codice(numero);
        EXPECT_FALSE(codice.tassato() || codice.esente() || codice.valido()) << numero;
        EXPECT_EQ(codice.nessuno(), numero == 0) << numero;
        EXPECT_EQ(codice.oltreTassati(), numero > 12) << numero;
    }
    EXPECT_TRUE(CodiceIva().testo().isEmpty());
}

} // namespace
} // namespace bor
