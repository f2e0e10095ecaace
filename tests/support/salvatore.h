// Another program, in a process of its own, that saves and deletes documents without a rest while a test
// reads them.
#pragma once

#include "support/azienda.h"

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace bor {

class Salvatore {
public:
    static constexpr int documenti = 600;

    /// Fills the company with documents whose first amounts are their numbers, and begins to change them.
    explicit Salvatore(const AziendaDiProva& azienda) {
        riempi(azienda);
        m_processo = ::fork();
        if (m_processo == 0)
            salva(azienda);
    }
    ~Salvatore() {
        ::kill(m_processo, SIGKILL);
        ::waitpid(m_processo, nullptr, 0);
    }
    Salvatore(const Salvatore&) = delete;
    Salvatore& operator=(const Salvatore&) = delete;

    /// Every amount of both halves tells the same.
    static CoppiaFte tutto(double importo) {
        CoppiaFte c = documentoDi(1, QStringLiteral("1"), importo, importo);
        c.fte.rata.fill(importo);
        c.f2e.rata.fill(importo);
        c.f2e.raimp.fill(importo);
        return c;
    }
    /// The two halves are not of the same save.
    static bool mista(const Fte& fte, const F2e& f2e) {
        return fte.rata[0] != f2e.rata[1] || fte.impon[0] != f2e.raimp[3];
    }

private:
    static void riempi(const AziendaDiProva& azienda) {
        ContestoDiProva prova(azienda);
        for (int n = 1; n <= documenti; ++n)
            prova.archivio.scrivi(n, tutto(n));
        Tot tot = vuoto<Tot>();
        tot.numero = documenti;
        prova.archivio.scriviTot(Conta::Fte, tot);
    }
    /// Two of them in one burst; a thousand operators would do it as fast.
    [[noreturn]] static void salva(const AziendaDiProva& azienda) {
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

    pid_t m_processo;
};

} // namespace bor
