// The start as the program makes it: the register is read in a thread of its own, while its screen is made.
#include "support/programmaintero.h"

#include <QTableView>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(Avvio, LoSchermoSiFaMentreIlRegistroSiLegge) {
    constexpr int quanti = 600; // more than are read at a time
    ProgrammaIntero programma;
    programma.azienda.cliente(u"Alfa"_s);
    for (int i = 1; i <= quanti; ++i)
        programma.azienda.documento(documentoDi(1, QString::number(i), i, 0));
    programma.modulo = Modulo::apri(7, programma.azienda.percorsi(),
                                    {programma.operatore, programma.orologio, programma.sistema,
                                     programma.finestra, programma.stampante});
    aggiungiSchermi(programma.finestra, *programma.modulo);
    const std::unique_ptr<QThread> lettura(
        QThread::create([&programma] { programma.modulo->borfte().riempi(); }));
    lettura->start();
    const Vista& registro = programma.vista(Schermo::Borfte);
    lettura->wait();
    programma.finestra.show();
    programma.finestra.mostra(Schermo::Borfte);

    const auto* elenco = registro.findChild<const QTableView*>(u"elenco"_s);
    const auto scritto = [elenco](int riga, Colonna colonna) {
        return elenco->model()->index(riga, ordinale(colonna)).data().toString();
    };
    EXPECT_EQ(elenco->model()->rowCount(), quanti);
    for (const int riga : {0, 511, 512, quanti - 1}) {
        EXPECT_EQ(scritto(riga, Colonna::Numero), QString::number(riga + 1));
        EXPECT_EQ(scritto(riga, Colonna::Cliente), u"Alfa"_s);
    }
    EXPECT_TRUE(elenco->currentIndex().isValid());
}

} // namespace
} // namespace bor
