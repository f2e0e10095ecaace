// The screen of today's electronic invoice without a window: what it shows, keeps and writes.
#include "fatturapa/schermatafel.h"

#include "support/schemi.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace bor {

TEST(Borftel, MostraQuelCheEsceEIlCodiceDelClienteRestaPerIlDocumentoSeguente) {
    SchermataFel s;
    const auto nelFile = [&](PostoFel posto) { return s.form.uscita().nelFile[posto]; };
    EXPECT_EQ(nelFile(PostoFel::CodiceDestinatario), u"0000000");
    EXPECT_EQ(nelFile(PostoFel::Tipo), u"TD01 Fattura");
    EXPECT_EQ(nelFile(PostoFel::Bollo), u"nessuno");
    EXPECT_EQ(s.form.uscita().righe.first().value(6), u"100,00");
    EXPECT_EQ(s.form.uscita().riepiloghi,
              (QList<QStringList>{{u"22,00%"_s, {}, u"100,00"_s, u"22,00"_s, {}, u"immediata"_s}}));
    const QByteArray prima = s.archivio();

    s.form.cambia(u"abc1234"_s, &DatiFel::cliente, &ClienteFel::codice);
    s.form.cambia(u"TD25"_s, &DatiFel::documento, &DocumentoFel::tipo);
    EXPECT_EQ(nelFile(PostoFel::CodiceDestinatario), u"ABC1234") << "before anything is stored";
    EXPECT_TRUE(s.form.modificato());
    EXPECT_FALSE(QFile::exists(s.azienda.percorso(u"borlano.fel"_s)));
    s.form.genera();
    EXPECT_TRUE(s.prova.operatore.messaggi.isEmpty());
    EXPECT_TRUE(s.contenuto().contains("<CodiceDestinatario>ABC1234</CodiceDestinatario>"));
    EXPECT_EQ(s.form.percorso(), s.xml());
    EXPECT_TRUE(s.form.statoFile().startsWith(u"File generato"_s));
    EXPECT_TRUE(s.form.esito().startsWith(u"La fattura è pronta"_s));
    if (const Schemi schemi(u"1.2.3"_s); schemi.ciSono()) {
        EXPECT_EQ(schemi.validi({s.xml()}).size(), 1);
    }

    s.apri(2);
    EXPECT_EQ(s.form.dato(&DatiFel::cliente, &ClienteFel::codice), u"abc1234") << "the same customer";
    EXPECT_EQ(nelFile(PostoFel::Tipo), u"TD01 Fattura") << "another document";
    s.apri(3);
    EXPECT_EQ(s.form.dato(&DatiFel::cliente, &ClienteFel::codice), u"") << "another customer";
    EXPECT_EQ(s.archivio(), prima) << "the suite's records are not touched";
}

TEST(Borftel, IlFileTieneIlSuoNomeEDiceSeNonEPiuAttuale) {
    SchermataFel s;
    s.form.genera();
    const QByteArray prima = s.contenuto();
    ASSERT_FALSE(prima.isEmpty());
    s.form.cambia(u"IT60X0542811101000000123456"_s, &DatiFel::azienda, &AziendaFel::iban);
    s.form.cambia(u"X1"_s, &DatiFel::documento, &DocumentoFel::ordinenumero);
    ASSERT_TRUE(s.form.registra());
    EXPECT_EQ(s.contenuto(), prima);
    EXPECT_TRUE(s.form.statoFile().contains(u"cambiati dopo il file"_s));
    s.form.genera();
    EXPECT_NE(s.contenuto(), prima);
    EXPECT_EQ(QDir(QFileInfo(s.xml()).path()).entryList(QDir::Files),
              QStringList{u"IT01234567897_00001.xml"_s});
    s.apri(2);
    EXPECT_FALSE(s.form.generato());
    s.form.genera();
    EXPECT_TRUE(QFile::exists(s.xml(u"IT01234567897_00002.xml"_s)));
}

TEST(Borftel, DopoUnoScartoIlFileHaUnNomeNuovoEIlVecchioNonSiRida) {
    SchermataFel s;
    s.form.genera();
    s.prova.operatore.risposte = {false, true};
    s.form.scartata();
    EXPECT_EQ(s.form.percorso(), s.xml()) << "the operator said no";
    const QByteArray scartato = s.contenuto();
    s.form.scartata();
    EXPECT_FALSE(s.form.generato());
    QFile vecchio(s.xml() + u".scartata"_s);
    ASSERT_TRUE(vecchio.open(QIODevice::ReadOnly));
    EXPECT_EQ(vecchio.readAll(), scartato);
    QByteArray propri = s.azienda.leggi(u"borlano.fel"_s);
    s.azienda.scrivi(u"borlano.fel"_s, propri.replace("contatore=00001", "contatore="));
    s.apri(1);
    s.form.genera();
    EXPECT_EQ(s.form.percorso(), s.xml(u"IT01234567897_00002.xml"_s));
    EXPECT_TRUE(s.prova.operatore.messaggi.isEmpty());

    QFile::remove(vecchio.fileName());
    ASSERT_TRUE(QDir().mkdir(s.form.percorso() + u".scartata"_s));
    s.prova.operatore.risposte = {true};
    s.form.scartata();
    ASSERT_EQ(s.prova.operatore.messaggi.size(), 1);
    EXPECT_TRUE(s.prova.operatore.messaggi[0].testo.contains(u"a mano"_s));
    s.form.genera();
    EXPECT_EQ(s.form.percorso(), s.xml(u"IT01234567897_00003.xml"_s));
}

TEST(Borftel, UnRilievoStaAccantoAlSuoCampoEFermaIlFile) {
    SchermataFel s;
    s.form.cambia(u"AB"_s, &DatiFel::cliente, &ClienteFel::codice);
    EXPECT_TRUE(s.form.rilievi().testo(PostoFel::CodiceDestinatario).contains(u"Codice destinatario"_s));
    EXPECT_TRUE(s.form.rilievi().grave(PostoFel::CodiceDestinatario));
    s.form.cambia(QString(), &DatiFel::cliente, &ClienteFel::codice);
    EXPECT_EQ(s.form.rilievi().testo(PostoFel::CodiceDestinatario), u"");
    s.form.cambia(u"40/13/15"_s, &DatiFel::documento, &DocumentoFel::collegatadata);
    s.form.cambia(u"7"_s, &DatiFel::documento, &DocumentoFel::collegatanumero);
    EXPECT_TRUE(s.form.rilievi().testo(PostoFel::Collegata).contains(u"40/13/15"_s));
    s.form.prendiFuoco();
    s.form.genera();
    EXPECT_EQ(s.form.prendiFuoco(), PostoFel::Collegata);
    ASSERT_EQ(s.prova.operatore.messaggi.size(), 1);
    EXPECT_TRUE(s.prova.operatore.messaggi[0].testo.contains(u"non è stata generata"_s));
    EXPECT_TRUE(s.contenuto().isEmpty());
    EXPECT_FALSE(s.form.daLeggere());
    s.form.cambia(u"28/02/2015"_s, &DatiFel::documento, &DocumentoFel::collegatadata);
    EXPECT_EQ(s.form.esito(), u"La fattura si può generare (F10); 1 avviso (F8).")
        << "its lines are not on file";
    EXPECT_TRUE(s.form.daLeggere()->contains("<IdDocumento>7</IdDocumento>"));
}

TEST(Borftel, ChiEsceConDatiNonRegistratiVieneAvvisatoETornaDaDoveEraVenuto) {
    SchermataFel s;
    s.form.cambia(u"x@y.it"_s, &DatiFel::cliente, &ClienteFel::pec);
    s.prova.operatore.risposte = {false, true};
    s.form.lascia();
    EXPECT_TRUE(s.prova.navigatore.mostrati.isEmpty());
    s.form.lascia();
    EXPECT_EQ(s.prova.navigatore.mostrati, QList{Schermo::Borfte});
    EXPECT_EQ(s.prova.operatore.domande.size(), 2);
    s.prova.sessione.documentoletto = true;
    s.form.attiva();
    EXPECT_EQ(s.form.dato(&DatiFel::cliente, &ClienteFel::pec), u"");
    s.form.lascia();
    EXPECT_EQ(s.prova.navigatore.mostrati.last(), Schermo::Borftea);
}

TEST(Borftel, LaCartellaCheUnRipristinoNonHaNasceConIlPrimoFile) {
    SchermataFel s;
    QDir(s.azienda.percorsi().radiceCorrente()).rmdir(u"xml"_s);
    s.apri(1);
    EXPECT_FALSE(s.form.rilievi().grave(PostoFel::File));
    s.form.genera();
    EXPECT_TRUE(s.prova.operatore.messaggi.isEmpty());
    EXPECT_FALSE(s.contenuto().isEmpty());
}

TEST(Borftel, QuelCheMancaVieneDetto) {
    SchermataFel s;
    QDir radice(s.azienda.percorsi().radiceCorrente());
    radice.rmdir(u"xml"_s);
    ASSERT_TRUE(QFile(radice.filePath(u"xml"_s)).open(QIODevice::WriteOnly));
    s.apri(1);
    EXPECT_TRUE(s.form.rilievi().testo(PostoFel::File).contains(u"cartella dei file non c'è"_s));
    s.azienda.scrivi(u"borlano.fpa"_s, {});
    s.apri(1);
    EXPECT_TRUE(s.form.rilievi().testo(PostoFel::File).contains(u"quadri azienda"_s));
    s.form.genera();
    EXPECT_EQ(s.form.percorso(), u"");
    ASSERT_TRUE(QDir().mkdir(s.azienda.percorso(u"borlano.fel"_s)));
    s.apri(1);
    s.form.cambia(u"SI"_s, &DatiFel::azienda, &AziendaFel::allegapdf);
    EXPECT_FALSE(s.form.registra());
    EXPECT_TRUE(s.prova.operatore.messaggi.last().testo.contains(u"borlano.fel"_s));
    EXPECT_TRUE(s.form.modificato()) << "what was typed is still there";
    s.prova.navigatore.mostrati.clear();
    s.apri(0);
    EXPECT_EQ(s.prova.navigatore.mostrati, QList{Schermo::Borfte});
}

} // namespace bor
