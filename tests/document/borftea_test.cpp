// The document form: how it opens, and what follows from what is typed.
#include "document/borftea.h"
#include "document/righeinsospeso.h"
#include "support/azienda.h"
#include "support/registrazioni_finte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

using Comando = Borftea::Comando;
using Prospetto = Borftea::Prospetto;

class DocumentForm : public testing::Test {
protected:
    DocumentForm() {
        Cli cli = clienteDi(u"Rossi"_s);
        cli.riba = 1;
        cli.pagamento = 1;
        cli.postael.set(u"1");
        cliente = azienda.cliente(cli);
        contesto.tabelle.tipopagamenti[1] = {u"Trenta giorni"_s, u"001"_s};
        contesto.tabelle.esenzioni[0].testo = u"01"_s;
    }
    void nuovo(int tipo = 0) {
        documento.recordfattura = 0;
        documento.recordcliente = cliente;
        documento.coppia.fte.tipo = static_cast<std::int16_t>(tipo);
        riapri();
    }
    void esistente(CoppiaFte coppia) {
        documento.recordfattura = azienda.documento(coppia);
        riapri();
    }
    void riapri() {
        sessione.documentoletto = sessione.righelette = false;
        form.attiva();
    }
    QStringList testi() const {
        QStringList t;
        for (const Messaggio& m : contesto.operatore.messaggi)
            t.append(m.testo);
        return t;
    }

    AziendaDiProva azienda;
    int cliente = 0;
    ContestoDiProva contesto{azienda};
    Sessione& sessione = contesto.sessione;
    Documento documento;
    RegistrazioniFinte registrazioni;
    RigheInSospeso sospese;
    Borftea form{contesto.contesto,
                 documento,
                 registrazioni,
                 sospese,
                 {.fatturaPa = [] {}, .fatturaElettronica = [this] { ++fattureElettroniche; }}};
    int fattureElettroniche = 0; ///< times that the electronic invoice was asked for
    bool stampato = true;
    Borftea conStampa{
        contesto.contesto, documento, registrazioni, sospese, {.stampa = [this] { return stampato; }}};
};

TEST_F(DocumentForm, LaFatturaElettronicaEsceSoloDalDocumentoRegistrato) {
    nuovo();
    EXPECT_FALSE(form.abilitato(Comando::FatturaElettronica));
    esistente(documentoDi(cliente, u"7"_s, 100, 22));
    form.esegui(Comando::FatturaElettronica);
    EXPECT_EQ(fattureElettroniche, 1);
    form.cambia(u"8"_s, &Estremi::numero);
    form.esegui(Comando::FatturaElettronica);
    EXPECT_EQ(fattureElettroniche, 1);
    EXPECT_TRUE(testi().last().contains(u"modifiche non ancora registrate"_s));
}

TEST_F(DocumentForm, NuovoDocumento_NumeriDateECliente) {
    azienda.documento(documentoDi(cliente, u"41"_s, 10, 2.2));
    Tot contatore = contesto.archivio.leggiTot(Conta::Fte);
    contatore.ultimonumero = 41;
    contesto.archivio.scriviTot(Conta::Fte, contatore);
    documento.testata.cliente.email = u"typed@in.head"_s;
    documento.ddd[0].descrizione = u"of the document before"_s;
    documento.coppia.fte.parcella = 1;
    nuovo(1);
    EXPECT_EQ(form.titolo(), u"Memorizzazione nota di credito emessa");
    EXPECT_EQ(documento.estremi.numero, u"42");
    EXPECT_EQ(documento.estremi.protocollo, u"2");
    EXPECT_EQ(documento.estremi.data + documento.estremi.datareg, u"15/03/201515/03/2015");
    EXPECT_TRUE(documento.estremi.esig && documento.estremi.postael && documento.scadenze.rib);
    EXPECT_EQ(documento.scadenze.rate[0].scadenza, u"15/04/2015");
    EXPECT_EQ(documento.scadenze.rate[0].importo, u"") << "no split before there are amounts";
    EXPECT_EQ(documento.testata.cliente.email, u"typed@in.head");
    EXPECT_EQ(documento.ddd[0].descrizione, u"");
    EXPECT_EQ(documento.coppia.fte.parcella, 0);
    EXPECT_EQ(documento.coppia.f2e.marca, 999);
    EXPECT_FALSE(form.abilitato(Comando::Elimina) || form.abilitato(Comando::Testata));
    EXPECT_FALSE(form.abilitato(Comando::FatturaPa) || form.abilitato(Comando::Stampa));
    const auto posto = form.prendiFuoco();
    EXPECT_TRUE(posto && posto->campo == CampoTea::Numero);
    EXPECT_FALSE(form.prendiFuoco());
}

TEST_F(DocumentForm, DocumentoEsistente_SessioneTitoloEComandi) {
    CoppiaFte coppia = documentoDi(cliente, u"7"_s, 100, 22);
    coppia.fte.tipo = 1;
    coppia.fte.parcella = 1;
    coppia.fte.esigdiff.set(u"1");
    esistente(coppia);
    EXPECT_EQ(form.titolo(), u"Modifica dati nota di credito emessa");
    EXPECT_EQ(documento.tipodocumento(), 1);
    EXPECT_EQ(documento.tipoparcella(), 1);
    EXPECT_TRUE(form.abilitato(Comando::Elimina) && form.abilitato(Comando::Testata));
    EXPECT_EQ(documento.testata.cliente.sede.ragione1, u"Rossi");
    EXPECT_TRUE(documento.estremi.esig);
    form.cambia(u"8"_s, &Estremi::numero);
    form.attiva();
    EXPECT_EQ(documento.estremi.numero, u"8") << "a form still open is not filled again";

    form.esegui(Comando::Righe);
    EXPECT_EQ(documento.coppia.fte.nfile, -1.0F);
    form.importiIva().scorri(5);
    contesto.tabelle.esenzioni[0].testo.clear();
    form.attiva();
    EXPECT_EQ(documento.estremi.numero, u"8");
    EXPECT_EQ(form.importiIva().finestra().prima(), 1);
    EXPECT_FALSE(documento.estremi.esig) << "the regime forbids it";
    form.esegui(Comando::Esci);
    EXPECT_EQ(contesto.navigatore.mostrati, (QList{Schermo::Borftek, Schermo::Borfte}));
    EXPECT_FALSE(sessione.documentoletto || sessione.righelette);

    coppia.f2e.fpa = 3;
    coppia.fte.parcella = 0;
    esistente(coppia);
    EXPECT_EQ(form.titolo(), u"Modifica dati fatturaPA emessa");
    EXPECT_EQ(documento.recordfpa, 3);
    EXPECT_TRUE(form.abilitato(Comando::FatturaPa));
    documento.coppia.f2e.fpa = 0;
    EXPECT_FALSE(form.abilitato(Comando::FatturaPa));
    documento.cliente.clix2.set(u"UF12");
    EXPECT_FALSE(form.abilitato(Comando::FatturaPa)) << "no whole office code";
    documento.cliente.clix2.set(u"UFABCD");
    EXPECT_TRUE(form.abilitato(Comando::FatturaPa)) << "the first invoice to an office";
    documento.coppia.fte.parcella = 1;
    EXPECT_FALSE(form.abilitato(Comando::FatturaPa));
    documento.coppia.fte.parcella = 0;
    EXPECT_EQ(documento.scadenze.pagamento, -1) << "what a document has does not come from the customer";
    form.esegui(Comando::Righe);
    EXPECT_EQ(contesto.navigatore.mostrati.last(), Schermo::Borftex);
}

TEST_F(DocumentForm, RigheIva_EtichetteScorrimentoETotali) {
    contesto.tabelle.aliquote[1].aliquota = u" 22 "_s;
    contesto.tabelle.aliquote[5].aliquota = u"4"_s;
    contesto.tabelle.esenzioni[2] = {u"Art. 15"_s, u"x"_s};
    contesto.tabelle.esenzioni[5] = {u"Art. 8"_s, u"Cessioni UE"_s};
    nuovo();
    ImportiIva& iva = form.importiIva();
    EXPECT_EQ(iva.etichetta(0, VoceIva::Imponibile), u"Aliquota iva 22%");
    EXPECT_EQ(iva.etichetta(1, VoceIva::Imponibile), u"Non definito") << "a caption of one character is none";
    EXPECT_EQ(iva.etichetta(1, VoceIva::Esente), u"Art. 15");
    EXPECT_EQ(iva.etichetta(4, VoceIva::Imponibile), u"Cessioni UE");
    EXPECT_EQ(iva.totale(ImportiIva::Totale::Documento), u" ");
    iva.cambia(1, VoceIva::Imponibile, u"1000,505"_s);
    iva.scorri(9);
    EXPECT_EQ(iva.finestra().prima(), 5);
    EXPECT_EQ(iva.etichetta(0, VoceIva::Imponibile), u"Cessioni UE");
    iva.cambia(7, VoceIva::Esente, u"50"_s);
    iva.cambia(7, VoceIva::Imposta, u"2x"_s);
    EXPECT_EQ(double{documento.coppia.fte.impon[1]}, 1000.505) << "typed amounts are not rounded";
    EXPECT_EQ(double{documento.coppia.f2e.esen[3]}, 50);
    EXPECT_EQ(iva.testo(7, VoceIva::Esente), u"50");
    EXPECT_EQ(iva.testo(6, VoceIva::Esente), u"");
    EXPECT_EQ(iva.totale(ImportiIva::Totale::Imponibile), u" 1.000,51");
    EXPECT_EQ(iva.totale(ImportiIva::Totale::Imposta), u" 2,00");
    EXPECT_EQ(iva.totale(ImportiIva::Totale::Esente), u" 50,00");
    EXPECT_EQ(iva.totale(ImportiIva::Totale::Documento), u" 1.052,51");
    EXPECT_EQ(documento.scadenze.rate[0].importo, u"1052.505");
    form.cambia(u"52.5"_s, &Prospetti::ritenute, 2, &Ritenuta::raimp);
    EXPECT_EQ(documento.scadenze.rate[0].importo, u"1000.005");
    form.cambia(u"900"_s, &Scadenze::rate, 0, &Rata::importo);
    form.cambia(u"10"_s, &Scadenze::provaliq);
    EXPECT_EQ(documento.scadenze.provimp, u"105.05");
    EXPECT_EQ(documento.scadenze.rate[0].importo, u"900") << "a typed instalment stands";
    contesto.tabelle.tipopagamenti[2].codice = u"001002"_s;
    form.cambia(1, &Scadenze::pagamento);
    EXPECT_EQ(documento.scadenze.rate[0].importo, u"500.005");
    EXPECT_EQ(documento.scadenze.rate[1].importo, u"500");
    EXPECT_EQ(documento.scadenze.rate[1].scadenza, u"15/05/2015");
}

TEST_F(DocumentForm, UscitaDallaDataDiEmissione) {
    nuovo();
    form.cambia(u"31122015"_s, &Estremi::data);
    form.cambia(u"mai"_s, &Estremi::datareg);
    form.lasciaData();
    EXPECT_EQ(documento.estremi.data, u"31/12/2015");
    EXPECT_EQ(documento.estremi.datareg, u"31/12/2015");
    EXPECT_EQ(documento.scadenze.rate[0].scadenza, u"31/01/2016");
    EXPECT_EQ(documento.prospetti.terminemese + documento.prospetti.termineanno, u"122016");
    form.cambia(u"31/02/2016"_s, &Estremi::data);
    form.lasciaData();
    EXPECT_EQ(documento.scadenze.rate[0].scadenza, u"31/01/2016");
    form.cambia(u"01/03/2016"_s, &Estremi::data);
    form.lasciaData();
    EXPECT_EQ(documento.estremi.datareg, u"31/12/2015") << "a valid date stays";
    form.cambia(u"20/06/2016"_s, &Scadenze::rate, 0, &Rata::scadenza);
    form.lasciaData();
    EXPECT_EQ(documento.scadenze.rate[0].scadenza, u"20/06/2016") << "the date of issue is the same";
}

TEST_F(DocumentForm, AvvisoSulNumeroCambiato) {
    nuovo();
    form.cambia(u"99"_s, &Estremi::numero);
    form.lasciaNumero();
    EXPECT_EQ(testi(), QStringList()) << "a new document has no PDF yet";
    esistente(documentoDi(cliente, u"7"_s, 100, 22));
    form.cambia(u" 7 "_s, &Estremi::numero);
    form.lasciaNumero();
    EXPECT_EQ(testi(), QStringList());
    form.cambia(u"8"_s, &Estremi::numero);
    form.lasciaNumero();
    form.lasciaNumero();
    EXPECT_EQ(
        testi(),
        QStringList(u"E' stato modificato il numero del documento. Nel caso abbiate generato un documento "
                    "PDF, ristampate il documento moficato oppure selezionate un diverso file PDF"_s));
    EXPECT_EQ(contesto.operatore.messaggi[0].icona, Icona::Stop);
}

TEST_F(DocumentForm, UnNumeroUsatoDueVolteSiVedeSubito) {
    azienda.documento(documentoDi(cliente, u"0041/a"_s, 100, 22));
    CoppiaFte eliminata = documentoDi(cliente, u"50"_s, 100, 22);
    eliminata.fte.annullata = 1;
    azienda.documento(eliminata);
    esistente(documentoDi(cliente, u"7"_s, 100, 22));
    const auto avviso = [this](const QString& numero) {
        form.cambia(numero, &Estremi::numero);
        return form.avvisoNumero();
    };
    EXPECT_EQ(avviso(u"7"_s), QString()) << "the document's own";
    EXPECT_EQ(avviso(u"41/A"_s), u"Già usato dal documento 0041/a del 15/03/2015"_s);
    form.cambia(u"15/03/16"_s, &Estremi::data);
    EXPECT_EQ(form.avvisoNumero(), QString()) << "another year";
    form.cambia(u"151215"_s, &Estremi::data);
    EXPECT_NE(form.avvisoNumero(), QString());
    form.cambia(3, &Estremi::registro);
    EXPECT_EQ(form.avvisoNumero(), QString()) << "another VAT register";
    form.cambia(0, &Estremi::registro);
    EXPECT_EQ(avviso(u"50"_s) + avviso({}), QString());
    form.cambia(u"31/02/2015"_s, &Estremi::data);
    EXPECT_EQ(avviso(u"41/A"_s), QString());
}

TEST_F(DocumentForm, LeAnticipazioniStannoFuoriDalleScadenze) {
    nuovo();
    documento.dddp[3].anticipazioni = 75;
    EXPECT_FALSE(form.anticipazioniFuori()) << "no fee bill";
    documento.coppia.fte.parcella = 2;
    EXPECT_TRUE(form.anticipazioniFuori());
    documento.dddp[3].anticipazioni = 0;
    EXPECT_FALSE(form.anticipazioniFuori());
}

TEST_F(DocumentForm, IvaDifferitaRifiutataDalRegime) {
    nuovo();
    EXPECT_TRUE(form.mostraProspetto(Prospetto::IvaDifferita));
    EXPECT_TRUE(form.mostraProspetto(Prospetto::Ritenute));
    contesto.tabelle.esenzioni[0].testo = u"00"_s;
    EXPECT_FALSE(form.mostraProspetto(Prospetto::IvaDifferita));
    EXPECT_EQ(form.prospetto(), Prospetto::Ritenute);
    EXPECT_EQ(testi(),
              QStringList(u"Il regime iva preselezionato non prevede l'iva ad esigibilità differita"_s));
}

TEST_F(DocumentForm, FatturaIntegrata_UltimaRigaConImposta) {
    contesto.tabelle.tipiiva[0] = u"2"_s;
    contesto.tabelle.tipiiva[16] = u"00100000000 1"_s;
    contesto.tabelle.tipiiva[4] = u"0020000000 1"_s;
    CoppiaFte coppia = documentoDi(cliente, u"7"_s, 100, 22);
    coppia.fte.iva[2] = 5;
    const auto linea = [&](double resy2) {
        coppia.f2e.resy2 = resy2;
        esistente(coppia);
        return form.integrata();
    };
    EXPECT_EQ(linea(0), u"");
    EXPECT_EQ(linea(0.5), u"") << "row 0 has no third character";
    EXPECT_EQ(linea(4.9), u"Fattura integrata operazione intracomunitaria");
    EXPECT_EQ(linea(1e300), u"Fattura integrata operazione reverse charge");
    coppia.f2e.iva[3] = 1;
    EXPECT_EQ(linea(4), u"Fattura integrata operazione reverse charge");
    coppia.fte.iva[2] = 0;
    coppia.f2e.iva[3] = 0;
    EXPECT_EQ(linea(0.5), u"Fattura integrata operazione intracomunitaria")
        << "row 1 without looking at its tax";
    nuovo();
    EXPECT_EQ(form.integrata(), u"");
}

TEST_F(DocumentForm, IlMovimentoDiUnDocumentoNuovoNonNeSostituisceUno) {
    sessione.modificamovimento = true; // left by the document before
    nuovo();
    form.esegui(Comando::Salva);
    EXPECT_FALSE(sessione.modificamovimento || sessione.righelette || sessione.documentoletto);
    EXPECT_EQ(contesto.navigatore.mostrati, QList{Schermo::Borftec});
    EXPECT_EQ(documento.recordfattura, 1);
}

TEST_F(DocumentForm, DopoIlSalvataggio) {
    CoppiaFte coppia = documentoDi(cliente, u"7"_s, 100, 22);
    coppia.fte.rata[3] = 30;
    esistente(coppia);
    form.prendiFuoco();
    form.esegui(Comando::Salva);
    EXPECT_TRUE(contesto.navigatore.mostrati.isEmpty() && sessione.documentoletto);
    EXPECT_EQ(form.prendiFuoco()->indice, 3);
    form.cambia(u"30/04/2015"_s, &Scadenze::rate, 3, &Rata::scadenza);
    contesto.operatore.risposte = {true};
    form.esegui(Comando::Salva);
    EXPECT_TRUE(sessione.listadaaggiornare);
    EXPECT_FALSE(sessione.documentoletto || sessione.righelette);
    EXPECT_EQ(registrazioni.chiamate, QStringList(u"movimento"_s));
    EXPECT_TRUE(sessione.modificamovimento);
    riapri();
    contesto.operatore.risposte = {false, false, true};
    form.esegui(Comando::Salva);
    riapri();
    form.esegui(Comando::Elimina);
    EXPECT_TRUE(sessione.documentoletto) << "not wanted after all";
    form.esegui(Comando::Elimina);
    EXPECT_EQ(contesto.navigatore.mostrati, (QList{Schermo::Borftec, Schermo::Borfte, Schermo::Borfte}));
    EXPECT_EQ(contesto.archivio.fte.leggi(1).annullata, 1);
}

TEST_F(DocumentForm, UscireChiedeSoloSeQualcosaSiPerde) {
    esistente(documentoDi(cliente, u"7"_s, 100, 22));
    form.esegui(Comando::Righe);
    form.attiva();
    form.esegui(Comando::Esci);
    EXPECT_TRUE(contesto.operatore.domande.isEmpty()) << "the lines were only looked at";
    EXPECT_EQ(contesto.navigatore.mostrati.back(), Schermo::Borfte);

    const auto chiede = [this](const std::function<void()>& modifica) {
        contesto.operatore.domande.clear();
        contesto.operatore.rispostaSolita = false;
        riapri();
        modifica();
        contesto.navigatore.mostrati.clear();
        form.esegui(Comando::Esci);
        EXPECT_EQ(contesto.operatore.domande.value(0).predefinita, Predefinita::No);
        EXPECT_EQ(contesto.operatore.domande.value(0).testo,
                  u"Le modifiche non registrate andranno perse. Uscire comunque?"_s);
        return contesto.operatore.domande.size() == 1 && contesto.navigatore.mostrati.isEmpty() &&
               sessione.documentoletto;
    };
    EXPECT_TRUE(chiede([this] { form.cambia(u"8"_s, &Estremi::numero); }));
    EXPECT_TRUE(chiede([this] { form.importiIva().cambia(0, VoceIva::Esente, u"1"_s); }));
    EXPECT_TRUE(chiede([this] { form.cambia(u"5"_s, &Prospetti::ritenute, 0, &Ritenuta::raimp); }));
    EXPECT_TRUE(chiede([this] { documento.ddd[3].descrizione = u"confirmed in the lines"_s; }));
    EXPECT_TRUE(chiede([this] { documento.testata.cliente.banca = u"typed in the head"_s; }));
    contesto.operatore.rispostaSolita = true;
    form.esegui(Comando::Esci);
    EXPECT_EQ(contesto.navigatore.mostrati.back(), Schermo::Borfte);
}

TEST_F(DocumentForm, CioCheEStampatoMaNonRegistratoSiDice) {
    esistente(documentoDi(cliente, u"7"_s, 100, 22));
    sessione.documentoletto = sessione.righelette = false;
    conStampa.attiva();
    conStampa.esegui(Comando::Stampa);
    EXPECT_TRUE(testi().isEmpty());
    conStampa.cambia(u"8"_s, &Estremi::protocollo);
    conStampa.esegui(Comando::Stampa);
    EXPECT_EQ(testi().size(), 1);
    stampato = false;
    conStampa.esegui(Comando::Stampa);
    EXPECT_EQ(testi().size(), 1) << "nothing was printed";
}

TEST_F(DocumentForm, LEliminazioneDiceQualeDocumentoEdHaNo) {
    contesto.operatore.rispostaSolita = false;
    esistente(documentoDi(cliente, u"7"_s, 1000, 220));
    documento.testata.cliente.sede.citta = u"Lodi"_s;
    documento.prospetti.ritenute[0].raimp = u"200"_s;
    form.esegui(Comando::Elimina);
    ASSERT_EQ(contesto.operatore.domande.size(), 1);
    const Messaggio& domanda = contesto.operatore.domande[0];
    EXPECT_EQ(domanda.testo, u"Fattura 7 del 15/03/2015 - Rossi, Lodi - netto a pagare 1.020,00\n\n"
                             "Sei proprio sicuro?"_s);
    EXPECT_EQ(domanda.predefinita, Predefinita::No);
}

} // namespace
} // namespace bor
