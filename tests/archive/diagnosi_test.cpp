// What is told to who helps from afar: the locks as they are, and nobody's name.
#include "archive/diagnosi.h"
#include "archive/disco.h"
#include "common/avvertenze.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(Blocchi, SiProvanoDavveroESiSaDoveNonPassanoDaUnComputerAllAltro) {
    const AziendaDiProva azienda;
    azienda.scrivi(u"borlano.tot"_s, {});
    EXPECT_EQ(provaBlocchi(azienda.percorso(u"borlano.tot"_s)), TenutaBlocchi::Tengono);
    EXPECT_EQ(provaBlocchi(azienda.percorso(u"manca"_s)), TenutaBlocchi::NonProvati);
    EXPECT_TRUE(blocchiSoloQui(u"nfs4"_s, u"rw,vers=3,nolock,proto=tcp"_s));
    EXPECT_TRUE(blocchiSoloQui(u"cifs"_s, u"rw,nobrl"_s));
    EXPECT_FALSE(blocchiSoloQui(u"nfs4"_s, u"rw,local_lock=none"_s));
    EXPECT_FALSE(blocchiSoloQui(u"ext4"_s, u"rw,relatime"_s));
}

TEST(Diagnosi, IlTestoPerLAssistenzaNonDiceNomiNeImporti) {
    AziendaDiProva azienda;
    azienda.cliente(u"Pasticceria Bonaventura & C."_s);
    azienda.cliente(u"Città Verde"_s);
    ContestoDiProva prova(azienda);
    Diagnosi d = diagnosi(prova.archivio, 7);
    EXPECT_EQ(d.cartella, azienda.percorso({}).chopped(1));
    EXPECT_EQ(d.blocchi, TenutaBlocchi::Tengono);
    EXPECT_FALSE(d.verifica);
    Promemoria(azienda.percorsi(), 7).segnaVerifica({QDateTime::currentDateTime(), 2, 31});
    d = diagnosi(prova.archivio, 7);
    const QString errore = QString::fromLocal8Bit(std::strerror(EACCES));
    d.avvertenze = {u"bor.archive: cannot open /srv/Bonaventura e figli/boraz0.007/borlano.fte: "_s + errore,
                    u"bor.archive: /srv/a b/borlano.f2e is in use by another program"_s,
                    u"bor.ui: no program opens /home/x/PDF/Fattura Rossi.pdf"_s,
                    u"bor.archive: cannot write C:\\SUPROK\\PDF\\Rossi.pdf: for Rossi 12,50"_s,
                    u"default: BONAVENTURA owes 1.250,00 and 99.5 to \"Rossi\" in città"_s};
    d.cartella = u"/srv/Bonaventura e figli/suprok/suprok/boraz0.007"_s;
    const QString testo = testoAssistenza(d, prova.archivio);
    EXPECT_TRUE(testo.contains(u": /srv/(nome) e figli/suprok/suprok/boraz0.007\n"_s)) << qPrintable(testo);
    const QString avvertimenti = testo.mid(testo.indexOf(u"Avvertimenti"_s));
    EXPECT_EQ(avvertimenti, u"Avvertimenti di questa esecuzione: 5\n"
                            "  bor.archive: cannot open borlano.fte: "_s +
                                errore +
                                u"\n  bor.archive: borlano.f2e is in use by another program\n"
                                "  bor.ui: no program opens (file)\n"
                                "  bor.archive: cannot write (file)\n"
                                "  default: (nome) owes (importo) and (importo) to (testo) in (nome)\n"_s);
    EXPECT_TRUE(testo.contains(u": 2 errori, 31 avvisi\n"_s));
}

TEST(Diagnosi, GliAvvertimentiDellEsecuzioneSiTengonoUnaVolta) {
    raccogliAvvertenze();
    qCDebug(logArchivio, "nothing to keep");
    for (int n = 0; n < 2; ++n)
        qCWarning(logArchivio, "cannot open %s", "borlano.fte");
    EXPECT_EQ(avvertenze(), QStringList{u"bor.archive: cannot open borlano.fte"_s});
}

} // namespace
} // namespace bor
