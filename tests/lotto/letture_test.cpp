// A batch reads while another program registers, deletes and puts documents in each other's places: what it
// gets is a document of one moment, and the one that was chosen.
#include "document/programma.h"
#include "lotto/apertura.h"
#include "support/processo.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QThread>

#include <chrono>
#include <csignal>
#include <random>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

constexpr int documentiAllInizio = 6;

/// Stores all documents of the company anew with other prices, deletes one now and then and brings it back,
/// and exchanges two as a program of the suite does that knows no locks.
void lavora(const AziendaDiProva& azienda) {
    Programma p(azienda);
    std::mt19937 caso(7);
    Archivio& a = p.prova.archivio;
    for (int prezzo = 10;; ++prezzo) {
        const int n = 1 + static_cast<int>(caso() % documentiAllInizio);
        if (a.fte.leggi(n).annullata == 1)
            inRaffica(a, [&](Raffica& r) {
                Fte fte = r.leggi(a.fte, n);
                fte.annullata = 0;
                r.cambia(a.fte, Conta::Fte, n, fte);
            });
        p.apri(n);
        p.documento.ddd[0] = rigaDi(prezzo);
        p.riporta();
        p.salva();
        const int altro = 1 + static_cast<int>(caso() % documentiAllInizio);
        if (prezzo % 5 == 0)
            p.elimina();
        else if (prezzo % 7 == 0)
            inRaffica(a, [&](Raffica& r) {
                const CoppiaFte uno{r.leggi(a.fte, n), r.leggi(a.f2e, n)};
                r.scrivi(a.fte, n, r.leggi(a.fte, altro));
                r.scrivi(a.f2e, n, r.leggi(a.f2e, altro));
                r.scrivi(a.fte, altro, uno.fte);
                r.scrivi(a.f2e, altro, uno.f2e);
            });
    }
}

TEST(DueProgrammi, CioCheSiLeggeEDiUnMomentoSoloEDelDocumentoScelto) {
    AziendaDiProva azienda;
    azienda.cliente(u"Rossi"_s);
    {
        Programma p(azienda);
        for (int i = 1; i <= documentiAllInizio; ++i) {
            p.nuovo(QString::number(i));
            p.prova.orologio.momento = p.prova.orologio.momento.addSecs(60);
            p.documento.ddd[0] = rigaDi(i);
            p.riporta();
            p.salva();
            p.apri(i);
            p.salva();
        }
    }
    const pid_t altro = ::fork();
    if (altro == 0) {
        lavora(azienda);
        ::_exit(0);
    }
    ContestoDiProva prova(azienda);
    RigheInSospeso sospese;
    int letti = 0;
    int detti = 0;
    int attese = 0;
    // A machine with other work wants more rounds: there the other program has changed nearly all by then.
    const QDeadlineTimer fine(std::chrono::minutes(1));
    for (int giro = 0; giro < 2000 || (letti <= 100 && !fine.hasExpired()); ++giro) {
        const int record = 1 + giro % documentiAllInizio;
        const Identita scelto = identitaDi(record, prova.archivio.fte.leggi(record));
        QThread::usleep(static_cast<unsigned long>(giro % 3) * 300);
        const Aperto aperto = apriScelto(prova.contesto, sospese, scelto);
        attese += aperto.occupato ? 1 : 0;
        if (!aperto.documento) {
            EXPECT_TRUE(aperto.occupato || !aperto.motivo.isEmpty());
            detti += aperto.motivo.isEmpty() ? 0 : 1;
            continue;
        }
        ++letti;
        const Documento& d = *aperto.documento;
        EXPECT_EQ(d.estremi.numero, scelto.numero.trimmed());
        EXPECT_EQ(double{d.coppia.fte.impon[0]}, d.ddd[0].prezzo) << "lines and records of two moments";
        EXPECT_EQ(d.coppia.fte.annullata, 0);
    }
    ::kill(altro, SIGKILL);
    int stato = 0;
    ::waitpid(altro, &stato, 0);
    EXPECT_GT(letti, 100);
    EXPECT_GT(detti, 0) << attese << " waited";
}

} // namespace
} // namespace bor
