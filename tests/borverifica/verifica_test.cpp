// The check of an archive: silent on a sound company, and one defect at a time.
#include "archive/diario.h"
#include "archive/fpa.h"
#include "borverifica/verifica.h"
#include "posting/borftec.h"
#include "posting/saldi.h"
#include "posting/scarico.h"
#include "support/azienda.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

#include <functional>
#include <limits>
#include <random>

using namespace Qt::StringLiterals;

namespace bor::verifica {
namespace {

class VerificaTest : public testing::Test {
protected:
    /// Two goods invoices with lines, movement and, the first one, a warehouse row.
    VerificaTest() {
        azienda.cliente(u"Rossi Mario"_s);
        azienda.cliente(u"Bianchi"_s);
        Art vite = articoloDi(u"VITE"_s, u"Vite"_s, 10, 1);
        vite.barcode.set(u"80012");
        azienda.articolo(vite);
        conto(u"01010001", u"Clienti", 244, 0);
        conto(u"0007010001", u"Ricavi", 0, 244);
        Disco disco;
        Archivio a(azienda.percorsi(), disco, 7);
        a.apri();
        Srb srb;
        srb.barcode.set(u"80012");
        srb.recordart = 1;
        a.srb.scrivi(1, srb);
        fattura(u"1"_s, 42078.25, 1);
        fattura(u"2"_s, 42079.25, 2);
        modifica([](Archivio& ar) {
            Tot tot = ar.leggiTot(Conta::Fte);
            tot.progressivo = 5;
            ar.scriviTot(Conta::Fte, tot);
        });
        ContestoDiProva prova(azienda);
        metti(prova, scarico());
    }
    static void metti(ContestoDiProva& prova, const Documento& documento) {
        inRaffica(prova.archivio, [&](Raffica& r) { mettiscarico(documento, prova.contesto, r); });
    }
    static void togli(ContestoDiProva& prova, const Documento& documento) {
        inRaffica(prova.archivio, [&](Raffica& r) { togliscarico(documento, r); });
    }
    Documento scarico() const {
        Documento documento;
        documento.coppia.fte.stamp = 42078.25;
        documento.estremi.numero = u"1"_s;
        documento.estremi.datareg = u"15/03/2015"_s;
        documento.ddd[0] = {.recart = 1, .codice = u"VITE"_s, .iva = 1, .quantita = 3, .prezzo = 33.332};
        return documento;
    }
    void conto(QStringView codice, QStringView descrizione, double dare, double avere) {
        Con con = vuoto<Con>();
        con.codice.set(codice);
        con.descrizione.set(descrizione);
        con.progressivodare = dare;
        con.progressivoavere = avere;
        modifica([&](Archivio& a) { aggiungi(a, a.con, Conta::Con, con); });
    }
    void fattura(const QString& numero, double stamp, float nfile) {
        CoppiaFte coppia = documentoDi(1, numero, 100, 22);
        coppia.fte.stamp = stamp;
        coppia.fte.nfile = nfile;
        azienda.documento(coppia);
        azienda.scrivi(u"f%1"_s.arg(nfile), "1\r\n");
        Gio gio = vuoto<Gio>();
        gio.data.set(u"20150315");
        gio.voce[0] = {.segno = Intero(0), .conto = testoConto(u"1010001"), .importo = Reale(122.0)};
        gio.voce[1] = {.segno = Intero(1), .conto = testoConto(u"7010001"), .importo = Reale(122.0)};
        gio.riferimentofattura = stamp;
        modifica([&](Archivio& a) { aggiungi(a, a.gio, Conta::Gio, gio); });
    }
    static Text<8> testoConto(QStringView codice) {
        Text<8> testo;
        testo.set(codice);
        return testo;
    }
    void modifica(const std::function<void(Archivio&)>& cambia) const {
        Disco disco;
        Archivio archivio(azienda.percorsi(), disco, 7);
        archivio.apri();
        cambia(archivio);
    }
    void modificaFte(int n, const std::function<void(CoppiaFte&)>& cambia) const {
        modifica([&](Archivio& a) {
            CoppiaFte coppia;
            a.fte.leggi(n, coppia.fte);
            a.f2e.leggi(n, coppia.f2e);
            cambia(coppia);
            a.scrivi(n, coppia);
        });
    }
    QStringList rilievi() const {
        Disco disco;
        Archivio archivio(azienda.percorsi(), disco, 7);
        archivio.apri(Apertura::SolaLettura);
        QStringList testi;
        for (const Discordanza& d : verificaArchivio(archivio))
            testi.append(d.testo());
        return testi;
    }

    std::string trovate() const { return rilievi().join(u'\n').toStdString(); }

    AziendaDiProva azienda;
};

TEST_F(VerificaTest, DiUnAziendaSanaNonDiceNullaENonToccaNulla) {
    QFile::remove(azienda.percorso(u"borlano.prx"_s));
    const auto stato = [this] {
        QMap<QString, QByteArray> file;
        for (const QString& nome : QDir(azienda.percorso({})).entryList(QDir::Files))
            file[nome] = azienda.leggi(nome);
        return file;
    };
    const auto prima = stato();
    EXPECT_EQ(trovate(), "");
    EXPECT_EQ(stato(), prima);
    EXPECT_TRUE(prima.contains(u"borlano.fte"_s));

    Disco disco;
    RecordFile<Fte> file(disco);
    ASSERT_TRUE(file.apri(azienda.percorso(u"borlano.fte"_s), Apertura::SolaLettura));
    EXPECT_FALSE(file.scrivi(1, vuoto<Fte>()));
}

TEST_F(VerificaTest, ContatoriELunghezze) {
    modifica([](Archivio& a) {
        a.scriviTot(Conta::Con, {.numero = Intero(3)});
        a.scriviTot(Conta::Gio, {.numero = Intero(1)});
        a.scriviTot(Conta::Age, {.numero = Intero(-5)});
    });
    azienda.scrivi(u"borlano.mag"_s, azienda.leggi(u"borlano.mag"_s) + "xyz");
    EXPECT_EQ(rilievi().first(4).join(u'\n').toStdString(),
              "ERRORE  borlano.con: il contatore dice 3 record, il file ne contiene 2\n"
              "AVVISO  borlano.mag: il file termina con 3 byte di un record incompleto\n"
              "INFO    borlano.gio: 1 record oltre il contatore (1): resti di un riordino o di un "
              "salvataggio interrotto, che nessuno legge\n"
              "ERRORE  borlano.age: il contatore è negativo (-5)");
}

TEST_F(VerificaTest, DocumentiSenzaClienteRigheOSecondaMeta) {
    modificaFte(1, [](CoppiaFte& c) { c.fte.cliente = 9; });
    modificaFte(2, [](CoppiaFte& c) {
        c.fte.nfile = 3.0F;
        c.f2e.marca = 0;
    });
    EXPECT_EQ(trovate(),
              "ERRORE  fattura n. 1 (record 1): il cliente 9 non c'è\n"
              "AVVISO  fattura n. 2 (record 2): il file delle righe f3 non c'è: le righe non sono ancora "
              "registrate, o sono andate perse\n"
              "AVVISO  fattura n. 2 (record 2): la seconda metà in borlano.f2e non è mai stata scritta "
              "(marca 0)\n"
              "AVVISO  f2: è un file delle righe che nessun documento usa");
}

TEST_F(VerificaTest, FileDelleRigheVecchiCondivisiEAssenti) {
    modificaFte(1, [](CoppiaFte& c) {
        c.fte.numero.set(u"1/A");
        c.fte.nfile = 0.0F;
    });
    QFile::remove(azienda.percorso(u"f1"_s));
    EXPECT_EQ(trovate(), "INFO    fattura n. 1/A (record 1): non ha un file delle righe");
    azienda.scrivi(u"FTR1.A15"_s, "1\r\n");
    EXPECT_EQ(trovate(), "");
    modificaFte(1, [](CoppiaFte& c) { c.fte.nfile = 2.0F; });
    EXPECT_EQ(trovate(),
              "ERRORE  fattura n. 2 (record 2): il file delle righe f2 è anche del documento con record 1");
}

TEST_F(VerificaTest, FattureElettroniche) {
    modificaFte(1, [](CoppiaFte& c) { c.f2e.fpa = std::numeric_limits<double>::quiet_NaN(); });
    modificaFte(2, [](CoppiaFte& c) { c.f2e.fpa = 4.0; });
    EXPECT_EQ(
        trovate(),
        "ERRORE  fattura n. 1 (record 1): il riferimento alla fattura elettronica è guasto\n"
        "ERRORE  fattura n. 2 (record 2): il file della fattura elettronica fpa4 non c'è\n"
        "AVVISO  fattura n. 2 (record 2): la fattura elettronica fpa4 supera il contatore: una prossima la "
        "può sovrascrivere");
    modificaFte(1, [](CoppiaFte& c) { c.f2e.fpa = 4.0; });
    modifica([](Archivio& a) { a.scriviTot(Conta::Fpa, {.numero = Intero(4)}); });
    azienda.scrivi(u"fpa4"_s, QByteArray(sizeof(Fpa), ' '));
    EXPECT_EQ(trovate(), "ERRORE  fattura n. 2 (record 2): i dati della fattura elettronica fpa4 "
                         "sono anche del documento con record 1");
}

TEST_F(VerificaTest, MovimentiEDocumentiSenzaLAltro) {
    modificaFte(1, [](CoppiaFte& c) { c.fte.stamp = 50000.5; });
    EXPECT_EQ(trovate(), "AVVISO  movimento 1 del 15/03/2015, \"\": il suo documento non c'è\n"
                         "AVVISO  fattura n. 1 (record 1): non ha un movimento contabile\n"
                         "AVVISO  riga di magazzino 1 (FT 1): il suo documento non c'è o è stato eliminato");
    modificaFte(1, [](CoppiaFte& c) { c.fte.stamp = 42079.25; });
    EXPECT_TRUE(rilievi().contains(u"ERRORE  fattura n. 1 (record 1): ha lo stesso riferimento a movimenti e "
                                   u"magazzino di altri documenti: "
                                   "fattura n. 2 (record 2)"_s));
}

TEST_F(VerificaTest, UnMovimentoDiversoDalDocumento) {
    modificaFte(1, [](CoppiaFte& c) { c.fte.impon[0] = 90; });
    EXPECT_EQ(trovate(),
              "AVVISO  fattura n. 1 (record 1): il movimento contabile 1 differisce dal documento di 10,00");
    modificaFte(1, [](CoppiaFte& c) { c.fte.parcella = 1; });
    EXPECT_FALSE(QString::fromStdString(trovate()).contains(u"differisce"_s)) << "it may have advances";
}

TEST_F(VerificaTest, ProgressiviDeiConti) {
    modifica([](Archivio& a) {
        Con conto = a.con.leggi(1);
        conto.progressivodare += 1.5;
        a.con.scrivi(1, conto);
    });
    EXPECT_EQ(trovate(), "ERRORE  conto 01010001 Clienti: i progressivi differiscono da quanto spiegano i "
                         "movimenti: dare 1,50, avere 0,00");
}

TEST_F(VerificaTest, QuelloCheLEliminazioneLasciaNeiContiEDettoAParte) {
    modifica([](Archivio& a) {
        Gio gio = a.gio.leggi(2);
        inRaffica(a, [&](Raffica& r) { stornaconti(r, gio); });
        gio.cancellato = 1;
        a.gio.scrivi(2, gio);
        // A movement that is only replaced leaves nothing behind.
        Gio altro = a.gio.leggi(1);
        inRaffica(a, [&](Raffica& r) { applicaconto(r, altro.voce[0]); });
        altro.voce[0].conto = testoConto(u"99999999");
        a.gio.scrivi(1, altro);
    });
    modificaFte(2, [](CoppiaFte& c) { c.fte.annullata = 1; });
    QFile::remove(azienda.percorso(u"f2"_s));
    EXPECT_EQ(trovate(),
              "AVVISO  movimento 1: conti che non esistono: 99999999\n"
              "INFO    conto 01010001 Clienti: lasciato nei progressivi da movimenti eliminati: dare "
              "122,00, avere -122,00\n"
              "INFO    conto 0007010001 Ricavi: lasciato nei progressivi da movimenti eliminati: dare "
              "-122,00, avere 122,00");
}

TEST_F(VerificaTest, VendutoDegliArticoli) {
    {
        ContestoDiProva prova(azienda);
        for (int giro = 0; giro < 5; ++giro) {
            togli(prova, scarico());
            metti(prova, scarico());
        }
        EXPECT_NEAR(prova.archivio.art.leggi(1).venduto2, 100.02, 1e-6);
        togli(prova, scarico());
        Documento nota = scarico();
        nota.coppia.fte.tipo = 1;
        metti(prova, nota);
    }
    // Taken back without the rounding with which they went in: what that leaves is no fault.
    EXPECT_EQ(trovate(), "");
    modifica([](Archivio& a) {
        Art vite = a.art.leggi(1);
        vite.venduto += 2;
        a.art.scrivi(1, vite);
    });
    EXPECT_EQ(trovate(), "INFO    articolo VITE: venduto -1 per -99,98, le righe di magazzino dei "
                         "documenti dicono -3 per -99,98");
}

TEST_F(VerificaTest, ConUnCaricoGiacenzaEVendutoSonoCerti) {
    modifica([](Archivio& a) {
        Mag carico = vuoto<Mag>();
        carico.articolo = 1;
        carico.quantita = 100.0;
        aggiungi(a, a.mag, Conta::Mag, carico);
        Art vite = a.art.leggi(1);
        vite.giacenza += 100;
        a.art.scrivi(1, vite);
    });
    EXPECT_EQ(trovate(), "");
    modifica([](Archivio& a) {
        Art vite = a.art.leggi(1);
        vite.giacenza -= 2;
        vite.venduto += 2;
        a.art.scrivi(1, vite);
    });
    EXPECT_EQ(trovate(), "ERRORE  articolo VITE: venduto 5 per 100,00, le righe di magazzino dei documenti "
                         "dicono 3 per 100,00\n"
                         "ERRORE  articolo VITE: giacenza 95, le righe di magazzino dicono 97");
    modifica([](Archivio& a) {
        Mag carico = a.mag.leggi(2);
        carico.cancellato = 1;
        a.mag.scrivi(2, carico);
    });
    EXPECT_EQ(rilievi().filter(u"INFO"_s).size(), 2) << "another module may have loaded and sold";
    EXPECT_EQ(rilievi().size(), 2);
}

TEST_F(VerificaTest, QuelloCheLEditorDeiMovimentiPermetteNonEUnErrore) {
    ContestoDiProva prova(azienda);
    Documento documento;
    documento.coppia.fte.stamp = 42078.25;
    documento.recordfattura = 1;
    prova.sessione.modificamovimento = true;
    Borftec editor(prova.contesto, documento);
    Movimento movimento;
    movimento.data = u"15/03/2015"_s;
    movimento.righe[0] = {.conto = {u"01"_s, u"01"_s, u"0001"_s}, .dare = u"-5"_s};
    movimento.righe[1] = {.conto = {u"07"_s, u"01"_s, u"0001"_s}, .dare = u"10"_s, .avere = u"5"_s};
    editor.prepara(movimento);
    editor.salva();
    ASSERT_TRUE(prova.operatore.messaggi.isEmpty());
    EXPECT_EQ(rilievi().filter(u"un importo negativo, o dare e avere nella stessa riga"_s).size(), 2);
    EXPECT_EQ(rilievi().filter(u"ERRORE"_s).size(), 0);
}

TEST_F(VerificaTest, RestiDiUnaScritturaInterrotta) {
    azienda.scrivi(u"borlano.rip"_s, QByteArray(300, '\0'));
    azienda.scrivi(u"borlano.$$$"_s, "copy of a reorder");
    EXPECT_EQ(trovate(), "");
    azienda.scrivi(u"borlano.rip"_s, "BORRIP01");
    azienda.scrivi(u"f3.AbCdEf"_s, "1\r\n");
    azienda.scrivi(u"p2"_s, "1\r\n");
    modifica([](Archivio& a) {
        Tot tot = a.leggiTot(Conta::Fte);
        tot.progressivo = 1;
        a.scriviTot(Conta::Fte, tot);
    });
    EXPECT_EQ(trovate(),
              "ERRORE  borlano.tot: l'ultimo file delle righe dato è il 1, ma un documento ha il 2: "
              "un documento nuovo può prendere le righe di un altro\n"
              "AVVISO  p2: è un file delle righe che nessun documento usa\n"
              "AVVISO  borlano.rip: è a metà: la registrazione che prepara non era cominciata\n"
              "AVVISO  f3.AbCdEf: è rimasto da una scrittura interrotta");
}

TEST_F(VerificaTest, UnaRegistrazioneAMetaEICambiamentiDiAltri) {
    const QByteArray conti = azienda.leggi(u"borlano.con"_s);
    const qsizetype lungo = sizeof(Con);
    const auto voce = [&](int n, const QByteArray& prima) {
        return VoceDiario{2, n, prima, QByteArray(lungo, '9')};
    };
    azienda.scrivi(u"borlano.rip"_s,
                   codifica({u"fattura 3 del 15/03/2015"_s,
                             {voce(1, conti.first(lungo)), voce(2, QByteArray(lungo, '7'))}}));
    const QStringList trovati = rilievi();
    EXPECT_TRUE(trovati.contains(u"ERRORE  borlano.rip: una registrazione è rimasta a metà (fattura 3 del "
                                 u"15/03/2015): archivio e contatori la aspettano"_s))
        << qPrintable(trovati.join(u'\n'));
    EXPECT_EQ(trovati.filter(u"borlano.con n. "_s).size(), 1);
    EXPECT_EQ(trovati.filter(u"borlano.con n. 2: un altro programma"_s).size(), 1);
}

TEST_F(VerificaTest, UnDocumentoEliminatoCheLasciaMovimentoERigheOCheDivideIlRiferimento) {
    modificaFte(1, [](CoppiaFte& c) { c.fte.annullata = 1; });
    QFile::remove(azienda.percorso(u"f1"_s));
    EXPECT_EQ(trovate(), "AVVISO  movimento 1 del 15/03/2015, \"\": il suo documento è stato eliminato\n"
                         "AVVISO  riga di magazzino 1 (FT 1): il suo documento non c'è o è stato eliminato");
    modificaFte(2, [](CoppiaFte& c) { c.fte.stamp = 42078.25; });
    EXPECT_TRUE(rilievi().contains(u"ERRORE  fattura n. 2 (record 2): ha lo stesso riferimento a movimenti e "
                                   u"magazzino di altri documenti: fattura n. 1 (record 1)"_s));
}

TEST_F(VerificaTest, Indici) {
    modifica([](Archivio& a) {
        std::array<Src, 2> voci;
        a.src.leggiBlocco(1, voci);
        voci[0].recordcli = 77;
        a.src.scrivi(1, voci[1]);
        a.src.scrivi(2, voci[0]);
        Srb srb = a.srb.leggi(1);
        srb.barcode.set(u"999");
        a.srb.scrivi(1, srb);
    });
    EXPECT_EQ(trovate(),
              "ERRORE  borlano.src, voce 2: \"Bianchi\" è fuori ordine: chi lo cerca non lo trova\n"
              "ERRORE  borlano.src, voce 2: punta al record 77, che non c'è\n"
              "AVVISO  cliente Bianchi (record 2): manca nell'indice borlano.src\n"
              "AVVISO  borlano.srb, voce 1: l'articolo 1 ha un altro codice a barre");
}

TEST_F(VerificaTest, NumeriDoppiEMancantiPerAnnoERegistro) {
    const auto documento = [this](const QString& numero, QStringView data, int registro, int annullata) {
        CoppiaFte coppia = documentoDi(1, numero, 1, 0);
        coppia.fte.datadoc.set(data);
        coppia.fte.registro = static_cast<std::int16_t>(registro);
        coppia.fte.annullata = static_cast<std::int16_t>(annullata);
        azienda.documento(coppia);
    };
    documento(u"002"_s, u"20150401", 0, 0);
    documento(u"2/A"_s, u"20150401", 0, 0);
    documento(u"2"_s, u"20150401", 1, 0);
    documento(u"2"_s, u"20160401", 12, 0);
    documento(u"4"_s, u"20150401", 0, 1);
    documento(u"8"_s, u"20150401", 0, 0);
    documento(u"9E99999"_s, u"20150401", 0, 0);
    documento(u"3"_s, u"20150230", 0, 0);
    documento(QString(), u"20150401", 0, 0);
    EXPECT_EQ(rilievi().filter(u"non ha un file delle righe"_s).size(), 8);
    EXPECT_EQ(rilievi().filter(QRegularExpression(u"numer|data"_s)).join(u'\n').toStdString(),
              "AVVISO  fattura n. 3 (record 10): la data di emissione non è valida\n"
              "AVVISO  fattura n.  (record 11): non ha un numero\n"
              "ERRORE  anno 2015, registro IVA 0: numero 2 usato 2 volte: fattura n. 2 (record 2), "
              "fattura n. 002 (record 3)\n"
              "AVVISO  anno 2015, registro IVA 0: numeri mancanti: 3, da 5 a 7\n"
              "INFO    anno 2015, registro IVA 0: numeri di documenti eliminati: 4");
}

TEST_F(VerificaTest, FileOstiliNonLoFermano) {
    std::mt19937 caso(7);
    QStringList nomi = QDir(azienda.percorso({})).entryList({u"borlano.*"_s}, QDir::Files);
    nomi.removeAll(u"borlano.rip"_s);
    for (int giro = 0; giro < 200; ++giro) {
        const QString nome = nomi[static_cast<qsizetype>(caso() % static_cast<unsigned>(nomi.size()))];
        QByteArray bytes = azienda.leggi(nome);
        if (giro % 5 == 0)
            bytes.chop(static_cast<qsizetype>(caso() % 20));
        for (int i = 0; i < 12 && !bytes.isEmpty(); ++i)
            bytes[static_cast<qsizetype>(caso() % static_cast<unsigned>(bytes.size()))] =
                static_cast<char>(giro % 2 == 0 ? caso() : 0xFF);
        azienda.scrivi(nome, bytes);
        EXPECT_NE(trovate(), "");
    }
}

int esito(const QString& unita, const QStringList& altri = {}, QByteArray* uscita = nullptr) {
    QProcess programma;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(u"XDG_DATA_HOME"_s, unita + u"/utente"_s);
    programma.setProcessEnvironment(ambiente);
    programma.start(QStringLiteral(BORVERIFICA),
                    QStringList{u"--unita"_s, unita, u"--azienda"_s, u"7"_s} + altri);
    programma.waitForFinished();
    if (uscita)
        *uscita = programma.readAllStandardOutput();
    return programma.exitStatus() == QProcess::NormalExit ? programma.exitCode() : -1;
}

TEST_F(VerificaTest, IlProgrammaDiceLEsitoAChiLoChiama) {
    const QString unita = azienda.percorsi().radiceCorrente();
    EXPECT_EQ(esito(unita), 0);
    modificaFte(1, [](CoppiaFte& c) { c.fte.cliente = 9; });
    EXPECT_EQ(esito(unita), 1);
    QByteArray uscita;
    EXPECT_EQ(esito(unita, {u"--json"_s}, &uscita), 1);
    EXPECT_EQ(QString::fromUtf8(uscita),
              u"{\"dove\":\"fattura n. 1 (record 1)\",\"gravita\":\"errore\",\"motivo\":\"il cliente 9 non "
              u"c'è\",\"rimedio\":\"Aprite il documento, scegliete il cliente nella testata e "
              u"registratelo.\"}\n");
    {
        Disco disco;
        RecordFile<Fte> riordino(disco);
        ASSERT_TRUE(riordino.apri(azienda.percorso(u"borlano.fte"_s), Apertura::Esclusiva));
        EXPECT_EQ(esito(unita), 2);
    }
    EXPECT_EQ(esito(unita + u"/altrove"_s), 2);
}

} // namespace
} // namespace bor::verifica
