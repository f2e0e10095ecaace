#include "register/registrodiprova.h"

namespace bor {
namespace {

QStringList lista(std::initializer_list<const char16_t*> testi) {
    QStringList l;
    for (const char16_t* t : testi)
        l.append(QString::fromUtf16(t));
    return l;
}

QStringList colonna(const Borfte& form, Colonna quale) {
    QStringList testi;
    for (int r = 0; r < form.elenco().quante(); ++r)
        testi.append(form.testo(r, quale));
    return testi;
}

class RegistroTest : public RegistroDiProva {};

TEST_F(RegistroTest, MostraIDocumentiComeStannoSuFile) {
    const int rossi = azienda.cliente(QStringLiteral("Rossi Forniture Srl"));
    azienda.documento(documentoDi(rossi, QStringLiteral("1"), 1000, 220));
    CoppiaFte nota = documentoDi(rossi, QStringLiteral("2/A"), 100, 22);
    nota.fte.tipo = 1;
    nota.f2e.esen[3] = 0.5;
    azienda.documento(nota);
    CoppiaFte eliminata = documentoDi(rossi, QStringLiteral("3"), 0, 0);
    eliminata.fte.annullata = 1;
    eliminata.f2e.pdf.set(u"\\suprok\\pdf\\ftr3.pdf");
    eliminata.f2e.fpa = 12.0;
    azienda.documento(eliminata);
    CoppiaFte vecchia = documentoDi(99, QStringLiteral("4"), 1, 0);
    vecchia.f2e.pdf.set(u"non valido");
    vecchia.f2e.marca = 0;
    azienda.documento(vecchia);
    apri();

    EXPECT_EQ(colonna(form(), Colonna::Registrazione), lista({u"1", u"2", u"3", u"4"}));
    EXPECT_EQ(form().testo(0, Colonna::DataRegistrazione), QStringLiteral("15/03/2015"));
    EXPECT_EQ(colonna(form(), Colonna::Numero), lista({u"1", u"2/A", u"3", u"4"}));
    EXPECT_EQ(colonna(form(), Colonna::Cliente),
              lista({u"Rossi Forniture Srl", u"Rossi Forniture Srl", u"Fattura eliminata", u""}));
    EXPECT_EQ(colonna(form(), Colonna::Importo), lista({u"1.220,00", u"-122,50", u"", u"1,00"}));
    EXPECT_EQ(colonna(form(), Colonna::Pa), lista({u"", u"", u"PA", u""}));
    EXPECT_EQ(colonna(form(), Colonna::Pdf), lista({u"", u"", u"PDF", u""}));
    EXPECT_EQ(form().righeGriglia(), 25);
    EXPECT_EQ(form().testo(24, Colonna::Cliente), QString());

    form().opzioni().cambiaFiltro(FiltroFatture::SoloPa);
    EXPECT_EQ(colonna(form(), Colonna::Registrazione), lista({u"3"}));
    form().opzioni().cambiaFiltro(FiltroFatture::Normali);
    EXPECT_EQ(colonna(form(), Colonna::Registrazione), lista({u"1", u"2", u"4"}));
}

TEST_F(RegistroTest, UnRiferimentoPaGuastoTornaAZeroSuFileENienteAltroCambia) {
    CoppiaFte guasta = documentoDi(1, QStringLiteral("1"), 10, 0);
    guasta.f2e.fpa = 1e20;
    for (std::size_t i = 0; i < guasta.f2e.resy4.bytes.size(); ++i)
        guasta.f2e.resy4.bytes[i] = static_cast<char>(i);
    azienda.documento(guasta);
    const QByteArray prima = azienda.leggi(QStringLiteral("borlano.f2e"));
    apri();
    QByteArray attesa = prima;
    attesa.replace(579, 8, QByteArray(8, '\0'));
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.f2e")), attesa);
}

TEST_F(RegistroTest, ArchiviRovinatiDannoCelleVuoteENonVengonoScritti) {
    azienda.documento(documentoDi(-5, QStringLiteral("1"), 10, 0));
    Tot conteggio = vuoto<Tot>();
    conteggio.numero = 40;
    QByteArray tot(12 * 7, '\0');
    tot.replace(12 * 6, 12, QByteArray(reinterpret_cast<const char*>(&conteggio), 12));
    azienda.scrivi(QStringLiteral("borlano.tot"), tot);
    const QByteArray mozza = azienda.leggi(QStringLiteral("borlano.fte")).left(300);
    azienda.scrivi(QStringLiteral("borlano.fte"), mozza);
    azienda.scrivi(QStringLiteral("borlano.f2e"), QByteArray(838 + 17, '\xFF'));
    apri();
    EXPECT_EQ(form().elenco().quante(), 40);
    EXPECT_EQ(form().testo(0, Colonna::Numero), QStringLiteral("1"));
    EXPECT_EQ(form().testo(39, Colonna::DataDocumento), QString());
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.fte")), mozza);

    conteggio.numero = -3;
    tot.replace(12 * 6, 12, QByteArray(reinterpret_cast<const char*>(&conteggio), 12));
    azienda.scrivi(QStringLiteral("borlano.tot"), tot);
    form().rileggi();
    EXPECT_EQ(form().elenco().quante(), 0);
}

TEST_F(RegistroTest, OrdinaPerRegistrazionePerDataEPerCliente) {
    const int zeta = azienda.cliente(QStringLiteral("Zeta"));
    const int alfa = azienda.cliente(QStringLiteral("alfa"));
    const int beta = azienda.cliente(QStringLiteral("Beta"));
    const auto aggiungi = [&](int cliente, QStringView datareg) {
        CoppiaFte c = documentoDi(cliente, QStringLiteral("1"), 1, 0);
        c.fte.datareg.set(datareg);
        azienda.documento(c);
    };
    aggiungi(zeta, u"20150301");
    aggiungi(alfa, u"20141231");
    aggiungi(beta, u"20150301");
    aggiungi(beta, u"        ");
    apri();
    form().ordina(Colonna::DataRegistrazione);
    EXPECT_EQ(colonna(form(), Colonna::Registrazione), lista({u"2", u"1", u"3", u"4"}));
    form().ordina(Colonna::Cliente);
    EXPECT_EQ(colonna(form(), Colonna::Registrazione), lista({u"3", u"4", u"1", u"2"}));
    form().ordina(Colonna::Registrazione);
    EXPECT_EQ(colonna(form(), Colonna::Registrazione), lista({u"1", u"2", u"3", u"4"}));
    form().ordina(Colonna::Numero);
    EXPECT_EQ(colonna(form(), Colonna::Registrazione), lista({u"1", u"2", u"3", u"4"}));
}

TEST_F(RegistroTest, LaVistaPreferitaRestaNelleImpostazioni) {
    for (int i = 1; i <= 24; ++i)
        azienda.documento(documentoDi(1, QString::number(i), i, 0));
    apri();
    EXPECT_EQ(form().opzioni().scelte().selvis, Selvis::Tutte);
    EXPECT_EQ(form().primaRigaVisibile(), 0);
    form().opzioni().cambiaVisua(Visua::DallUltima);
    form().opzioni().cambiaSelvis(Selvis::Ultime5000);
    // The grid keeps 26 rows with its header, of which the fourth is the first to be seen.
    EXPECT_EQ(form().primaRigaVisibile(), 3);
    EXPECT_EQ(azienda.leggi(QStringLiteral("borlano.gnr")).left(2), QByteArray("\x0c\0", 2));
    apri();
    EXPECT_EQ(form().opzioni().scelte().selvis, Selvis::Ultime5000);
    EXPECT_EQ(form().opzioni().scelte().visua, Visua::DallUltima);
}

TEST_F(RegistroTest, ApreDocumentiEPdf) {
    const int cliente = azienda.cliente(QStringLiteral("Rossi"));
    CoppiaFte conPdf = documentoDi(cliente, QStringLiteral("1"), 10, 0);
    conPdf.f2e.pdf.set(u"\\suprok\\pdf\\FTR1.pdf");
    azienda.documento(conPdf);
    CoppiaFte eliminata = documentoDi(cliente, QStringLiteral("2"), 10, 0);
    eliminata.fte.annullata = 1;
    azienda.documento(eliminata);
    apri();
    prova().sistema.esitoApri = EsitoApri::FileMancante;
    form().apertura().cella(0, Colonna::Pdf);
    ASSERT_EQ(prova().sistema.aperti.size(), 1);
    EXPECT_TRUE(prova().sistema.aperti[0].endsWith(QStringLiteral("/suprok/PDF/FTR1.pdf")));
    EXPECT_EQ(prova().operatore.messaggi.back().testo,
              QStringLiteral("Si è verificato l'errore 2 - File PDF non trovato"));
    form().apertura().cella(1, Colonna::Cliente);
    EXPECT_EQ(prova().operatore.messaggi.back().testo, QStringLiteral("Fattura annullata"));
    form().apertura().cella(20, Colonna::Cliente);
    EXPECT_TRUE(prova().navigatore.mostrati.isEmpty());
    form().apertura().cella(0, Colonna::Cliente);
    EXPECT_EQ(prova().navigatore.mostrati, QList{Schermo::Borftea});
    EXPECT_EQ(documento.recordfattura, 1);
    EXPECT_EQ(documento.recordcliente, cliente);
    form().apertura().fatturaElettronica(1);
    form().apertura().fatturaElettronica(0);
    EXPECT_EQ(prova().navigatore.mostrati, (QList{Schermo::Borftea, Schermo::Borftel}))
        << "a deleted document has none";
    EXPECT_EQ(documento.recordfattura, 1);
}

TEST_F(RegistroTest, UnDocumentoNuovoVuoleUnCliente) {
    apri();
    form().apertura().nuovo(0);
    EXPECT_EQ(prova().operatore.messaggi.back().testo, QStringLiteral("Nessuna anagrafica memorizzata"));
    EXPECT_TRUE(prova().navigatore.mostrati.isEmpty());
    azienda.cliente(QStringLiteral("Rossi"));
    form().apertura().nuovo(1);
    EXPECT_EQ(prova().navigatore.mostrati, QList{Schermo::Borftem});
    EXPECT_EQ(documento.tipodocumento(), 1);
}

TEST_F(RegistroTest, UscireNonChiedeNulla) {
    apri();
    form().esci();
    EXPECT_TRUE(prova().navigatore.terminato);
    EXPECT_TRUE(prova().operatore.domande.isEmpty());
}

TEST_F(RegistroTest, IColoriSonoQuelliDelleImpostazioni) {
    azienda.documento(documentoDi(1, QStringLiteral("1"), 1, 0));
    apri();
    EXPECT_EQ(form().colore(0, Colonna::DataDocumento), 16777215);
    EXPECT_EQ(form().colore(1, Colonna::DataDocumento), 16579315);
    prova().impostazioni.gnr.listacolorata.set(u"0");
    form().cellaCorrente(0, Colonna::Numero);
    form().rileggi();
    EXPECT_EQ(form().colore(0, Colonna::Numero), 0xFCFAF3);
    EXPECT_EQ(form().colore(0, Colonna::DataDocumento), std::nullopt);
}

TEST_F(RegistroTest, SiCercaPerNumeroAnnoClienteImportoEData) {
    const int perche = azienda.cliente(QStringLiteral("Caffè Perché & C."));
    const int rossi = azienda.cliente(QStringLiteral("ROSSI 12 Srl"));
    azienda.documento(documentoDi(perche, QStringLiteral("12"), 1000, 250.5));
    CoppiaFte vecchia = documentoDi(perche, QStringLiteral("12/a"), 100, 22);
    vecchia.fte.datadoc.set(u"20140201");
    vecchia.fte.tipo = 1;
    azienda.documento(vecchia);
    azienda.documento(documentoDi(rossi, QStringLiteral("7"), 1.25, 0));
    CoppiaFte eliminata = documentoDi(rossi, QStringLiteral("8"), 0, 0);
    eliminata.fte.annullata = 1;
    azienda.documento(eliminata);
    apri();
    const auto trovati = [this](const QString& testo) {
        form().opzioni().cerca(testo);
        return colonna(form(), Colonna::Registrazione).join(u' ');
    };
    EXPECT_EQ(trovati(QStringLiteral("12")), QStringLiteral("1 2 3")) << "numbers and part of a name";
    EXPECT_EQ(trovati(QStringLiteral("12/2015")), QStringLiteral("1"));
    EXPECT_EQ(trovati(QStringLiteral("12/A")), QStringLiteral("2"));
    EXPECT_EQ(trovati(QStringLiteral("perche")), QStringLiteral("1 2"));
    EXPECT_EQ(trovati(QStringLiteral(" CAFFÈ ")), QStringLiteral("1 2"));
    EXPECT_EQ(trovati(QStringLiteral("1.250")), QStringLiteral("1"));
    EXPECT_EQ(trovati(QStringLiteral("€ 1.250,50")), QStringLiteral("1"));
    EXPECT_EQ(trovati(QStringLiteral("1250,4")), QString());
    EXPECT_EQ(trovati(QStringLiteral("1.25")), QStringLiteral("3"));
    EXPECT_EQ(trovati(QStringLiteral("-122")), QStringLiteral("2"));
    EXPECT_EQ(trovati(QStringLiteral("1/2/14")), QStringLiteral("2"));
    EXPECT_EQ(trovati(QStringLiteral("15/03")), QStringLiteral("1 2 3 4")) << "either date";
    EXPECT_EQ(trovati(QStringLiteral("150315")), QStringLiteral("1 2 3 4"));
    EXPECT_EQ(trovati(QStringLiteral("eliminata")), QStringLiteral("4"));
    form().ordina(Colonna::Cliente);
    EXPECT_EQ(form().elenco().quante(), 1) << "a sort keeps what is searched";
    EXPECT_EQ(trovati(QStringLiteral("9999999999999999999999")), QString());
    EXPECT_EQ(trovati(QString()).size(), 7);
}

TEST_F(RegistroTest, SegnaIDocumentiSenzaRigheEFiltraIMovimentiCheNonVanno) {
    const int cliente = azienda.cliente(QStringLiteral("Rossi"));
    const auto conMovimento = [&](double stamp, float nfile, double dare, double avere) {
        CoppiaFte coppia = documentoDi(cliente, QString::number(nfile), 100, 22);
        coppia.fte.stamp = stamp;
        coppia.fte.nfile = nfile;
        const int n = azienda.documento(coppia);
        if (dare > 0) {
            ContestoDiProva prova(azienda);
            Gio gio = vuoto<Gio>();
            gio.riferimentofattura = stamp;
            gio.voce[0] = {.segno = Intero(0), .importo = Reale(dare)};
            gio.voce[1] = {.segno = Intero(1), .importo = Reale(avere)};
            aggiungi(prova.archivio, prova.archivio.gio, Conta::Gio, gio);
        }
        return n;
    };
    conMovimento(1, 1, 122, 122);
    conMovimento(2, 2, 122, 100);
    conMovimento(3, 3, 120, 120);
    conMovimento(4, 4, 0, 0);
    azienda.scrivi(QStringLiteral("f1"), "righe");
    azienda.scrivi(QStringLiteral("F2"), "righe");
    azienda.scrivi(QStringLiteral("ftr3.a15"), "righe");
    apri();
    QStringList note;
    for (int r = 0; r < 5; ++r)
        note.append(form().nota(r));
    const QString senza = QStringLiteral("Le righe non sono su file: aprite il documento e salvatelo");
    EXPECT_EQ(note, (QStringList{{}, {}, {}, senza, {}}));
    form().opzioni().cambiaFiltro(FiltroFatture::MovimentoDaControllare);
    EXPECT_EQ(colonna(form(), Colonna::Registrazione), lista({u"2", u"3", u"4"}));
    EXPECT_EQ(form().nota(0), QStringLiteral("Dare e avere del movimento contabile non pareggiano: 22,00"));
    EXPECT_EQ(form().nota(1), QStringLiteral("Il movimento contabile differisce dal documento: -2,00"));
    EXPECT_EQ(form().nota(2), QStringLiteral("Non ha un movimento contabile. ") + senza);
}

} // namespace
} // namespace bor
