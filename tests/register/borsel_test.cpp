// The customer picker: what it lists, how it sorts, and what it hands back to the head form.
#include "document/borftem.h"
#include "register/borsel.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class Picker : public testing::Test {
protected:
    int cliente(const QString& nome, const QString& citta, const QString& partitaiva, int eliminato = 0) {
        Cli cli = clienteDi(nome);
        cli.sede.citta.set(citta);
        cli.partitaiva.set(partitaiva);
        cli.eliminato = static_cast<std::int16_t>(eliminato);
        return azienda.cliente(cli);
    }
    QStringList nomi(const QString& filtro) {
        testata.cambiaNome(filtro);
        testata.lista();
        form.attiva();
        QStringList elenco;
        for (int i = 0; i < form.quanti(); ++i)
            elenco.append(form.testo(i, ColonnaCliente::Nominativo));
        return elenco;
    }

    AziendaDiProva azienda;
    ContestoDiProva contesto{azienda};
    Documento documento;
    Borftem testata{contesto.contesto, documento};
    Borsel form{contesto.contesto, testata};
};

TEST_F(Picker, FiltraInOrdineAlfabetico_SenzaEliminati) {
    cliente(u"Verdi & Figli"_s, u"Roma"_s, u"2"_s);
    cliente(u"*Verde"_s, u"Roma"_s, u"3"_s, 1);
    cliente(u"Bar Città verde"_s, u"Bari"_s, u"10"_s);
    cliente(u"Rossi"_s, u"Asti"_s, {});
    EXPECT_EQ(nomi({}), (QStringList{u"Bar Città verde"_s, u"Rossi"_s, u"Verdi & Figli"_s}));
    EXPECT_EQ(nomi(u"  verd "_s), (QStringList{u"Bar Città verde"_s, u"Verdi & Figli"_s}));
    EXPECT_EQ(nomi(u"CITTÀ V"_s), QStringList{u"Bar Città verde"_s});
    EXPECT_EQ(nomi(u"   "_s).size(), 3);
    EXPECT_EQ(form.righeGriglia(), 25);
    EXPECT_EQ(form.quanti(), 3);
    form.ordina(ColonnaCliente::PartitaIva);
    EXPECT_EQ(form.testo(0, ColonnaCliente::PartitaIva), u"2");
    EXPECT_EQ(form.testo(1, ColonnaCliente::PartitaIva), u"10");
    EXPECT_EQ(form.record(2), 4) << "blank filler rows stay below";
}

TEST_F(Picker, FiltraMentreSiDigitaSenzaBadareAgliAccenti) {
    cliente(u"Rossi"_s, {}, u"7"_s);
    const int edith = cliente(u"Bianchi Édith & Figli"_s, {}, u"3"_s);
    cliente(u"Bar Città"_s, {}, u"5"_s);
    nomi({});
    form.ordina(ColonnaCliente::PartitaIva);
    const auto quali = [this](const QString& testo) {
        const int prima = form.edizione();
        form.cambiaNome(testo);
        EXPECT_GT(form.edizione(), prima) << "the screen would not see it";
        QStringList elenco;
        for (int i = 0; i < form.quanti(); ++i)
            elenco.append(form.testo(i, ColonnaCliente::Nominativo));
        return elenco.join(u'|');
    };
    EXPECT_EQ(quali(u"CITTA"_s), u"Bar Città"_s);
    EXPECT_EQ(quali(u"édi"_s), u"Bianchi Édith & Figli"_s);
    EXPECT_EQ(form.record(0), edith);
    EXPECT_EQ(quali(u"edix"_s), QString());
    EXPECT_EQ(form.record(0), 0);
    EXPECT_EQ(quali({}), u"Bianchi Édith & Figli|Bar Città|Rossi"_s) << "in the chosen order";
}

TEST_F(Picker, ScegliERiportaIlNome) {
    cliente(u"Alfa"_s, {}, {});
    const int beta = cliente(u"Beta"_s, {}, {});
    nomi(u"bet"_s);
    EXPECT_EQ(contesto.sessione.modoselezione, ModoSelezione::PerTestata);
    form.scegli(1);
    EXPECT_EQ(contesto.sessione.modoselezione, ModoSelezione::PerTestata);
    form.scegli(0);
    EXPECT_EQ(contesto.sessione.modoselezione, ModoSelezione::Scelto);
    testata.attiva();
    EXPECT_EQ(contesto.sessione.modoselezione, ModoSelezione::Nessuno);
    EXPECT_EQ(testata.recordCorrente(), beta);
    nomi(u"alf"_s);
    form.esci();
    EXPECT_EQ(contesto.sessione.modoselezione, ModoSelezione::Nessuno);
    EXPECT_EQ(testata.nome(), u"");
    EXPECT_EQ(contesto.navigatore.mostrati,
              (QList{Schermo::Borsel, Schermo::Borftem, Schermo::Borsel, Schermo::Borftem}));
}

TEST_F(Picker, IndiceGuasto) {
    cliente(u"Alfa"_s, {}, {});
    cliente(u"Beta"_s, {}, {});
    for (const int record : {-5, 32767})
        contesto.archivio.src.scrivi(record < 0 ? 1 : 2,
                                     Src{vuoto<Text<40>>(), Intero(static_cast<std::int16_t>(record))});
    Tot troppi = vuoto<Tot>();
    troppi.numero = 32767;
    contesto.archivio.scriviTot(Conta::Cli, troppi);
    EXPECT_EQ(nomi(u"a"_s).size(), 0);
    EXPECT_EQ(nomi({}).size(), 31999);
    EXPECT_EQ(form.record(1), 32767);
    form.scegli(0);
    form.scegli(40000);
    EXPECT_EQ(contesto.sessione.modoselezione, ModoSelezione::PerTestata);
    troppi.numero = -1;
    contesto.archivio.scriviTot(Conta::Cli, troppi);
    EXPECT_EQ(nomi({}).size(), 0);
    EXPECT_EQ(contesto.operatore.attese, 0);
}

TEST_F(Picker, StrisceComeIlRegistro) {
    EXPECT_EQ(form.colore(0), 16777215);
    EXPECT_EQ(form.colore(1), 16579315);
    contesto.impostazioni.gnr.listacolorata.set(u"0");
    EXPECT_EQ(form.colore(0), std::nullopt);
}

} // namespace
} // namespace bor
