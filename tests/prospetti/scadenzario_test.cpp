#include "prospetti/scadenzario.h"

#include "prospetti/daifile.h"
#include "support/disco_guasto.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSettings>

#include <map>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class ScadenzarioTest : public testing::Test {
protected:
    ScadenzarioTest() {
        rossi = azienda.cliente(u"Rossi"_s);
        bianchi = azienda.cliente(u"Bianchi"_s);
    }
    /// A document with an instalment for each date; the k-th one of k hundred.
    static CoppiaFte aRate(int cliente, const QString& numero, const QStringList& scadenze) {
        CoppiaFte c = documentoDi(cliente, numero, 1000, 220);
        for (int k = 0; k < scadenze.size(); ++k) {
            const auto i = static_cast<std::size_t>(k);
            (k < 4 ? c.fte.scad[i] : c.f2e.scad[i - 4]).set(scadenze[k]);
            (k < 4 ? c.fte.rata[i] : c.f2e.rata[i - 4]) = 100.0 * (k + 1);
        }
        return c;
    }
    Scadenzario& carica() {
        prova = std::make_unique<ContestoDiProva>(azienda);
        m_form =
            std::make_unique<Scadenzario>(prova->contesto, [this](const Identita& d) { aperto = d.record; });
        m_form->attiva();
        m_form->prosegui(std::chrono::seconds(10));
        return *m_form;
    }
    /// The rows on screen: due date, customer, document, instalment and amount.
    QStringList righe() const {
        QStringList tutte;
        for (int r = 0; r < m_form->righe(); ++r) {
            QStringList celle;
            for (const auto colonna :
                 {ColonnaScadenze::Scadenza, ColonnaScadenze::Cliente, ColonnaScadenze::Documento,
                  ColonnaScadenze::Rata, ColonnaScadenze::Importo})
                celle.append(m_form->testo(r, colonna));
            tutte.append(celle.join(u'|'));
        }
        return tutte;
    }

    AziendaDiProva azienda;
    int rossi = 0;
    int bianchi = 0;
    int aperto = 0;
    std::unique_ptr<ContestoDiProva> prova;
    std::unique_ptr<Scadenzario> m_form;
};

TEST_F(ScadenzarioTest, OgniGiornoHaLeSueRateEIlSuoTotaleEUnaNotaDiCreditoToglie) {
    azienda.documento(aRate(rossi, u"1"_s, {u"30042015"_s, u"31052015"_s}));
    CoppiaFte nota = aRate(bianchi, u"2"_s, {u"30042015"_s});
    nota.fte.tipo = 1;
    azienda.documento(nota);
    CoppiaFte eliminata = aRate(bianchi, u"3"_s, {u"30042015"_s});
    eliminata.fte.annullata = 1;
    azienda.documento(eliminata);
    const Scadenzario& form = carica();
    EXPECT_EQ(righe(),
              QStringList({u"30/04/2015|Bianchi|2|1 di 1|-100,00"_s, u"30/04/2015|Rossi|1|1 di 2|100,00"_s,
                           u"|Totale 30/04/2015||2 rate|0,00"_s, u"31/05/2015|Rossi|1|2 di 2|200,00"_s,
                           u"|Totale 31/05/2015||1 rata|200,00"_s}));
    EXPECT_EQ(form.riepilogo(), u"In scadenza: 3 rate, 200,00"_s);
    EXPECT_EQ(form.testo(0, ColonnaScadenze::Genere), u"Nota di credito"_s);
}

TEST_F(ScadenzarioTest, CioCheNonHaUnaDataNonSparisceInNessunPeriodo) {
    azienda.documento(aRate(rossi, u"1"_s, {u"30042015"_s, u"29022100"_s, u"        "_s}));
    azienda.documento(documentoDi(bianchi, u"2"_s, 1000, 220)); // no instalments at all
    CoppiaFte parcella = documentoDi(bianchi, u"3"_s, 1000, 220);
    parcella.f2e.raimp[0] = 200;
    azienda.documento(parcella);
    CoppiaFte maiScritta = aRate(rossi, u"4"_s, {u"30042015"_s, {}, {}, {}, u"30042015"_s});
    maiScritta.f2e.marca = 0;
    azienda.documento(maiScritta);
    Scadenzario& form = carica();
    form.limiti().cambiaPeriodo(PeriodoScadenze::MeseProssimo);
    const QStringList senzaData{u"|Bianchi|2|senza rate|1.220,00"_s, u"|Bianchi|3|senza rate|1.020,00"_s,
                                u"29/02/2100|Rossi|1|2 di 3|200,00"_s, u"|Rossi|1|3 di 3|300,00"_s};
    QStringList righe = this->righe();
    EXPECT_EQ(righe.size(), 11);
    EXPECT_EQ(righe.filter(u"|4|"_s).size(), 4) << "instalment 5 is of a half that was never written";
    for (const QString& riga : senzaData)
        EXPECT_TRUE(righe.contains(riga)) << qPrintable(riga);
    form.limiti().cambiaDal(u"01/01/2030"_s);
    form.limiti().cambiaAl(u"311230"_s);
    righe = this->righe();
    EXPECT_FALSE(righe.filter(u"30/04/2015"_s).size());
    EXPECT_EQ(righe.last().section(u'|', 1, 1), u"Totale senza data"_s);
    EXPECT_TRUE(form.riepilogo().startsWith(u"In scadenza: 0 rate, 0,00 - Senza data: "_s));
}

TEST_F(ScadenzarioTest, SiScegliePerPeriodoClientePagamentoERiba) {
    CoppiaFte riba = aRate(rossi, u"1"_s, {u"14032015"_s, u"15032015"_s, u"31032015"_s, u"01042015"_s});
    riba.fte.riba = 1;
    riba.fte.pagamento.set(u"12"_s);
    azienda.documento(riba);
    CoppiaFte bonifico = aRate(bianchi, u"2"_s, {u"30042015"_s});
    bonifico.fte.pagamento.set(u"  3 x"_s);
    azienda.documento(bonifico);
    azienda.documento(aRate(bianchi, u"3"_s, {u"30042015"_s}));
    Scadenzario& form = carica();
    const auto rate = [&form] { return form.riepilogo().section(u' ', 2, 2).toInt(); };
    EXPECT_EQ(form.limiti().periodo(), PeriodoScadenze::DaOggi);
    EXPECT_EQ(form.limiti().dal(), u"15/03/2015"_s);
    EXPECT_EQ(rate(), 5);
    form.limiti().cambiaPeriodo(PeriodoScadenze::QuestoMese);
    EXPECT_EQ(form.limiti().dal() + form.limiti().al(), u"01/03/201531/03/2015"_s);
    EXPECT_EQ(rate(), 3);
    form.limiti().cambiaPeriodo(PeriodoScadenze::MeseProssimo);
    EXPECT_EQ(rate(), 3);
    form.limiti().cambiaDal(u"15"_s); // half a date limits nothing
    EXPECT_EQ(form.limiti().periodo(), PeriodoScadenze::DalAl);
    EXPECT_EQ(rate(), 6);
    EXPECT_TRUE(form.riepilogo().endsWith(u" - «Dal» non è una data: non limita l'elenco"_s));
    form.limiti().cambiaDal({});
    EXPECT_FALSE(form.riepilogo().contains(u"non è una data"_s));
    EXPECT_EQ(form.pagamenti(),
              QStringList({u"Tutte"_s, u"Senza modalità"_s, u"Modalità 3"_s, u"Modalità 12"_s}));
    form.cambiaPagamento(2);
    EXPECT_EQ(rate(), 1);
    form.cambiaPagamento(1);
    EXPECT_EQ(rate(), 1);
    form.cambiaPagamento(0);
    form.cambiaRiba(SceltaRiba::SoloRiba);
    EXPECT_EQ(rate(), 4);
    EXPECT_EQ(form.testo(0, ColonnaScadenze::Riba), u"Ri.Ba."_s);
    form.cambiaRiba(SceltaRiba::SenzaRiba);
    EXPECT_EQ(rate(), 2);
    form.cambiaRiba(SceltaRiba::Tutte);
    form.cambiaCliente(u" ROSS"_s);
    EXPECT_EQ(rate(), 4);
}

TEST_F(ScadenzarioTest, LeScelteRestanoPerLaProssimaVolta) {
    azienda.documento(aRate(rossi, u"1"_s, {u"14032015"_s, u"15032015"_s, u"31032015"_s}));
    EXPECT_EQ(carica().limiti().periodo(), PeriodoScadenze::DaOggi);
    EXPECT_FALSE(QFile::exists(azienda.percorsi().promemoria(7)))
        << "what is only proposed is not remembered";
    carica().cambiaGruppi(GruppiScadenze::PerCliente);
    m_form->cambiaRiba(SceltaRiba::SenzaRiba);
    m_form->cambiaCliente(u"ross"_s);
    m_form->limiti().cambiaDal(u"150315"_s);
    m_form->limiti().cambiaAl(u"3"_s);
    carica();
    EXPECT_EQ(m_form->limiti().periodo(), PeriodoScadenze::DalAl);
    EXPECT_EQ(m_form->limiti().dal() + m_form->limiti().al(), u"15/03/2015"_s) << "half a date is no choice";
    EXPECT_EQ(m_form->scelta().gruppi, GruppiScadenze::PerCliente);
    EXPECT_EQ(m_form->scelta().riba, SceltaRiba::SenzaRiba);
    EXPECT_EQ(m_form->scelta().cliente, QString());
    EXPECT_EQ(m_form->righe(), 3) << "two instalments and their total";

    m_form->limiti().cambiaPeriodo(PeriodoScadenze::QuestoMese);
    QSettings memoria(azienda.percorsi().promemoria(7), QSettings::IniFormat);
    memoria.setValue(u"scadenzario/gruppi", 9);
    memoria.setValue(u"scadenzario/riba", u"boh"_s);
    memoria.sync();
    carica();
    EXPECT_EQ(m_form->limiti().al(), u"31/03/2015"_s);
    EXPECT_EQ(m_form->scelta().gruppi, GruppiScadenze::PerGiorno);
    EXPECT_EQ(m_form->scelta().riba, SceltaRiba::Tutte);
}

TEST_F(ScadenzarioTest, LaRigaSceltaRestaLaStessaESiApreLaSua) {
    azienda.documento(aRate(rossi, u"1"_s, {u"30042015"_s, u"31052015"_s}));
    azienda.documento(aRate(bianchi, u"2"_s, {u"30062015"_s}));
    Scadenzario& form = carica();
    EXPECT_EQ(form.rigaCorrente(), 0);
    form.cambiaRiga(2);
    form.cambiaGruppi(GruppiScadenze::PerCliente);
    EXPECT_EQ(righe().mid(0, 3),
              QStringList({u"30/06/2015|Bianchi|2|1 di 1|100,00"_s, u"|Totale Bianchi||1 rata|100,00"_s,
                           u"30/04/2015|Rossi|1|1 di 2|100,00"_s}));
    EXPECT_EQ(form.rigaCorrente(), 3);
    form.apri(1);
    EXPECT_EQ(aperto, 0) << "a total has no document";
    form.apri(form.rigaCorrente());
    EXPECT_EQ(aperto, 1);
    form.limiti().cambiaPeriodo(PeriodoScadenze::QuestoMese);
    EXPECT_EQ(form.rigaCorrente(), 0);
}

TEST_F(ScadenzarioTest, UnArchivioDiAnniPassatiSiApreSuTutte) {
    azienda.documento(aRate(rossi, u"1"_s, {u"30042011"_s}));
    EXPECT_EQ(carica().limiti().periodo(), PeriodoScadenze::Tutte);
    EXPECT_EQ(m_form->righe(), 2);
}

TEST_F(ScadenzarioTest, TuttiITotaliSonoQuelliDeiFile) {
    scriviDocumentiACaso(azienda, 700, 2);
    Scadenzario& form = carica();
    form.limiti().cambiaPeriodo(PeriodoScadenze::Tutte);
    std::map<int, qint64> attesi;
    qint64 insieme = 0;
    for (const DocumentoSuFile& d : documentiSuFile(azienda)) {
        attesi[DocumentoSuFile::intero(d.fte, 0)] += d.eliminato() ? 0 : d.rate();
        insieme += d.eliminato() ? 0 : d.rate();
    }
    EXPECT_EQ(centesimiDi(form.riepilogo().section(u' ', -1)), insieme);
    for (const auto gruppi :
         {GruppiScadenze::PerGiorno, GruppiScadenze::PerCliente, GruppiScadenze::PerPagamento}) {
        form.cambiaGruppi(gruppi);
        qint64 diTotali = 0;
        qint64 diRate = 0;
        for (int r = 0; r < form.righe(); ++r) {
            const qint64 importo = centesimiDi(form.testo(r, ColonnaScadenze::Importo));
            (form.totale(r) ? diTotali : diRate) += importo;
            if (form.totale(r) && gruppi == GruppiScadenze::PerCliente) {
                const bool suo = form.testo(r, ColonnaScadenze::Cliente) == u"Totale Rossi";
                EXPECT_EQ(importo, attesi[suo ? rossi : bianchi]);
            }
        }
        EXPECT_EQ(diTotali, insieme);
        EXPECT_EQ(diRate, insieme);
    }
}

TEST_F(ScadenzarioTest, CioCheNonSiLeggeSiDice) {
    for (int n = 0; n < 300; ++n)
        azienda.documento(aRate(rossi, QString::number(n), {u"30042015"_s}));
    DiscoGuasto disco;
    ContestoDiProva guasta(azienda, disco);
    Scadenzario form(guasta.contesto, [](const Identita&) {});
    disco.illeggibile = u"f2e"_s;
    form.attiva();
    form.prosegui(std::chrono::seconds(10));
    EXPECT_EQ(form.lettura().difetto(), u"I documenti dalla registrazione 1 in poi non si possono leggere"_s);
    EXPECT_EQ(form.righe(), 0);
    disco.illeggibile = u"tot"_s;
    form.attiva();
    EXPECT_EQ(form.lettura().difetto(), u"Il contatore dei documenti non si può leggere"_s);
    disco.ripara();
    form.attiva();
    form.prosegui(std::chrono::seconds(10));
    EXPECT_EQ(form.lettura().difetto(), QString());
    EXPECT_EQ(form.righe(), 301);
}

} // namespace
} // namespace bor
