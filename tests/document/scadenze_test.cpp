// Due dates and the split of the net amount.
#include "document/righeiva.h"
#include "document/scadenze.h"
#include "document/totali.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class Schedule : public testing::Test {
protected:
    void codice(const QString& testo) {
        contesto.tabelle.tipopagamenti[3].codice = testo;
        documento.scadenze.pagamento = 2;
    }
    QString scadenza(const QString& data, const QString& testo, int rata = 0) {
        codice(testo);
        documento.estremi.data = data;
        calcolascadenze(documento, contesto.contesto);
        return documento.scadenze.rate[static_cast<std::size_t>(rata)].scadenza;
    }
    QStringList rate(double netto) {
        mettiImportoIva(documento.coppia, VoceIva::Esente, 3, netto);
        calcolarate(documento, contesto.contesto);
        QStringList importi;
        for (const Rata& r : documento.scadenze.rate)
            importi.append(r.importo);
        return importi;
    }

    AziendaDiProva azienda;
    ContestoDiProva contesto{azienda};
    Documento documento;
};

TEST_F(Schedule, FineMeseEAnniBisestili) {
    EXPECT_EQ(scadenza(u"31/01/2015"_s, u"001"_s), u"28/02/2015");
    EXPECT_EQ(scadenza(u"31/01/2016"_s, u"001"_s), u"29/02/2016");
    EXPECT_EQ(scadenza(u"31/01/2100"_s, u"001"_s), u"29/02/2100") << "every fourth year";
    EXPECT_EQ(scadenza(u"31/08/2015"_s, u"001"_s), u"30/09/2015");
    EXPECT_EQ(scadenza(u"15/11/2015"_s, u"003               F"_s), u"29/02/2016");
    EXPECT_EQ(scadenza(u"15/03/2015"_s, u"001               F010"_s), u"10/05/2015");
    EXPECT_EQ(scadenza(u"15/11/2015"_s, u"001               F010"_s), u"10/01/2016");
    EXPECT_EQ(scadenza(u"15/03/2015"_s, u"000"_s), u"15/03/2015") << "immediate";
    EXPECT_EQ(scadenza(u"non una data"_s, u"001"_s), u"15/04/2015") << "from today";
}

TEST_F(Schedule, AgostoEDicembreValgonoPerTutti) {
    contesto.tabelle.tipopagamenti[1].codice = u"000                    110"_s;
    contesto.tabelle.tipopagamenti[2].codice = u"000                    110"_s;
    EXPECT_EQ(scadenza(u"31/07/2015"_s, u"001"_s), u"10/09/2015");
    EXPECT_EQ(scadenza(u"31/12/2015"_s, u"000"_s), u"10/01/2016");
    EXPECT_EQ(scadenza(u"30/12/2015"_s, u"000"_s), u"30/12/2015");
}

TEST_F(Schedule, RateEResto) {
    EXPECT_EQ(scadenza(u"15/03/2015"_s, u"001002003"_s, 2), u"15/06/2015");
    EXPECT_EQ(rate(100), (QStringList{u"33.34"_s, u"33.33"_s, u"33.33"_s, {}, {}, {}}));
    EXPECT_EQ(rate(-100)[0], u"-33.34");
    contesto.impostazioni.valuta.euro = false;
    EXPECT_EQ(rate(100).first(2), (QStringList{u"34"_s, u"33"_s}));
    // A shorter type empties what the longer one left; one with a gap has no instalment there.
    EXPECT_EQ(scadenza(u"15/03/2015"_s, u"001000002"_s, 1), u"");
    EXPECT_EQ(rate(100), (QStringList{u"50"_s, {}, u"50"_s, {}, {}, {}}));
    documento.scadenze.pagamento = -1;
    EXPECT_EQ(rate(70)[0], u"70") << "no payment type: one instalment";
}

TEST_F(Schedule, NettoDopoLeRitenuteEProvvigioneSenzaImposta) {
    codice(u"000"_s);
    mettiImportoIva(documento.coppia, VoceIva::Imponibile, 1, 1000);
    mettiImportoIva(documento.coppia, VoceIva::Imposta, 1, 220);
    mettiImportoIva(documento.coppia, VoceIva::Esente, 12, 50);
    documento.prospetti.ritenute[3].raimp = u"200.5 "_s;
    documento.scadenze.provaliq = u"2.5"_s;
    ricalcolaDocumento(documento, contesto.contesto);
    EXPECT_EQ(documento.scadenze.rate[0].importo, u"1069.5");
    EXPECT_EQ(documento.scadenze.provimp, u"26.25");
    documento.prospetti.ritenute[0].raimp = u"2000"_s;
    EXPECT_EQ(totali(documento).nettodoc, -930.5);
    documento.scadenze.provaliq = u" "_s;
    documento.scadenze.provimp = u"12"_s;
    ricalcolaDocumento(documento, contesto.contesto);
    EXPECT_EQ(documento.scadenze.provimp, u"12") << "without a rate the amount is the operator's";
}

} // namespace
} // namespace bor
