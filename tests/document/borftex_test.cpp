// The goods lines form: articles into lines, the road of the keys, moving lines, totals into the document.
#include "document/borftex.h"
#include "document/righeiva.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

using Campo = Borftex::Campo;
using Cella = Borftex::Cella;
using Comando = Borftex::Comando;
using Opzione = Borftex::Opzione;
using Totale = TestiMerce::Totale;

class Righe : public testing::Test {
protected:
    Righe() {
        contesto.tabelle.aliquote[1] = {u"22"_s, {}, {}, {}};
        contesto.tabelle.aliquote[2] = {u"10"_s, u"20"_s, {}, {}};
        contesto.tabelle.esenzioni[3].testo = u"Esente art.10"_s;
        Cli c = clienteDi(u"ROSSI"_s);
        c.sconto1 = 10;
        documento.recordcliente = azienda.cliente(c);
        Art vite = articoloDi(u"VITE"_s, u"Vite a legno"_s, 100, 1);
        vite.listino2 = 50;
        vite.peso = 0.25;
        vite.giacenza = 12;
        azienda.articolo(vite);
        azienda.articolo(articoloDi(u"DADO"_s, u"Dado"_s, 10, 2));
    }
    Riga& ddd(int linea) { return documento.ddd[static_cast<std::size_t>(linea - 1)]; }
    void cliente(int regimeiva) {
        Cli c = contesto.archivio.cli.leggi(1);
        c.regimeiva = static_cast<std::int16_t>(regimeiva);
        contesto.archivio.cli.scrivi(1, c);
    }
    /// Of the first article: in its first line and in its fifth one.
    Prx mettiTesto(QStringView primo) {
        Prx prx = vuoto<Prx>();
        prx.riga[0].set(primo);
        prx.riga[4].set(u"a norma");
        prx.marca = Prx::marcaValida;
        contesto.archivio.prx.scrivi(1, prx);
        return prx;
    }
    void scrivi(Campo campo, int r, const QString& testo) {
        form.entra({campo, r});
        form.cambia({campo, r}, testo);
    }
    /// Types a code and Enter.
    void articolo(int r, const QString& codice) {
        scrivi(Campo::Artic, r, codice);
        form.invio({Campo::Artic, r});
    }
    const Riga& riga(int linea) const { return form.righe().riga(form.finestra().riga(linea)); }
    QStringList codici(int quanti) {
        QStringList c;
        for (int r = 0; r < quanti; ++r)
            c.append(riga(r).codice);
        return c;
    }

    AziendaDiProva azienda;
    ContestoDiProva contesto{azienda};
    Documento documento;
    Borftex form{contesto.contesto, documento};
};

TEST_F(Righe, LeVociEsentiFinisconoConLaDescrizione) {
    contesto.tabelle.esenzioni[4].testo = u"Esente art. 10"_s.leftJustified(100) + u'3';
    EXPECT_EQ(form.testi().vociIva()[15], u"16 Esente art. 10"_s);
    EXPECT_EQ(form.testi().vociIva()[14], u"15 Esente art.10"_s);
}

TEST_F(Righe, ArticoloRiempieLaRigaEPortaAllaQuantita) {
    ddd(1).codice2 = u"S2"_s;
    form.attiva();
    EXPECT_EQ(form.prendiFuoco(), (Cella{Campo::Artic, 0}));
    form.entra({Campo::Artic, 0});
    form.cambia({Campo::Artic, 0}, u"v"_s);
    EXPECT_EQ(form.articoli().posizione(), 1);
    EXPECT_EQ(riga(0).recart, 0) << "nothing is chosen before Enter";
    form.invio({Campo::Artic, 0});
    EXPECT_EQ(form.prendiFuoco(), (Cella{Campo::Quantita, 0}));
    Riga attesa{1, u"S2"_s, u"VITE"_s, u"Vite a legno"_s, u"pz"_s, 0, 0, 1, 0, 100, 0.25};
    EXPECT_EQ(riga(0), attesa);
    form.entra({Campo::Quantita, 0});
    EXPECT_EQ(form.listx(), u"VITE"_s.leftJustified(15) + u" - "_s + u"Vite a legno"_s.leftJustified(80) +
                                u" - Giacenza:12 - Impegnato:0"_s.leftJustified(42) + u"    1"_s);
}

TEST_F(Righe, CodiceAssenteEliminatoOFuoriArchivio) {
    contesto.impostazioni.gnr.barcode = 1;
    Srb voce = vuoto<Srb>();
    voce.barcode.set(u"777");
    voce.recordart = 4000; // points nowhere
    contesto.archivio.srb.scrivi(1, voce);
    contesto.archivio.srb.scrivi(2, voce);
    form.attiva();
    EXPECT_FALSE(form.articoli().visibile());
    articolo(3, u"777"_s);
    form.cambiaOpzione(Opzione::Barcode, false);
    articolo(3, u"BULLONE"_s);
    Art tolto = contesto.archivio.art.leggi(2);
    tolto.eliminato = 1;
    contesto.archivio.art.scrivi(2, tolto);
    articolo(3, u"DADO"_s);
    ASSERT_EQ(contesto.operatore.messaggi.size(), 3);
    for (const Messaggio& m : contesto.operatore.messaggi)
        EXPECT_EQ(m.testo + m.titolo, u"Articolo non esistenteAttenzione"_s);
    EXPECT_EQ(contesto.operatore.messaggi[0].icona, Icona::Stop);
    EXPECT_EQ(form.prendiFuoco(), (Cella{Campo::Artic, 3}));
    EXPECT_EQ(form.testo({Campo::Artic, 3}), u"DADO"_s) << "the code stays to be corrected";
    EXPECT_EQ(riga(3), Riga());
}

TEST_F(Righe, ListinoScorporoERegimeDelCliente) {
    Cli c = contesto.archivio.cli.leggi(1);
    c.listino.set(u"1");
    contesto.archivio.cli.scrivi(1, c);
    form.attiva();
    form.cambiaOpzione(Opzione::Scorporo, true);
    articolo(0, u"VITE"_s);
    EXPECT_EQ(riga(0).prezzo, 61.0);
    // Forced to an exempt code, the box takes the list price as it is; the list goes by the article's code.
    cliente(15);
    contesto.tabelle.aliquote[15] = {u"4"_s, {}, {}, {}};
    form.attiva();
    form.cambiaOpzione(Opzione::Scorporo, true);
    form.cambiaOpzione(Opzione::Listino1, true);
    articolo(0, u"VITE"_s);
    EXPECT_EQ(riga(0).iva, 15);
    EXPECT_EQ(riga(0).prezzo, 100.0);
    form.scegliArticolo(1);
    EXPECT_EQ(riga(0).prezzo, 104.0);
    cliente(25);
    form.attiva();
    articolo(0, u"VITE"_s);
    EXPECT_EQ(riga(0).iva, 1);
}

TEST_F(Righe, TestoAggiuntivoSottoLArticolo_NonOltreLaRiga500) {
    Prx prx = mettiTesto(u" zincata ");
    ddd(2) = {1, u"S2"_s, u"X"_s, u"vecchia"_s, u"kg"_s, 1, 2, 3, 4, 5, 0};
    form.attiva();
    articolo(0, u"VITE"_s);
    EXPECT_EQ(riga(1), (Riga{0, u"S2"_s, {}, u"zincata"_s, {}, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(riga(2).descrizione, u"a norma"_s);
    form.scorri(600);
    EXPECT_EQ(form.finestra().prima(), 489);
    articolo(10, u"VITE"_s);
    EXPECT_EQ(riga(11).descrizione, u"zincata"_s);
    EXPECT_EQ(riga(10).codice, u"VITE"_s);
    EXPECT_EQ(contesto.operatore.messaggi.size(), 1);
    prx.marca = 122;
    contesto.archivio.prx.scrivi(1, prx);
    articolo(11, u"VITE"_s);
    EXPECT_EQ(contesto.operatore.messaggi.size(), 1);
}

TEST_F(Righe, StradaDeiTastiFinoAllaRiga490) {
    form.attiva();
    int passi = 0;
    for (Cella c = *form.prendiFuoco();; ++passi) {
        form.entra(c);
        form.invio(c);
        const auto prossima = form.prendiFuoco();
        if (!prossima)
            break;
        c = *prossima;
    }
    EXPECT_EQ(passi, 490 * 7 - 1);
    EXPECT_EQ(form.finestra().prima() + 11, 490);
}

TEST_F(Righe, VisiteProposteEDefault) {
    form.attiva();
    articolo(0, u"VITE"_s);
    form.entra({Campo::Sc1, 0});
    EXPECT_EQ(form.testo({Campo::Sc1, 0}), u"10"_s);
    EXPECT_EQ(form.testo({Campo::Sc2, 0}), u""_s);
    EXPECT_EQ(form.testi().totale(Totale::Imponibile), u" 90,00"_s);
    form.entra({Campo::Ds, 0});
    EXPECT_EQ(riga(0).recart, 0);
    EXPECT_EQ(form.testo({Campo::Artic, 0}), u""_s);
    EXPECT_EQ(riga(0).prezzo, 100.0) << "a free line keeps its price";
    contesto.impostazioni.gnr.righemodulo.set(u"02");
    scrivi(Campo::Prezzo, 1, u"12,50"_s);
    EXPECT_EQ(riga(1).prezzo, 12.5);
    EXPECT_EQ(form.testo({Campo::Civ, 1}), u"02"_s);
    form.entra({Campo::Civ, 1});
    EXPECT_EQ(form.listaIva(), 1);
    form.scegliIva(14);
    EXPECT_EQ(riga(1).iva, 15);
    EXPECT_EQ(form.prendiFuoco(), (Cella{Campo::Prezzo, 1}));
    EXPECT_EQ(form.testi().vociIva().mid(0, 2),
              (QStringList{u"01 Iva 22%"_s, u"02 Iva 10% - Rit.Acconto 20%"_s}));
    EXPECT_EQ(form.testi().vociIva().value(14), u"15 Esente art.10"_s);
    EXPECT_EQ(form.testi().vociIva().size(), 24);
}

TEST_F(Righe, CercaPerDescrizioneConF1) {
    form.attiva();
    scrivi(Campo::Ds, 0, u"vite a"_s);
    form.esegui(Comando::CercaDescrizione);
    EXPECT_EQ(riga(0).recart, 1);
    EXPECT_EQ(form.prendiFuoco(), (Cella{Campo::Quantita, 0}));
    form.cambiaOpzione(Opzione::Barcode, true);
    scrivi(Campo::Ds, 1, u"dado"_s);
    form.esegui(Comando::CercaDescrizione);
    EXPECT_EQ(riga(1).recart, 0) << "only while the list is open";
}

TEST_F(Righe, F1SenzaAltriArticoliLasciaLaRigaEDiceloSotto) {
    Art tolto = articoloDi(u"VITE2"_s, u"Vite a legno lunga"_s, 7, 1);
    tolto.eliminato = 1;
    azienda.articolo(tolto);
    azienda.articolo(articoloDi(u"VITE3"_s, u"Vite a ferro"_s, 9, 1));
    form.attiva();
    const auto cerca = [&](const QString& testo, int volte) {
        scrivi(Campo::Ds, 0, testo);
        for (int volta = 0; volta < volte; ++volta)
            form.esegui(Comando::CercaDescrizione);
    };
    cerca(u"vite a legno"_s, 2);
    EXPECT_EQ(riga(0).codice, u"VITE"_s) << "the other one that fits is deleted";
    EXPECT_EQ(riga(0).prezzo, 100.0);
    EXPECT_TRUE(form.listx().startsWith(u"Nessun altro articolo"_s));
    cerca(u"vite"_s, 2);
    EXPECT_EQ(riga(0).codice, u"VITE3"_s) << "past the deleted one";
    form.esegui(Comando::CercaDescrizione);
    EXPECT_EQ(riga(0).codice, u"VITE"_s);
    cerca(u"vite a legno l"_s, 1);
    EXPECT_EQ(riga(0).descrizione, u"vite a legno l"_s);
    EXPECT_TRUE(form.listx().startsWith(u"L'articolo trovato è eliminato"_s));
    EXPECT_TRUE(contesto.operatore.messaggi.isEmpty());
}

TEST_F(Righe, InserisceEliminaERiordinaComeLaSuite) {
    const QStringList codiciDocumento{u"C"_s, u"B"_s, u"C"_s, u""_s, u"a"_s, u"A"_s};
    for (int i = 0; i < 6; ++i)
        ddd(i + 1) = {1, {}, codiciDocumento[i], QString::number(i), {}, 0, 0, 1, 1, 1, 0};
    ddd(2).codice2 = u"S2"_s;
    ddd(500).codice = u"ULTIMA"_s;
    form.attiva();
    form.entra({Campo::Quantita, 1});
    form.esegui(Comando::InserisciRiga);
    EXPECT_EQ(codici(3), (QStringList{u"C"_s, u""_s, u"B"_s}));
    EXPECT_EQ(riga(1).codice2 + riga(2).codice2, u"S2S2"_s);
    EXPECT_EQ(form.testi().totale(Totale::Pezzi), u" 6"_s);
    form.esegui(Comando::EliminaRiga);
    EXPECT_EQ(codici(6), codiciDocumento);
    form.esegui(Comando::Riordina);
    EXPECT_EQ(codici(7), (QStringList{u"A"_s, u"B"_s, u"C"_s, u"C"_s, u"a"_s, u""_s, u""_s}));
    // An exchange sort: the two lines of the same code came out the other way round.
    EXPECT_EQ(riga(2).descrizione + riga(3).descrizione, u"20"_s);
    form.scorri(489);
    EXPECT_EQ(riga(11).codice, u""_s) << "the insertion pushed the last line out";
}

TEST_F(Righe, ConfermaPortaRigheETotaliNelDocumento_IndietroNo) {
    form.attiva();
    articolo(0, u"DADO"_s);
    scrivi(Campo::Quantita, 0, u"3"_s);
    form.esegui(Comando::Indietro);
    EXPECT_EQ(documento.ddd[0], Riga());
    EXPECT_EQ(sommaIva(documento.coppia, VoceIva::Imponibile), 0.0);
    scrivi(Campo::Ds, 1, u"  nota  "_s);
    EXPECT_EQ(form.testi().totale(Totale::AliquotaRitenuta) + u' ' + form.testi().totale(Totale::Ritenuta),
              u"20 6"_s);
    form.esegui(Comando::Conferma);
    EXPECT_EQ(documento.ddd[0].quantita, 3.0);
    EXPECT_EQ(documento.ddd[1].descrizione, u"nota"_s);
    EXPECT_EQ(importoIva(documento.coppia, VoceIva::Imponibile, 2), 30.0);
    EXPECT_EQ(importoIva(documento.coppia, VoceIva::Imposta, 2), 3.0);
    EXPECT_EQ(documento.prospetti.ritenute[0].raimp, u"6"_s);
    EXPECT_EQ(contesto.navigatore.mostrati, (QList<Schermo>{Schermo::Borftea, Schermo::Borftea}));
}

TEST_F(Righe, PesoDelleRigheRilettoEQuelloDellUltimoArticolo) {
    contesto.impostazioni.gnr.pesoautomatico = 1;
    documento.testata.trasporto.peso = u"7"_s;
    ddd(1) = {2, {}, u"DADO"_s, {}, {}, 0, 0, 1, 4, 1, 0};
    form.attiva();
    EXPECT_EQ(documento.testata.trasporto.peso, u"7"_s) << "looking at the lines changes nothing";
    articolo(1, u"VITE"_s);
    scrivi(Campo::Quantita, 1, u"4501"_s);
    form.esegui(Comando::Indietro);
    EXPECT_EQ(documento.testata.trasporto.peso, u"7"_s) << "leaving takes the weight back";
    form.attiva();
    form.esegui(Comando::Conferma);
    EXPECT_EQ(documento.testata.trasporto.peso, u"1"_s);
    form.attiva();
    articolo(1, u"VITE"_s);
    scrivi(Campo::Quantita, 1, u"4501"_s);
    form.esegui(Comando::Conferma);
    EXPECT_EQ(documento.testata.trasporto.peso, u"1.126,25"_s);
}

TEST_F(Righe, LoScorporoArrivaConLaConferma_IlLettoreRestaPerTutteLeVisite) {
    form.attiva();
    form.cambiaOpzione(Opzione::Scorporo, true);
    form.cambiaOpzione(Opzione::Barcode, true);
    articolo(0, u"VITE"_s);
    form.esegui(Comando::Indietro);
    EXPECT_FALSE(documento.scorporo);
    form.attiva();
    EXPECT_FALSE(form.opzione(Opzione::Scorporo));
    EXPECT_TRUE(form.opzione(Opzione::Barcode));
    form.cambiaOpzione(Opzione::Scorporo, true);
    form.esegui(Comando::Conferma);
    EXPECT_TRUE(documento.scorporo);
    contesto.impostazioni.gnr.barcode = 1;
    form.cambiaOpzione(Opzione::Barcode, false);
    form.attiva();
    EXPECT_TRUE(form.opzione(Opzione::Scorporo));
    EXPECT_FALSE(form.opzione(Opzione::Barcode));
}

TEST_F(Righe, InvioDopoLUltimoTestoAggiuntivo) {
    mettiTesto(u"zincata");
    form.attiva();
    articolo(0, u"VITE"_s);
    form.invio({Campo::Prezzo, 0});
    EXPECT_EQ(form.prendiFuoco(), (Cella{Campo::Artic, 3}));
    scrivi(Campo::Prezzo, 1, u"5"_s); // no comment any more: the road leads there
    form.invio({Campo::Prezzo, 0});
    EXPECT_EQ(form.prendiFuoco(), (Cella{Campo::Artic, 1}));
    articolo(10, u"VITE"_s);
    form.invio({Campo::Prezzo, 10});
    EXPECT_EQ(form.finestra().prima(), 3) << "the rows scroll by as many as are passed";
    EXPECT_EQ(form.prendiFuoco(), (Cella{Campo::Artic, 11}));
}

} // namespace
} // namespace bor
