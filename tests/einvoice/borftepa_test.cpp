#include "einvoice/fatturadiprova.h"
#include "support/disco_guasto.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(FormFatturaPa, SenzaIDatiDellAziendaTornaAlDocumento) {
    FatturaDiProva f;
    QFile::remove(f.azienda.percorso(u"borlano.fpa"_s));
    f.form.attiva();
    ASSERT_EQ(f.prova.operatore.messaggi.size(), 1);
    EXPECT_EQ(
        f.prova.operatore.messaggi[0].testo,
        u"Non sono ancora stati compilati i quadri proposti dal 'Kit Fatture elettroniche PA': la compilazione di tali quadri è necessaria per la corretta generazione della fattura elettronica PA"_s);
    EXPECT_EQ(f.prova.operatore.messaggi[0].titolo, u"Attenzione"_s);
    EXPECT_EQ(f.prova.operatore.messaggi[0].icona, Icona::Stop);
    EXPECT_EQ(f.prova.navigatore.mostrati, QList{Schermo::Borftea});
    EXPECT_FALSE(QFile::exists(f.azienda.percorso(u"borlano.fpa"_s)));
}

TEST(FormFatturaPa, PropostaDalDocumento) {
    FatturaDiProva f;
    f.documento.testata.trasporto.ddt = u"45"_s;
    f.documento.testata.trasporto.ordine = u"ODA 9"_s;
    f.documento.estremi.esig = true;
    f.rata(1, u"31/05/2015"_s, u"10"_s);
    f.tipoPagamento(u'3');
    f.form.attiva();
    EXPECT_EQ(f.form.testo(TestoFpa::Numero), u"12"_s);
    EXPECT_EQ(f.form.testo(DataFpa::Documento), u"15/03/2015"_s);
    EXPECT_EQ(f.form.testo(TestoFpa::NumeroDdt), u"45"_s);
    EXPECT_EQ(f.form.testo(TestoFpa::OrdineNumero), u"ODA 9"_s);
    EXPECT_EQ(f.form.testo(TestoFpa::Progressivo), u"42"_s);
    EXPECT_TRUE(f.form.esig);
    EXPECT_EQ(f.form.scelta(ListaFpa::Condizioni), 0);
    EXPECT_EQ(f.form.scelta(ListaFpa::Modalita), 8);
    f.tipoPagamento(u'4');
    f.form.attiva();
    EXPECT_EQ(f.form.scelta(ListaFpa::Modalita), 1);
}

TEST(FormFatturaPa, LaGenerazioneScriveIDatiEDiceDove) {
    FatturaDiProva f;
    Tot contatore = vuoto<Tot>();
    contatore.numero = 6;
    f.prova.archivio.scriviTot(Conta::Fpa, contatore);
    f.form.attiva();
    f.form.cambia(TestoFpa::ContrattoNumero, u"123456789012345678901234"_s);
    f.form.scegliVettore(4);
    f.form.genera();

    EXPECT_EQ(f.documento.recordfpa, 7);
    EXPECT_EQ(f.prova.archivio.leggiTot(Conta::Fpa).numero, 7);
    const QByteArray bytes = f.azienda.leggi(u"fpa7"_s);
    ASSERT_EQ(bytes.size(), 2421);
    EXPECT_EQ(bytes.mid(33, 6), "UFABCD");
    EXPECT_EQ(bytes.mid(709, 14), "TD0115/03/2015");
    EXPECT_EQ(bytes.mid(773, 76), QByteArray(76, ' '));
    EXPECT_EQ(bytes.mid(849, 6), "42    ");
    EXPECT_EQ(bytes.mid(905, 30), "12345678901234567890          ");
    // A carrier without codes leaves the closing asterisk of the empty ones.
    EXPECT_EQ(bytes.mid(1085, 67), QByteArray(30, ' ') + "*" + QByteArray(15, ' ') + "Corriere senza codici");
    EXPECT_EQ(bytes.mid(1211, 10), "TP02MP1200");
    EXPECT_EQ(f.azienda.leggi(u"borlano.fpa"_s), bytesDi(fpaSocieta()));
    ASSERT_EQ(f.prova.operatore.messaggi.size(), 1);
    EXPECT_EQ(f.prova.operatore.messaggi[0].testo,
              u"Il file IT01234567890_12.xml è stato creato all'interno della cartella \\xml\\"_s);
    EXPECT_EQ(f.prova.operatore.messaggi[0].titolo, u"Fattura elettronica PA"_s);

    f.form.genera();
    EXPECT_EQ(f.prova.archivio.leggiTot(Conta::Fpa).numero, 7);
}

TEST(FormFatturaPa, IlContatoreRicominciaDaUno) {
    FatturaDiProva f;
    Tot contatore = vuoto<Tot>();
    contatore.numero = 32767;
    f.prova.archivio.scriviTot(Conta::Fpa, contatore);
    f.form.attiva();
    f.form.genera();
    EXPECT_EQ(f.documento.recordfpa, 1);
    EXPECT_EQ(f.prova.archivio.leggiTot(Conta::Fpa).numero, 1);
}

TEST(FormFatturaPa, RipristinoDeiDatiGiaInseriti) {
    FatturaDiProva f;
    Fpa d = fpaBianca();
    d.tipodocpa.set(u"TD05");
    d.numerodoc.set(u"99");
    d.causalepagamento.set(u"G");
    d.tiporitenuta.set(u"RT02");
    d.condizionipagamento.set(u"TP03");
    d.modalitapagamento.set(u"MP17");
    d.progressivoinvio.set(u"7");
    d.ricezione.commessa.set(u"RC");
    d.ricezione.data.set(u"01/03/2015");
    d.art73flag.set(u"1");
    d.esigdifferita.set(u"1");
    d.vettorenome.set(u"Trasporti Rapidi");
    f.azienda.scrivi(u"fpa3"_s, bytesDi(d));
    f.documento.recordfpa = 3;
    f.form.attiva();
    EXPECT_EQ(f.form.scelta(ListaFpa::TipoDocumento), 4);
    EXPECT_EQ(f.form.scelta(ListaFpa::Causale), 5);
    EXPECT_EQ(f.form.scelta(ListaFpa::TipoRitenuta), 1); // a row early
    EXPECT_EQ(f.form.scelta(ListaFpa::Condizioni), 2);
    EXPECT_EQ(f.form.scelta(ListaFpa::Modalita), 16);
    EXPECT_EQ(f.form.testo(TestoFpa::Numero), u"99"_s);
    EXPECT_EQ(f.form.testo(TestoFpa::RicezioneCommessa), u"RC"_s);
    EXPECT_EQ(f.form.testo(TestoFpa::Progressivo), u"7"_s);
    EXPECT_EQ(f.form.testo(DataFpa::Documento), QString());
    EXPECT_EQ(f.form.testo(DataFpa::Ricezione), u"01/03/2015"_s);
    EXPECT_TRUE(f.form.art73);
    EXPECT_FALSE(f.form.esig);
    EXPECT_EQ(f.form.nomeVettore(), u"Trasporti Rapidi"_s);

    // Data that are gone are proposed again and get a new number.
    QFile::remove(f.azienda.percorso(u"fpa3"_s));
    f.form.attiva();
    EXPECT_EQ(f.documento.recordfpa, 0);
    EXPECT_EQ(f.form.testo(TestoFpa::Progressivo), u"42"_s);
    EXPECT_EQ(f.form.testo(TestoFpa::RicezioneCommessa), QString());
    EXPECT_EQ(f.form.nomeVettore(), QString());
}

TEST(FormFatturaPa, RigheSenzaCodiceIvaNelSecondoRiepilogo) {
    FatturaDiProva f;
    f.documento.ddd[0].iva = 0;
    f.documento.ddd[1] = {.descrizione = u"B"_s, .iva = 3, .quantita = 1, .prezzo = 1};
    f.form.attiva();
    f.form.genera();
    EXPECT_TRUE(f.xml().contains("<ImponibileImporto>100.00</ImponibileImporto>"));
    f.form.genera();
    EXPECT_TRUE(f.xml().contains("<ImponibileImporto>101.00</ImponibileImporto>"));
}

TEST(FormFatturaPa, DateEInvio) {
    FatturaDiProva f;
    f.form.attiva();
    f.form.cambia(DataFpa::Contratto, u"311214"_s);
    f.form.lasciaData(DataFpa::Contratto);
    EXPECT_EQ(f.form.testo(DataFpa::Contratto), u"31/12/2014"_s);
    f.form.cambia(DataFpa::Contratto, u"31/02/2015"_s);
    EXPECT_FALSE(f.form.dataCompleta(DataFpa::Contratto));
    f.form.lasciaData(DataFpa::Contratto);
    EXPECT_EQ(f.form.testo(DataFpa::Contratto), u"15/03/2015"_s);
    EXPECT_TRUE(f.form.dataCompleta(DataFpa::Contratto));

    EXPECT_EQ(casellaFpa(TestoFpa::RicezioneNumero).dopo, PostoFpa(DataFpa::Ricezione));
    EXPECT_EQ(casellaFpa(DataFpa::Ricezione).dopo, PostoFpa(TestoFpa::RicezioneItem));
    EXPECT_EQ(casellaFpa(TestoFpa::Numero).dopo, PostoFpa(DataFpa::Documento));
    EXPECT_EQ(casellaFpa(DataFpa::Documento).dopo, PostoFpa(TestoFpa::Progressivo));
    EXPECT_EQ(casellaFpa(TestoFpa::Progressivo).dopo, PostoFpa(TestoFpa::NumeroDdt));
    EXPECT_EQ(casellaFpa(TestoFpa::CodiceCig).dopo, PostoFpa(TestoFpa::CodiceCig));
    EXPECT_EQ(casellaFpa(TestoFpa::ContrattoItem).dopo, PostoFpa(TestoFpa::ContrattoCommessa));
}

/// A company whose names nobody finds fault with: the check has nothing to say of its file.
struct FatturaSenzaRilievi : FatturaDiProva {
    explicit FatturaSenzaRilievi(Disco& disco) : FatturaDiProva(societa(), cliente(), disco) {
        form.attiva();
    }

    static Fpa societa() {
        Fpa a = fpaSocieta();
        a.denominazione.set(u"Caffe e Figli S.r.l.");
        a.idcodice.set(u"01234567897");
        a.partitaiva.set(u"01234567897");
        a.codfiscale.set(u"01234567897");
        return a;
    }
    static Cli cliente() {
        Cli c = clienteComune();
        c.sede.ragione1.set(u"Comune di Cantu");
        c.sede.citta.set(u"Cantu");
        c.partitaiva.set(u"01234567897");
        c.codicefiscale.set(u"01234567897");
        return c;
    }
    /// What the check says of the files on disk, one reason a line; "assente" without a file.
    QString controllo() {
        const auto rilievi = form.controlla();
        QStringList motivi;
        for (const Rilievo& r : rilievi.value_or(std::vector<Rilievo>{}))
            motivi << r.motivo;
        return rilievi ? motivi.join(u'\n') : u"assente"_s;
    }
};

TEST(FormFatturaPa, IlControlloSaCheCosaNonESulDisco) {
    DiscoGuasto disco;
    FatturaSenzaRilievi f(disco);
    // The invoice, the counter's log, the counter, the emptied log, the document's data, the company's.
    const int prima = disco.scritture;
    f.form.genera();
    EXPECT_EQ(f.controllo(), QString());
    const int operazioni = disco.scritture - prima;
    QStringList detti;
    for (int guasto = 1; guasto <= operazioni; ++guasto) {
        f.documento.recordfpa = 0;
        f.form.attiva();
        f.form.cambia(TestoFpa::Progressivo, QString::number(guasto));
        disco.ripara();
        disco.guasto = guasto;
        f.form.genera();
        disco.ripara();
        detti << f.controllo();
    }
    EXPECT_TRUE(detti.first().contains(u"IT01234567897_12.xml sul disco non è quello"_s));
    const auto parlaDi = [&](const QString& file) {
        return std::ranges::count_if(detti, [&](const QString& d) {
            return d.contains(u"Il file %1"_s.arg(file)) && d.contains(u"sul disco non è quello"_s);
        });
    };
    EXPECT_GE(parlaDi(u"borlano.tot"_s), 1);
    EXPECT_GE(parlaDi(u"fpa"_s), 1);
    EXPECT_EQ(parlaDi(u"borlano.fpa"_s), 1);
    f.form.genera();
    EXPECT_EQ(f.controllo(), QString()) << "all is well again";
}

TEST(FormFatturaPa, SenzaContatoreNessunNumero) {
    DiscoGuasto disco;
    FatturaSenzaRilievi f(disco);
    disco.illeggibile = u"borlano.tot"_s;
    f.form.genera();
    EXPECT_EQ(f.documento.recordfpa, 0);
    EXPECT_TRUE(f.controllo().contains(u"non ha preso il suo numero"_s));
    disco.ripara();
    EXPECT_EQ(f.prova.archivio.leggiTot(Conta::Fpa).numero, 0);
    EXPECT_EQ(QDir(f.azienda.percorso({})).entryList({u"fpa*"_s}), QStringList());
    f.form.genera();
    EXPECT_EQ(f.documento.recordfpa, 1);
}

TEST(FormFatturaPa, UnaMascheraCambiataDopoNonPassaPerIlFile) {
    FatturaSenzaRilievi f(discoSano());
    f.form.genera();
    f.form.cambia(TestoFpa::CodiceCig, u"Z0512F7A3B"_s);
    EXPECT_TRUE(f.controllo().contains(u"la maschera è cambiata"_s));
    f.form.cambia(TestoFpa::CodiceCig, {});
    EXPECT_EQ(f.controllo(), QString());
    QFile file(f.percorsoXml(u"IT01234567897_12.xml"_s));
    ASSERT_TRUE(file.open(QIODevice::Append) && file.write(" ") == 1);
    file.close();
    EXPECT_TRUE(f.controllo().contains(u"non è quello"_s));
    ASSERT_TRUE(file.remove());
    EXPECT_EQ(f.controllo(), u"assente"_s);
}

TEST(FormFatturaPa, DatiIllegibiliNonSiSovrascrivono) {
    DiscoGuasto disco;
    FatturaSenzaRilievi f(disco);
    f.form.genera();
    const QByteArray scritti = f.azienda.leggi(u"fpa1"_s);
    f.prova.operatore.messaggi.clear();
    disco.illeggibile = u"fpa1"_s;
    f.form.attiva();
    ASSERT_EQ(f.prova.operatore.messaggi.size(), 1);
    EXPECT_TRUE(f.prova.operatore.messaggi[0].testo.contains(u"fpa1"_s));
    EXPECT_EQ(f.prova.navigatore.mostrati, QList{Schermo::Borftea});
    EXPECT_EQ(f.documento.recordfpa, 1);
    EXPECT_EQ(f.azienda.leggi(u"fpa1"_s), scritti);
}

TEST(FormFatturaPa, IDatiDellAziendaTornanoComeSonoAdesso) {
    FatturaDiProva f;
    f.form.attiva();
    Fpa altrove = fpaSocieta();
    altrove.progressivoinvio.set(u"77");
    f.azienda.scrivi(u"borlano.fpa"_s, bytesDi(altrove));
    f.form.genera();
    EXPECT_EQ(f.azienda.leggi(u"borlano.fpa"_s), bytesDi(altrove));
}

TEST(CaselleFpa, InvioPassaDaTutteEOgniCasellaHaIlSuoCampo) {
    Fpa fpa = fpaBianca();
    PostoFpa posto = TestoFpa::Numero;
    for (std::size_t i = 0; i < numeroPostiFpa; ++i) {
        EXPECT_EQ(casellaFpa(posto).leggi(fpa), QString()) << "box " << i << " was visited before";
        casellaFpa(posto).scrivi(fpa, QString::number(i));
        posto = casellaFpa(posto).dopo;
    }
    EXPECT_EQ(posto, PostoFpa(TestoFpa::CodiceCig));
    EXPECT_EQ(fpa.ordine.commessa.trimmed(), u"8"_s);
    EXPECT_EQ(fpa.ricezione.data.trimmed(), u"18"_s);
}

} // namespace
} // namespace bor
