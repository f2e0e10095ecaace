// Another program saves, deletes and moves documents while they are read for a list: each document that comes
// is the one of a single moment.
#include "prospetti/letturadocumenti.h"
#include "support/salvatore.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(DuranteIlSalvataggio, OgniDocumentoEDiUnSoloMomento) {
    AziendaDiProva azienda;
    const Salvatore altro(azienda);
    ContestoDiProva prova(azienda);
    int misti = 0;
    int cambiati = 0;
    int letti = 0;
    LetturaDocumenti lettura(prova.archivio, [&](int n, const Fte& fte, const F2e& f2e) {
        ++letti;
        cambiati += fte.rata[0] != n;
        misti += Salvatore::mista(fte, f2e);
    });
    QElapsedTimer orologio;
    orologio.start();
    while (orologio.elapsed() < 1000) {
        lettura.comincia();
        lettura.finisci();
        EXPECT_EQ(lettura.difetto(), QString());
    }
    EXPECT_EQ(misti, 0);
    EXPECT_GT(cambiati, 0) << "nobody saved meanwhile";
    EXPECT_GT(letti, Salvatore::documenti / 2);
}

TEST(DuranteIlSalvataggio, ChiAspettaNonSiBloccaEPuoSmettere) {
    AziendaDiProva azienda;
    azienda.documento(Salvatore::tutto(1));
    ContestoDiProva altro(azienda);
    ContestoDiProva prova(azienda);
    int letti = 0;
    LetturaDocumenti lettura(prova.archivio, [&letti](int, const Fte&, const F2e&) { ++letti; });
    {
        const Raffica raffica(altro.archivio, {});
        lettura.comincia();
        QElapsedTimer orologio;
        orologio.start();
        lettura.prosegui(std::chrono::milliseconds(20));
        EXPECT_LT(orologio.elapsed(), 500);
        EXPECT_TRUE(lettura.inCorso());
        EXPECT_EQ(letti, 0);
    }
    lettura.prosegui(std::chrono::milliseconds(20));
    EXPECT_EQ(letti, 1);
    lettura.comincia();
    lettura.interrompi();
    EXPECT_EQ(lettura.difetto(), u"Lettura interrotta: mancano i documenti dalla registrazione 1 in poi"_s);
}

} // namespace
} // namespace bor
