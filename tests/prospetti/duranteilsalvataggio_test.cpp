// Another program saves, deletes and moves documents while they are read for a list: each document that comes
// is the one of a single moment.
#include "prospetti/letturadocumenti.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

constexpr int documenti = 600;

/// Every amount of both halves tells the same.
CoppiaFte tutto(double importo) {
    CoppiaFte c = documentoDi(1, u"1"_s, importo, importo);
    c.fte.rata.fill(importo);
    c.f2e.rata.fill(importo);
    c.f2e.raimp.fill(importo);
    return c;
}

/// Saves documents anew, two of them in one burst, as long as it lives; a thousand operators would do it as
/// fast.
[[noreturn]] void salva(const AziendaDiProva& azienda) {
    ContestoDiProva prova(azienda);
    Archivio& a = prova.archivio;
    std::mt19937 caso(3);
    for (;;) {
        inRaffica(a, [&](Raffica& raffica) {
            for (int volta = 0; volta < 2; ++volta) {
                const int n = 1 + static_cast<int>(caso() % documenti);
                CoppiaFte c = tutto(1 + static_cast<double>(caso() % 1000));
                c.fte.annullata = caso() % 5 == 0 ? 1 : 0;
                raffica.scrivi(a.fte, n, c.fte);
                raffica.scrivi(a.f2e, n, c.f2e);
            }
        });
        ::usleep(1000);
    }
}

TEST(DuranteIlSalvataggio, OgniDocumentoEDiUnSoloMomento) {
    AziendaDiProva azienda;
    {
        ContestoDiProva prova(azienda);
        for (int n = 1; n <= documenti; ++n)
            prova.archivio.scrivi(n, tutto(n));
        Tot tot = vuoto<Tot>();
        tot.numero = documenti;
        prova.archivio.scriviTot(Conta::Fte, tot);
    }
    const pid_t altro = ::fork();
    if (altro == 0)
        salva(azienda);
    ContestoDiProva prova(azienda);
    int misti = 0;
    int cambiati = 0;
    int letti = 0;
    LetturaDocumenti lettura(prova.archivio, [&](int n, const Fte& fte, const F2e& f2e) {
        ++letti;
        cambiati += fte.rata[0] != n;
        misti += fte.rata[0] != f2e.rata[1] || fte.impon[0] != f2e.raimp[3];
    });
    QElapsedTimer orologio;
    orologio.start();
    while (orologio.elapsed() < 1000) {
        lettura.comincia();
        lettura.finisci();
        EXPECT_EQ(lettura.difetto(), QString());
    }
    ::kill(altro, SIGKILL);
    ::waitpid(altro, nullptr, 0);
    EXPECT_EQ(misti, 0);
    EXPECT_GT(cambiati, 0) << "nobody saved meanwhile";
    EXPECT_GT(letti, documenti / 2);
}

TEST(DuranteIlSalvataggio, ChiAspettaNonSiBloccaEPuoSmettere) {
    AziendaDiProva azienda;
    azienda.documento(tutto(1));
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
