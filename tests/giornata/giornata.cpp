// What the hands do.
#include "giornata/giornata.h"

#include "ui/invio.h"

using namespace Qt::StringLiterals;

namespace bor {

Giornata::Giornata() {
    scriviDitta(azienda);
    finestra.resize(1280, 720);
    avvia();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&finestra));
}

/// Turns the wheel over every widget of the screen in view, whatever has the focus: more down than up, so
/// that what it changes stays changed.
void Giornata::rotellaSuTutto() {
    for (auto* widget : finestra.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        for (const int verso : {-1, -1, 1})
            rotella(widget, verso);
        ++girate;
    }
}

void Giornata::tieniTutti(const QList<QKeyCombination>& tasti) {
    for (const QKeyCombination tasto : tasti)
        tieni(finestra, tasto.key(), tasto.keyboardModifiers());
}

void Giornata::scriviTesta(const FatturaScritta& fattura, int numero) {
    tieni(finestra, fattura.nota ? Qt::Key_F3 : Qt::Key_F2);
    ASSERT_TRUE(inVista(Schermo::Borftem));
    if (numero % 4 == 1)
        rotellaSuTutto();
    controllo(vista(Schermo::Borftem), u"nome"_s)->setFocus();
    const ClienteNoto& cliente = clientiNoti[static_cast<std::size_t>(fattura.cliente)];
    mani.battiEInvio(cliente.cercato.toString());
    ASSERT_EQ(testoDi(vista(Schermo::Borftem), u"Text2(0)"_s), cliente.ragione.toString());
    tieni(finestra, Qt::Key_F10);
    ASSERT_TRUE(inVista(Schermo::Borftea));
    mani.battiEInvio(u"%1/B"_s.arg(numero));
    constexpr std::array forme = {u"ddMMyy", u"ddMMyyyy", u"dd/MM/yyyy"};
    for (int i = 0; i < 2; ++i)
        mani.battiEInvio(fattura.data.toString(forme[caso() % forme.size()]));
}

void Giornata::scriviRiga(const FatturaScritta& fattura, const RigaScritta& riga) {
    const auto numero = [this](int centesimi) { return aMano(centesimi, caso); };
    switch (riga.genere) {
    case Genere::Articolo:
        mani.battiEInvio(articoliNoti[static_cast<std::size_t>(riga.articolo)].codice.toString().toLower());
        break;
    case Genere::Descrizione:
        mani.invii(1);
        mani.batti(articoliNoti[static_cast<std::size_t>(riga.articolo)].descrizione.toString().left(10));
        tieni(finestra, Qt::Key_F1);
        break;
    case Genere::Commento:
        mani.invii(1);
        mani.batti(riga.testo);
        tieni(finestra, Qt::Key_End, Qt::ControlModifier);
        return;
    case Genere::Libera:
    case Genere::SoloPrezzo:
        mani.invii(1);
        mani.battiEInvio(riga.testo);
        mani.battiEInvio(riga.genere == Genere::Libera ? u"h"_s : QString());
        break;
    }
    mani.battiEInvio(riga.quantita > 0 ? numero(riga.quantita) : QString());
    for (const int sconto : {riga.sconto1, riga.sconto2})
        mani.battiEInvio(sconto < 0 ? QString() : QString::number(sconto));
    if (riga.prezzo >= 0)
        mani.batti(numero(riga.prezzo));
    if (riga.giuNellIva > 0 && clientiNoti[static_cast<std::size_t>(fattura.cliente)].regimeiva == 0) {
        tasto(finestra, Qt::Key_Tab);
        for (int i = 0; i < riga.giuNellIva; ++i)
            tasto(finestra, Qt::Key_Down);
        tasto(finestra, Qt::Key_Return);
    }
    mani.invii(1);
}

void Giornata::scriviRighe(const FatturaScritta& fattura) {
    tieni(finestra, Qt::Key_F3);
    ASSERT_TRUE(inVista(Schermo::Borftex));
    FatturaScritta finora = fattura;
    finora.righe.clear();
    for (const RigaScritta& riga : fattura.righe) {
        scriviRiga(fattura, riga);
        finora.righe.push_back(riga);
        const QString totale = testoDi(vista(Schermo::Borftex), u"tota(1)"_s).remove(u'.').remove(u',');
        ASSERT_EQ(totale.toLongLong(), finora.somme().totale()) << "row " << finora.righe.size();
    }
    if (scritte.size() % 4 == 1)
        rotellaSuTutto();
    // A line too many, and gone again.
    controllo(vista(Schermo::Borftex), u"artic(0)"_s)->setFocus();
    tieniTutti({Qt::Key_F7, Qt::Key_F8, Qt::Key_F3});
    tieni(finestra, Qt::Key_F10);
    ASSERT_TRUE(inVista(Schermo::Borftea));
}

/// Confirms the movement; now and then with a part of the revenue on an account of its own.
void Giornata::scriviMovimento(FatturaScritta& fattura) {
    Vista& movimento = vista(Schermo::Borftec);
    ASSERT_TRUE(movimento.isVisible());
    if (scritte.size() % 4 == 2)
        rotellaSuTutto();
    const long long ricavi = fattura.somme().ricavi();
    if (scritte.size() % 5 == 3 && ricavi > 0) {
        fattura.diversi = ricavi / 3;
        const QString colonna = fattura.nota ? u"dare(%1)"_s : u"avere(%1)"_s;
        vaiA(controllo(movimento, colonna.arg(1)));
        mani.batti(aMano(ricavi - fattura.diversi, caso));
        // The groups of the account go on by themselves when they are full.
        vaiA(controllo(movimento, u"cn1(4)"_s));
        scrivi(finestra, contoRicaviDiversi.toString());
        mani.invii(fattura.nota ? 0 : 1);
        mani.batti(aMano(fattura.diversi, caso));
    }
    EXPECT_TRUE(testoDi(movimento, u"Label1(2)"_s).isEmpty()) << "debit and credit";
    EXPECT_TRUE(testoDi(movimento, u"Label1(4)"_s).isEmpty()) << "movement and document";
    tieni(finestra, Qt::Key_F10);
    ASSERT_TRUE(inVista(Schermo::Borfte));
}

/// The second save of a new document stores its lines and moves the stock. A corrected one gets a movement
/// made anew.
void Giornata::registraDiNuovo(bool corretta) {
    operatore.risposte = {true, true, !corretta};
    tieni(finestra, Qt::Key_F10);
    ASSERT_TRUE(inVista(Schermo::Borftec));
    ASSERT_EQ(operatore.domande.size(), 3);
    EXPECT_TRUE(operatore.domande[0].testo.contains(u"magazzino"));
    EXPECT_TRUE(operatore.domande[1].testo.contains(u"movimento contabile"));
    EXPECT_EQ(operatore.domande[2].titolo, u"Modifica registrazione contabile");
    operatore.domande.clear();
    tieni(finestra, Qt::Key_F10);
    ASSERT_TRUE(inVista(Schermo::Borfte));
}

/// The customer wanted more of the first article: typed over the quantity, past the code left alone.
void Giornata::correggi(FatturaScritta& fattura) {
    tieni(finestra, Qt::Key_F3);
    mani.invii(1);
    fattura.righe[0].quantita += 1050;
    fattura.diversi = 0;
    // An Enter would lead to the discounts, where the customer's come back over those set to 0.
    mani.batti(aMano(fattura.righe[0].quantita, caso));
    tieni(finestra, Qt::Key_F10);
}

/// Commands of the document that ask or show something: each does it once.
void Giornata::provaComandi() {
    operatore.risposte = {false, false};
    tieniTutti({Qt::Key_F7, Qt::CTRL | Qt::Key_F9});
    ASSERT_EQ(operatore.domande.size(), 2);
    EXPECT_EQ(operatore.domande[0].titolo, u"Stampa fattura");
    EXPECT_EQ(operatore.domande[1].predefinita, Predefinita::No);
    operatore.domande.clear();
    tieni(finestra, Qt::Key_F2);
    ASSERT_TRUE(inVista(Schermo::Borftem));
    tieni(finestra, Qt::Key_F6);
    ASSERT_TRUE(inVista(Schermo::Borsel));
    rotellaSuTutto();
    tieni(finestra, Qt::Key_Escape);
    ASSERT_TRUE(inVista(Schermo::Borftem));
    tieni(finestra, Qt::Key_F10);
    ASSERT_TRUE(inVista(Schermo::Borftea));
}

void Giornata::scriviFattura(int numero) {
    FatturaScritta fattura = inventa(caso, numero);
    scriviTesta(fattura, numero);
    if (HasFatalFailure())
        return;
    scriviRighe(fattura);
    if (HasFatalFailure())
        return;
    if (numero % 4 == 3)
        rotellaSuTutto();
    tieniTutti({Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_F6, Qt::Key_F6, Qt::CTRL | Qt::Key_2,
                Qt::CTRL | Qt::Key_1});
    tieni(finestra, Qt::Key_F10);
    ASSERT_TRUE(operatore.domande.isEmpty());
    scriviMovimento(fattura);
    if (HasFatalFailure())
        return;
    if (numero % 4 == 0)
        rotellaSuTutto();
    tieni(finestra, Qt::Key_R, Qt::ControlModifier);
    ASSERT_TRUE(inVista(Schermo::Borftea));
    if (numero % 10 == 3)
        provaComandi();
    if (HasFatalFailure())
        return;
    const bool daCorreggere = numero % 5 == 0;
    if (daCorreggere)
        correggi(fattura);
    registraDiNuovo(daCorreggere);
    ASSERT_TRUE(operatore.messaggi.isEmpty()) << qPrintable(operatore.messaggi[0].testo);
    scritte.push_back(fattura);
}

/// What the register shows of the day; then the archive is put in order of number, and the program left.
void Giornata::chiudiLaGiornata() {
    tieniTutti({Qt::Key_F5, Qt::CTRL | Qt::Key_3, Qt::CTRL | Qt::Key_1});
    for (int n = 1; n <= fatture; ++n) {
        const FatturaScritta& fattura = scritte[static_cast<std::size_t>(n - 1)];
        const QString importo = modulo->borfte().testo(n - 1, Colonna::Importo).remove(u'.').remove(u',');
        EXPECT_EQ(importo.toLongLong(), (fattura.nota ? -1 : 1) * fattura.somme().totale()) << n;
    }
    tieniTutti({Qt::Key_F6, Qt::Key_F9});
    ASSERT_EQ(operatore.domande.size(), 1);
    EXPECT_EQ(operatore.messaggi.size(), 0);
    modulo.reset();
}

} // namespace bor
