// What stands on file when the delete of a document stops halfway.
#include "document/programma.h"
#include "posting/saldi.h"
#include "support/processo.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(Elimina, CadutaDopoOgniScritturaDiUnaCancellazione) {
    AziendaDiProva azienda;
    azienda.cliente(u"Rossi"_s);
    Programma p(azienda);
    Archivio& archivio = p.prova.archivio;
    archivio.aggiungi(archivio.mag, Conta::Mag, vuoto<Mag>());
    Con conto = vuoto<Con>();
    conto.codice.set(u"12");
    conto.progressivodare = 100.0;
    archivio.aggiungi(archivio.con, Conta::Con, conto);
    const auto conConti = [](Programma& q) {
        q.registrazioni.storno = [&q](const Gio& gio) { return stornaconti(q.prova.archivio, gio); };
    };
    for (int n = 1; n <= 7; ++n) {
        p.nuovo(u"1"_s);
        p.salva();
        p.apri(p.documenti());
        p.salva();
        Gio gio = vuoto<Gio>();
        gio.riferimentofattura = p.documento.coppia.fte.stamp;
        gio.voce[0].segno = 1;
        gio.voce[0].conto.set(u"00000012");
        gio.voce[0].importo = 10.0;
        const int movimento = archivio.aggiungi(archivio.gio, Conta::Gio, gio);
        const int record = p.documento.recordfattura;
        const QString righe = QString::number(double{p.documento.coppia.fte.nfile}).prepend(u'f');
        EXPECT_EQ(inProcesso([&] {
                      Programma q(azienda);
                      conConti(q);
                      q.apri(record);
                      q.disco.caduta = n;
                      q.elimina();
                  }),
                  DiscoGuasto::uscitaPerCaduta);
        EXPECT_EQ(archivio.fte.leggi(record).annullata == 1, n >= 2);
        EXPECT_EQ(QFile::exists(azienda.percorso(righe)), n < 4);
        EXPECT_EQ(archivio.gio.leggi(movimento).cancellato == 1, n >= 6);
        Programma q(azienda);
        conConti(q);
        q.apri(record);
        EXPECT_TRUE(q.elimina());
        EXPECT_EQ(archivio.fte.leggi(record).annullata, 1);
        EXPECT_EQ(archivio.gio.leggi(movimento).cancellato, 1);
        EXPECT_FALSE(QFile::exists(azienda.percorso(righe)));
        EXPECT_EQ(archivio.leggiTot(Conta::Gio).cancellato, 1);
    }
    // Seven movements of 10 in credit came out of the debit total; the one stopped between account and mark
    // was taken out again.
    EXPECT_EQ(archivio.con.leggi(1).progressivodare, 20.0);
}

} // namespace
} // namespace bor
