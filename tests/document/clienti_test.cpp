// Finding customers and agents, and what a new document takes from them.
#include "document/clienti.h"
#include "document/defaultcliente.h"
#include "document/righeiva.h"
#include "document/totali.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

struct Ricerca {
    int posizione;
    int letture;
};

/// Searches an index of `numero` keys "C00001", "C00002" and so on.
Ricerca cerca(int numero, const QString& testo) {
    int letture = 0;
    const int posizione = cercaNome(numero, testo, [&letture](int p) {
        ++letture;
        Src voce = vuoto<Src>();
        voce.chiave.set(u'c' + zeriDavanti(QString::number(p), 5));
        return voce;
    });
    return {posizione, letture};
}

TEST(CercaNome, UnaLetturaPerDimezzamento) {
    for (int p = 1; p <= 32767; p += 127) {
        const Ricerca r = cerca(32767, u'C' + zeriDavanti(QString::number(p), 5));
        ASSERT_EQ(r.posizione, p);
        ASSERT_LE(r.letture, 16);
    }
    EXPECT_EQ(cerca(32767, u"C16384"_s).letture, 1);
    EXPECT_EQ(cerca(32767, u"D"_s).letture, 16); // 15 halvings, and the last entry twice
}

TEST(CercaNome, CasiLimite) {
    EXPECT_EQ(cerca(9, {}).posizione, 5);
    EXPECT_EQ(cerca(9, QString(41, u'C')).posizione, 0);
    EXPECT_EQ(cerca(0, u"D"_s).posizione, 0);
    EXPECT_EQ(cerca(0, {}).posizione, 1);
    EXPECT_EQ(cerca(-32768, u"D"_s).posizione, 0);
    EXPECT_EQ(cerca(9, u"C00003"_s + QString(34, u' ')).posizione, 3); // the blanks of the key count
    int letture = 0;
    EXPECT_EQ(cercaNome(32767, u"M",
                        [&letture](int) {
                            Src voce = vuoto<Src>();
                            voce.chiave.set(++letture % 2 ? u"A" : u"Z");
                            return voce;
                        }),
              0);
    EXPECT_LE(letture, 16);
}

class Clienti : public testing::Test {
protected:
    void agente(const QString& codice, const QString& provvigione) {
        ContestoDiProva c(azienda);
        Age age = vuoto<Age>();
        age.codice.set(codice);
        age.provvigione.set(provvigione);
        aggiungi(c.archivio, c.archivio.age, Conta::Age, age);
    }

    AziendaDiProva azienda;
};

TEST_F(Clienti, PosizioneERicercaNellIndice) {
    azienda.cliente(u"Zeta srl"_s);
    azienda.cliente(u"Àncora snc"_s);
    azienda.cliente(u"Bianchi"_s);
    const ContestoDiProva c(azienda);
    EXPECT_EQ(cercacliente(c.archivio, u" bian "), 1);
    EXPECT_EQ(cercacliente(c.archivio, u"ÀNC"), 3); // accented capitals come after Z
    EXPECT_EQ(cercacliente(c.archivio, u"ianchi"), 0);
    EXPECT_EQ(posizionecliente(c.archivio, 1), 2);
    EXPECT_EQ(posizionecliente(c.archivio, 9), 0);
}

TEST_F(Clienti, AgentePerValoreDelCodice) {
    agente(u"12"_s, u" 5.5"_s);
    agente(u""_s, u"3"_s);
    agente(u"0012"_s, u"7"_s);
    const ContestoDiProva c(azienda);
    EXPECT_EQ(cercaagente(c.archivio, 12), u"5.5");
    EXPECT_EQ(cercaagente(c.archivio, 0), u"3");
    EXPECT_EQ(cercaagente(c.archivio, 13), u"");
}

TEST_F(Clienti, DatiDelCliente) {
    Cli cli = clienteDi(u"*Rossi spa"_s);
    cli.eliminato = 1;
    cli.banca1.set(u"IT60");
    cli.abi.set(u"05428");
    cli.cab.set(u"111");
    cli.contocorrente.set(u"000000123456");
    cli.contoricavi.set(u"58051234");
    cli.pagamento = 60;
    const int eliminato = azienda.cliente(cli);
    const ContestoDiProva c(azienda);
    Documento d;
    prendiCliente(d, c.archivio, eliminato);
    const DatiCliente& dati = d.testata.cliente;
    EXPECT_EQ(dati.sede.ragione1, u"Rossi spa");
    EXPECT_EQ(dati.sede.citta, u"");
    EXPECT_EQ(dati.coordinate, u"IT6005428111  000000123456");
    EXPECT_EQ(dati.contoricavi.sottoconto, u"1234");
    EXPECT_EQ(dati.pagamento, 59);
    prendiCliente(d, c.archivio, 500);
    EXPECT_EQ(dati.sede.ragione1 + dati.coordinate + dati.contoricavi.unito(), u"");
    EXPECT_EQ(dati.pagamento, 59) << "a payment type outside the list leaves the one before";
}

TEST_F(Clienti, LaProvvigioneDellAgenteEQuellaCheSiRegistra) {
    agente(u"4"_s, u"12,75"_s);
    ContestoDiProva c(azienda);
    Documento d;
    d.cliente.agente = 4;
    mettiImportoIva(d.coppia, VoceIva::Imponibile, 1, 1000);
    prendiDefaults(d, c.contesto);
    ricalcolaDocumento(d, c.contesto);
    EXPECT_EQ(d.scadenze.provaliq, u"12,7");
    EXPECT_EQ(d.scadenze.provimp, u"127");
}

TEST_F(Clienti, DefaultDelDocumentoNuovo) {
    agente(u"4"_s, u"2.5"_s);
    ContestoDiProva c(azienda);
    c.tabelle.esenzioni[0].testo = u" 1"_s;
    Documento d;
    prendiDefaults(d, c.contesto);
    EXPECT_TRUE(d.estremi.esig && d.prospetti.spesometro);
    EXPECT_FALSE(d.estremi.postael || d.scadenze.rib);
    EXPECT_EQ(d.scadenze.pagamento, -1);
    EXPECT_EQ(d.scadenze.provaliq, u"");

    d.cliente.nodifferita.set(u"1");
    d.cliente.spesometro.set(u"0");
    d.cliente.postael.set(u"1");
    d.cliente.riba = 1;
    d.cliente.pagamento = 3;
    d.cliente.agente = 4;
    prendiDefaults(d, c.contesto);
    EXPECT_FALSE(d.estremi.esig || d.prospetti.spesometro);
    EXPECT_TRUE(d.estremi.postael && d.scadenze.rib);
    EXPECT_EQ(d.scadenze.pagamento, 2);
    EXPECT_EQ(d.scadenze.provaliq, u"2.5");

    c.tabelle.esenzioni[0].testo = u" 0"_s;
    d.cliente.nodifferita.set(u" ");
    d.cliente.pagamento = 61;
    d.cliente.riba = 2;
    prendiDefaults(d, c.contesto);
    EXPECT_FALSE(d.estremi.esig || d.scadenze.rib);
    EXPECT_EQ(d.scadenze.pagamento, -1);
}

} // namespace
} // namespace bor
