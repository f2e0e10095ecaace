// The head form: which customer is in view, and what the screens around it are told.
#include "document/borftem.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class HeadForm : public testing::Test {
protected:
    HeadForm() {
        carla = azienda.cliente(u"Carla"_s);
        Cli cli = clienteDi(u"*Anna"_s);
        cli.eliminato = 1;
        anna = azienda.cliente(cli);
        bruno = azienda.cliente(u"Bruno"_s);
    }
    QString inVista() const { return documento.testata.cliente.sede.ragione1; }
    void apri(int cliente) {
        documento.recordfattura = 4;
        documento.recordcliente = cliente;
        contesto.sessione.testataletta = true;
        form.attiva();
    }

    AziendaDiProva azienda;
    int anna = 0, bruno = 0, carla = 0;
    ContestoDiProva contesto{azienda};
    Documento documento;
    Borftem form{contesto.contesto, documento};
};

TEST_F(HeadForm, NuovoDocumento_PrimoCliente_EliminatoNonProsegue) {
    documento.testata.trasporto.ddt = u"of the document before"_s;
    form.attiva();
    EXPECT_EQ(inVista(), u"Anna");
    EXPECT_EQ(documento.testata.trasporto.ddt, u"");
    EXPECT_TRUE(form.clienteEliminato());
    EXPECT_EQ(form.riquadro(), RiquadroTestata::Contabili);
    form.avanti();
    EXPECT_TRUE(contesto.navigatore.mostrati.isEmpty());
    EXPECT_TRUE(contesto.operatore.messaggi.isEmpty());

    form.cambiaPosizione(2);
    contesto.sessione.righelette = true;
    form.avanti();
    EXPECT_EQ(contesto.navigatore.mostrati, QList{Schermo::Borftea});
    EXPECT_EQ(documento.recordcliente, bruno);
    EXPECT_FALSE(contesto.sessione.righelette);
}

TEST_F(HeadForm, RicercaPerNome) {
    form.attiva();
    form.cambiaNome(u" car"_s);
    form.cerca();
    EXPECT_EQ(form.posizione(), 3);
    EXPECT_EQ(form.recordCorrente(), carla);
    EXPECT_EQ(form.nome(), u"");
    form.cambiaNome(u"Dino"_s);
    form.cerca();
    ASSERT_EQ(contesto.operatore.messaggi.size(), 1);
    EXPECT_EQ(contesto.operatore.messaggi[0].testo, u"Anagrafica non trovata");
    EXPECT_EQ(contesto.operatore.messaggi[0].titolo, u"Attenzione");
    EXPECT_EQ(contesto.operatore.messaggi[0].icona, Icona::Esclamazione);
    EXPECT_EQ(inVista(), u"Carla");
    EXPECT_EQ(form.nome(), u"");
    form.cerca();
    EXPECT_EQ(inVista(), u"Bruno") << "an empty name finds the middle customer";
}

TEST_F(HeadForm, DocumentoEsistente_TieneCioCheSiScriveSopra) {
    apri(carla);
    EXPECT_EQ(form.posizione(), 3);
    EXPECT_EQ(form.riquadro(), RiquadroTestata::Spedizione);
    documento.coppia.fte.parcella = 1;
    EXPECT_EQ(form.riquadro(), RiquadroTestata::Pratica);
    form.cambia(u"nuova@esempio.it"_s, &DatiCliente::email);
    form.avanti();
    form.attiva();
    EXPECT_EQ(documento.testata.cliente.email, u"nuova@esempio.it");
    form.cambiaPosizione(2);
    form.attiva(); // back from the picker without a choice
    EXPECT_EQ(inVista(), u"Carla") << "a customer only looked at is not the document's";
}

TEST_F(HeadForm, ClienteFuoriIndice_RestaQuelloDelDocumento) {
    contesto.archivio.src.scrivi(3, Src{contesto.archivio.src.leggi(3).chiave, Intero(77)});
    apri(carla);
    EXPECT_EQ(form.posizione(), 1);
    EXPECT_EQ(inVista(), u"Carla");
    EXPECT_EQ(documento.recordcliente, carla);
    form.cambiaPosizione(3);
    EXPECT_EQ(inVista(), u"") << "an entry that points nowhere is a blank customer";
}

TEST_F(HeadForm, UscitaDovePassareNonSiPuo) {
    apri(carla);
    form.cambiaPosizione(1);
    form.lascia();
    EXPECT_EQ(inVista(), u"Carla");
    EXPECT_EQ(documento.recordcliente, carla);
    contesto.sessione = {};
    documento = {};
    form.attiva();
    form.lascia();
    form.cambiaPosizione(2);
    form.lascia();
    EXPECT_EQ(contesto.navigatore.mostrati, (QList{Schermo::Borftea, Schermo::Borfte, Schermo::Borftea}));
}

TEST_F(HeadForm, ConUnSoloClienteIlCursoreNonFaNulla) {
    const AziendaDiProva piccola;
    ContestoDiProva c(piccola);
    Borftem f(c.contesto, documento);
    f.attiva();
    f.cambiaPosizione(2);
    EXPECT_EQ(f.posizione(), 1);
    f.avanti();
    EXPECT_TRUE(c.navigatore.mostrati.isEmpty());
}

TEST_F(HeadForm, VettoreDallaRigaDellaCausale) {
    contesto.tabelle.vettori[2] = {u"vendita"_s, u"scatole"_s, {u" Corriere "_s, u"*"_s, u""_s}, u""_s};
    documento.testata.cliente.vettore = {u"a"_s, u"b"_s, u"c"_s};
    const auto prima = documento.testata.cliente.vettore;
    form.cambiaVettore(1);
    EXPECT_EQ(documento.testata.cliente.vettore, prima) << "no cause is chosen yet";
    documento.testata.trasporto.causale = 1;
    form.cambiaVettore(7);
    EXPECT_EQ(documento.testata.cliente.vettore, (std::array{u"Corriere"_s, u"b"_s, u""_s}));
    EXPECT_EQ(form.voci().causali[1] + form.voci().aspetti[1] + form.voci().vettori[1],
              u"venditascatoleCorriere");
    EXPECT_EQ(form.voci().vettori.size(), 40);
}

TEST_F(HeadForm, RegimiDellaParcella) {
    contesto.tabelle.aliquote[1] = {u"22"_s, u"20"_s, u"0"_s, u"4"_s};
    contesto.tabelle.aliquote[12] = {u"4"_s, u""_s, u"2"_s, u""_s};
    EXPECT_EQ(form.voci().regimi.size(), 12);
    EXPECT_EQ(form.voci().regimi.front(), u"Iva22% - R.A.20% - C.P.4%");
    EXPECT_EQ(form.voci().regimi.back(), u"Iva4% - C.I.2%");
}

} // namespace
} // namespace bor
