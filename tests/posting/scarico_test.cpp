// Warehouse rows and stock.
#include "posting/scarico.h"
#include "support/azienda.h"
#include "support/disco_guasto.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class ScaricoTest : public testing::Test {
protected:
    ScaricoTest() {
        prova.tabelle.aliquote[1].aliquota = u"22"_s;
        Art vite = articoloDi(u"VITE"_s, u"Vite"_s, 122, 1);
        vite.giacenza = 10.0;
        azienda.articolo(articoloDi(u"ALTRO"_s, u"Altro"_s, 1, 1));
        azienda.articolo(vite);
        documento.coppia.fte.stamp = 42078.5;
        documento.estremi.numero = u"7"_s;
        documento.estremi.datareg = u"16/03/2015"_s;
        documento.ddd[0] = {.recart = 2,
                            .codice = u"VITE"_s,
                            .sconto1 = 10,
                            .sconto2 = 10,
                            .iva = 1,
                            .quantita = 3,
                            .prezzo = 122.33};
        documento.ddd[1] = {.recart = 2, .codice2 = u"X"_s, .quantita = 5, .prezzo = 1};
        documento.ddd[2] = {.descrizione = u"senza articolo"_s, .quantita = 5, .prezzo = 1};
        documento.recordcliente = 9;
    }
    QList<double> stato() const {
        const Art a = prova.archivio.art.leggi(2);
        return {a.giacenza, a.venduto, a.venduto2};
    }
    EsitoRaffica metti() {
        return inRaffica(prova.archivio, [&](Raffica& r) { mettiscarico(documento, prova.contesto, r); });
    }
    EsitoRaffica togli() {
        return inRaffica(prova.archivio, [&](Raffica& r) { togliscarico(documento, r); });
    }
    int righe() const { return prova.archivio.leggiTot(Conta::Mag).numero; }

    AziendaDiProva azienda;
    ContestoDiProva prova{azienda};
    Documento documento;
};

TEST_F(ScaricoTest, UnaFatturaScaricaEIlRitornoRipristinaLaGiacenza) {
    EXPECT_EQ(metti(), EsitoRaffica::Riuscita);
    // 122.33 less 10% is 110.10 (12.23 off), less 10% again 99.09 (11.01 off); three of them 297.27.
    EXPECT_EQ(stato(), QList<double>({7, 3, 297.27}));
    const QByteArray mag = azienda.leggi(u"borlano.mag"_s);
    ASSERT_EQ(mag.size(), 94);
    EXPECT_EQ(mag.left(64),
              QByteArray("20150316Scarico per vendita                     \1\0FT 7        \0\0", 64));
    EXPECT_EQ(mag.sliced(70, 4), QByteArray("\2\0\x9\0", 4));
    EXPECT_DOUBLE_EQ(prova.archivio.mag.leggi(1).valore, 99.09);
    EXPECT_EQ(righe(), 1);

    EXPECT_EQ(togli(), EsitoRaffica::Riuscita);
    EXPECT_EQ(stato()[0], 10);
    EXPECT_EQ(stato()[1], 0);
    EXPECT_EQ(prova.archivio.mag.leggi(1).cancellato, 1);
    EXPECT_EQ(righe(), 1);
    EXPECT_EQ(togli(), EsitoRaffica::Riuscita);
    EXPECT_EQ(stato()[0], 10) << "a row taken back once is not taken back twice";
}

TEST_F(ScaricoTest, NotaDiCreditoConPrezziIvati) {
    documento.coppia.fte.tipo = 1;
    documento.scorporo = true;
    documento.ddd[0].prezzo = 122;
    documento.ddd[0].sconto1 = documento.ddd[0].sconto2 = 0;
    EXPECT_EQ(metti(), EsitoRaffica::Riuscita);
    EXPECT_EQ(stato(), QList<double>({13, -3, -300}));
    const Mag mag = prova.archivio.mag.leggi(1);
    EXPECT_EQ(mag.quantita, -3);
    EXPECT_EQ(mag.valore, 100);
    EXPECT_EQ(mag.riferimento.trimmed(), u"NC 7"_s);
    EXPECT_EQ(togli(), EsitoRaffica::Riuscita);
    EXPECT_EQ(stato(), QList<double>({10, 0, 0}));
}

TEST_F(ScaricoTest, UnArticoloCheNonEsisteNonAllungaLArchivioEUnoIllegibileFermaTutto) {
    const QByteArray art = azienda.leggi(u"borlano.art"_s);
    documento.ddd[0].recart = 30000;
    EXPECT_EQ(metti(), EsitoRaffica::Riuscita);
    EXPECT_EQ(togli(), EsitoRaffica::Riuscita);
    EXPECT_EQ(azienda.leggi(u"borlano.art"_s), art);

    documento.ddd[0].recart = 2;
    EXPECT_EQ(metti(), EsitoRaffica::Riuscita);
    Mag strana = prova.archivio.mag.leggi(2);
    strana.quantita = std::numeric_limits<double>::quiet_NaN();
    prova.archivio.mag.scrivi(2, strana);
    EXPECT_EQ(togli(), EsitoRaffica::Riuscita);
    EXPECT_EQ(stato(), QList<double>({7, 3, 297.27})) << "a garbled quantity moves nothing";
    EXPECT_EQ(prova.archivio.mag.leggi(2).cancellato, 1);
}

TEST_F(ScaricoTest, DueRigheDiUnArticoloSiSommanoELeRigheSonoUnaScrittura) {
    documento.ddd[1] = documento.ddd[2] = documento.ddd[0];
    DiscoGuasto disco;
    ContestoDiProva altro(azienda, disco);
    altro.tabelle = prova.tabelle;
    disco.annota = true;
    inRaffica(altro.archivio, [&](Raffica& r) { mettiscarico(documento, altro.contesto, r); });
    EXPECT_EQ(stato()[0], 1);
    EXPECT_EQ(std::ranges::count_if(disco.operazioni,
                                    [](const Operazione& o) { return o.percorso.endsWith(u".mag"); }),
              2)
        << "one write and one flush";
}

TEST_F(ScaricoTest, UnMagazzinoPienoNonPrendeAltreRighe) {
    Tot pieno = vuoto<Tot>();
    pieno.numero = 32765;
    documento.ddd[1] = documento.ddd[2] = documento.ddd[0];
    prova.archivio.scriviTot(Conta::Mag, pieno);
    EXPECT_EQ(metti(), EsitoRaffica::Piena);
    EXPECT_EQ(stato(), QList<double>({10, 0, 0}));
    EXPECT_EQ(righe(), 32765);
}

} // namespace
} // namespace bor
