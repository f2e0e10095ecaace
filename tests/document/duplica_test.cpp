// A document made from another one: what goes along, what stays behind, when there is none.
#include "document/borftea.h"
#include "document/duplica.h"
#include "document/programma.h"
#include "document/recorddoc.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <cstring>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class DuplicaTest : public testing::Test {
protected:
    DuplicaTest() {
        azienda.cliente(u"Rossi"_s);
        p.prova.tabelle.tipopagamenti[3] = {u"Trenta sessanta"_s, u"0012"_s};
    }
    /// A stored document in which every byte that a copy must not have is set.
    int registra(int parcella = 0) {
        CoppiaFte coppia = documentoDi(1, u"9/B"_s, 100, 22);
        auto& [fte, f2e] = coppia;
        fte.parcella = static_cast<std::int16_t>(parcella);
        fte.stamp = 42000.5;
        fte.nfile = 5;
        fte.protocollo = 77;
        fte.registro = 3;
        fte.voce1 = fte.voce2 = 2;
        fte.quota2 = 12.5;
        fte.provaliq.set(u"4");
        fte.esigdiff.set(u"1");
        fte.riepil.set(u"1");
        fte.pagamento.set(u"3");
        fte.scad[0].set(u"01012014");
        fte.rata[0] = 122;
        fte.datx[0].set(u"01012014");
        fte.impx[0] = fte.resx[1] = f2e.impx[0] = f2e.dimp[0] = f2e.diva[0] = f2e.resy2 = f2e.fpa = 4;
        fte.flagx1 = fte.flagx2 = 1;
        fte.resx1.set(u"x");
        fte.resx2.set(u"altri");
        inizializza2(f2e);
        f2e.impon[3] = 10;
        f2e.pdf.set(u"\\a.pdf");
        f2e.raimp[0] = 20;
        f2e.raimpo[0] = 100;
        f2e.rascad[0].set(u"16012014");
        f2e.ravers[0].set(u"17012014");
        f2e.dper[0].set(u"012014");
        f2e.dtermine.set(u"012015");
        f2e.resy1.set(u"altri");
        f2e.resy4.set(u"altri");
        f2e.fpa = 4;
        f2e.resy2 = 2;
        const int record = azienda.documento(coppia);
        p.apri(record);
        p.documento.coppia.fte.nfile = 5;
        p.documento.scorporo = parcella == 0;
        p.documento.ddd[0] = rigaDi(122);
        p.documento.dddp[1] = {u"1/3"_s, u"Parere"_s, 1, 2, 3};
        p.documento.testata.trasporto = {
            .ddt = u"DDT 4"_s, .ordine = u"Ord. 1"_s, .colli = u"2"_s, .inizio = u"x"_s};
        p.documento.testata.trasporto.causale = 3;
        p.documento.testata.pratica = {.ivaono = 1, .descrizione = {u"Causa"_s}};
        EXPECT_TRUE(scrividoc(p.documento, p.prova.archivio));
        return record;
    }
    std::optional<Documento> copia(int record, Copia come = Copia::Duplicato) {
        p.prova.orologio.momento = QDateTime(QDate(2016, 1, 10), QTime(9, 0));
        return copiaDocumento(p.prova.contesto, record, come, p.sospese);
    }
    QString detto() const {
        const auto& messaggi = p.prova.operatore.messaggi;
        return messaggi.isEmpty() ? QString() : messaggi.last().testo;
    }

    AziendaDiProva azienda;
    Programma p{azienda};
};

TEST_F(DuplicaTest, PassaIlContenutoENonLeRegistrazioni) {
    const auto nuovo = copia(registra());
    ASSERT_TRUE(nuovo);
    EXPECT_EQ(nuovo->recordfattura, 0);
    EXPECT_EQ(nuovo->ddd[0], rigaDi(122));
    EXPECT_TRUE(nuovo->scorporo);
    const Trasporto& t = nuovo->testata.trasporto;
    EXPECT_EQ(t.ordine + t.colli + QString::number(t.causale), u"Ord. 123");
    EXPECT_EQ(t.ddt + t.inizio, u"") << "of that delivery";
    EXPECT_EQ(nuovo->collegata.numero, u"");

    // What its first save would write, beside that of a document typed from nothing.
    CoppiaFte atteso = vuoto<CoppiaFte>();
    auto& [fte, f2e] = atteso;
    inizializza2(f2e);
    fte.cliente = 1;
    fte.numero.set(u"1");
    fte.datadoc.set(u"20160110");
    fte.datareg.set(u"20160110");
    fte.voce1 = fte.voce2 = 2;
    fte.quota2 = 12.5;
    for (auto& data : fte.scad)
        data.blank();
    fte.scad[0].set(u"10022016");
    fte.scad[1].set(u"10032016");
    for (auto& data : fte.datx)
        data.blank();
    fte.impon[0] = 100;
    fte.iva[0] = 22;
    f2e.impon[3] = 10;
    fte.rata[0] = fte.rata[1] = 56;
    fte.pagamento.set(u"3");
    fte.vuoto2.blank();
    fte.provaliq.set(u"4");
    fte.provimp = 4.4;
    fte.protocollo = 2;
    fte.registro = 3;
    fte.stamp = 1;
    fte.spesom.set(u"0");
    fte.ivanonesp.set(u"0");
    fte.noleggio.set(u"0");
    fte.autofatt.set(u"0");
    fte.riepil.set(u"1");
    fte.esigdiff.set(u"1");
    fte.nfile = -1;
    f2e.raimp[0] = 20;
    f2e.raimpo[0] = 100;
    f2e.tributo = 3;
    for (auto& periodo : f2e.dper)
        periodo.set(u"000000");
    f2e.dtermine.set(u"000000");
    f2e.pdf.blank();
    const CoppiaFte scritta = riempiRecord(*nuovo, 1);
    const auto bytes = [](const auto& record) {
        return QByteArray(reinterpret_cast<const char*>(&record), sizeof(record)).toHex(' ');
    };
    EXPECT_EQ(bytes(scritta.fte), bytes(fte));
    EXPECT_EQ(bytes(scritta.f2e), bytes(f2e));
}

TEST_F(DuplicaTest, LaNotaDiCreditoDiceCheCosaCorregge) {
    const int record = registra();
    const auto nota = copia(record, Copia::NotaDiCredito);
    ASSERT_TRUE(nota);
    EXPECT_TRUE(nota->notaCredito());
    EXPECT_EQ(nota->ddd[0].descrizione, u"Nota di credito su fattura n. 9/B del 15/03/2015");
    EXPECT_EQ(nota->ddd[1], rigaDi(122));
    EXPECT_EQ(nota->collegata.numero + nota->collegata.data, u"9/B15/03/2015");

    p.documento.ddd.back().descrizione = u"ultima"_s;
    ASSERT_TRUE(scrividoc(p.documento, p.prova.archivio));
    const auto piena = copia(record, Copia::NotaDiCredito);
    ASSERT_TRUE(piena);
    EXPECT_EQ(piena->ddd, p.documento.ddd);
    EXPECT_TRUE(detto().contains(u"Le righe sono tutte in uso"_s));
    EXPECT_EQ(piena->collegata.numero, u"9/B");
}

TEST_F(DuplicaTest, UnaParcellaRestaParcellaFinoAlFileDelleRighe) {
    const auto nota = copia(registra(2), Copia::NotaDiCredito);
    ASSERT_TRUE(nota);
    EXPECT_EQ(nota->dddp[0].descrizione, u"Storno della parcella n. 9/B del 15/03/2015");
    p.documento = *nota;
    p.documento.recordfpa = 0;
    ASSERT_EQ(p.salva().dopo, DopoSalva::Movimento);
    ASSERT_EQ(p.documenti(), 2);
    p.apri(2);
    EXPECT_EQ(p.documento.tipoparcella(), 2);
    EXPECT_TRUE(p.documento.notaCredito());
    EXPECT_EQ(p.documento.dddp[2], (Rigap{u"1/3"_s, u"Parere"_s, 1, 2, 3}));
    EXPECT_EQ(p.documento.testata.pratica.descrizione[0], u"Causa");
    p.prova.operatore.risposte = {false};
    EXPECT_EQ(p.salva().dopo, DopoSalva::Registro);
    EXPECT_TRUE(QFile::exists(azienda.percorso(u"p2"_s)));
}

TEST_F(DuplicaTest, ChiNonSiPuoRifareEDetto) {
    const int record = registra();
    const auto rifiuta = [&](Copia come, const QString& motivo) {
        EXPECT_FALSE(copia(record, come));
        EXPECT_TRUE(detto().contains(motivo)) << qPrintable(detto());
    };
    Fte fte = p.prova.archivio.fte.leggi(record);
    fte.tipo = 1;
    p.prova.archivio.fte.scrivi(record, fte);
    rifiuta(Copia::NotaDiCredito, u"già una nota di credito"_s);
    EXPECT_TRUE(copia(record, Copia::Duplicato)->notaCredito());
    fte.annullata = 1;
    p.prova.archivio.fte.scrivi(record, fte);
    rifiuta(Copia::Duplicato, u"Il documento è stato eliminato"_s);
    fte.annullata = 0;
    p.prova.archivio.fte.scrivi(record, fte);
    Cli cliente = p.prova.archivio.cli.leggi(1);
    cliente.eliminato = 1;
    p.prova.archivio.cli.scrivi(1, cliente);
    rifiuta(Copia::Duplicato, u"Il cliente del documento è stato eliminato"_s);
    cliente.eliminato = 0;
    p.prova.archivio.cli.scrivi(1, cliente);

    QFile::remove(azienda.percorso(u"f5"_s));
    EXPECT_TRUE(copia(record));
    EXPECT_TRUE(detto().contains(u"non sono su file"_s));
    QDir().mkpath(azienda.percorso(u"f5"_s));
    rifiuta(Copia::Duplicato, u"f5\""_s);
}

TEST_F(DuplicaTest, TotaliCheLeRigheNonDannoPiuSonoDetti) {
    const int record = registra();
    p.documento.coppia.f2e.impon[3] = 0;
    p.prova.archivio.scrivi(record, p.documento.coppia);
    ASSERT_TRUE(copia(record));
    EXPECT_EQ(detto(), u"");
    p.prova.tabelle.aliquote[1].aliquota = u"23"_s;
    const auto nuovo = copia(record);
    ASSERT_TRUE(nuovo);
    EXPECT_TRUE(detto().contains(u"con le aliquote di oggi"_s));
    EXPECT_EQ(nuovo->coppia.fte.iva[0], 22);
}

TEST_F(DuplicaTest, LaMascheraChiedePrimaETieneIlRiferimentoFinoAlSalvataggio) {
    const int record = registra();
    Documento aperto;
    QStringList registrate;
    bool riesce = true;
    Borftea form(p.prova.contesto, aperto, p.registrazioni, p.sospese,
                 {.registraCollegata = [&](const Collegata& c) {
                     registrate.append(c.numero);
                     return riesce;
                 }});
    Sessione& sessione = p.prova.sessione;
    const auto apri = [&](std::optional<Copia> come) {
        aperto = {};
        aperto.recordfattura = record;
        sessione.documentoletto = sessione.righelette = false;
        sessione.copia = come;
        form.attiva();
    };
    apri({});
    form.cambia(u"10"_s, &Estremi::numero);
    p.prova.operatore.risposte = {false};
    form.esegui(Borftea::Comando::Duplica);
    EXPECT_EQ(aperto.recordfattura, record) << "the operator stays";
    p.prova.operatore.risposte = {true};
    form.esegui(Borftea::Comando::NotaCredito);
    EXPECT_EQ(form.titolo(), u"Memorizzazione nota di credito emessa");
    EXPECT_EQ(p.prova.navigatore.mostrati.last(), Schermo::Borftea);
    EXPECT_EQ(aperto.estremi.numero, u"1");
    EXPECT_FALSE(form.abilitato(Borftea::Comando::Duplica) || form.abilitato(Borftea::Comando::NotaCredito));
    p.prova.operatore.risposte = {false};
    form.esegui(Borftea::Comando::Esci);
    EXPECT_EQ(p.prova.navigatore.mostrati.last(), Schermo::Borftea) << "leaving would lose it";

    riesce = false;
    form.esegui(Borftea::Comando::Salva);
    EXPECT_EQ(registrate, QStringList{u"9/B"_s});
    EXPECT_TRUE(detto().contains(u"va scritta a mano"_s));
    EXPECT_EQ(p.documenti(), 2);
    apri(Copia::Duplicato);
    EXPECT_EQ(aperto.estremi.protocollo, u"3");
    form.esegui(Borftea::Comando::Salva);
    EXPECT_EQ(registrate.size(), 1) << "a duplicate corrects nothing";

    Fte fte = p.prova.archivio.fte.leggi(record);
    fte.annullata = 1;
    p.prova.archivio.fte.scrivi(record, fte);
    apri(Copia::Duplicato);
    EXPECT_EQ(p.prova.navigatore.mostrati.last(), Schermo::Borfte);
    EXPECT_FALSE(sessione.copia);
}

} // namespace
} // namespace bor
