#include "document/righeiva.h"
#include "posting/borftec.h"
#include "support/azienda.h"
#include "ui/gesti.h"
#include "ui/vistaborftec.h"

#include <QListWidget>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(VistaMovimento, IlMovimentoSiCompletaDallaTastiera) {
    const AziendaDiProva azienda;
    ContestoDiProva prova(azienda);
    for (const auto& [codice, nome] : {std::pair{u"10010001"_s, u"Clienti Italia"_s},
                                       {u"40010001"_s, u"Ricavi merci"_s},
                                       {u"20050001"_s, u"Iva su vendite"_s}}) {
        Con con = vuoto<Con>();
        con.codice.set(codice);
        con.descrizione.set(nome);
        aggiungi(prova.archivio, prova.archivio.con, Conta::Con, con);
    }
    const Documento documento;
    Borftec form(prova.contesto, documento);
    Movimento movimento;
    movimento.data = u"16/03/2015"_s;
    movimento.descrizione = u"Ft. 12 del 15/03/2015"_s;
    movimento.righe[0] = {{u"10"_s, u"01"_s, u"0001"_s}, u"122"_s, {}};
    movimento.righe[1] = {{u"40"_s, u"01"_s, u"0001"_s}, {}, u"100"_s};
    form.prepara(movimento);
    VistaBorftec vista(form);
    mostra(vista);
    EXPECT_EQ(vista.windowTitle(), u"Estremi movimento contabile"_s);
    EXPECT_EQ(fuoco(vista), u"cn1(0)"_s);
    EXPECT_EQ(testoDi(vista, u"ds(0)"_s), u"Clienti Italia"_s);
    EXPECT_EQ(testoDi(vista, u"Label1(2)"_s), u"22,00"_s);

    controllo(vista, u"cn1(2)"_s)->setFocus();
    auto* cerca = controllo<QLineEdit>(vista, u"ccerca"_s);
    cerca->setFocus();
    scrivi(vista, u"iva"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(fuoco(vista), u"List1"_s);
    tasto(vista, Qt::Key_Return);
    EXPECT_EQ(fuoco(vista), u"dare(2)"_s);
    tasto(vista, Qt::Key_Return);
    scrivi(vista, u"22"_s);
    EXPECT_EQ(testoDi(vista, u"Label1(2)"_s), QString());
    foto(vista, u"movimento"_s);
    // A half-typed date counts for the command as if the field had been left.
    controllo(vista, u"Text2"_s)->setFocus(Qt::TabFocusReason);
    scrivi(vista, u"170315"_s);
    tasto(vista, Qt::Key_F10);
    EXPECT_EQ(prova.archivio.con.leggi(3).progressivoavere, 22);
    EXPECT_EQ(prova.navigatore.mostrati, QList{Schermo::Borfte});
    EXPECT_EQ(form.dato(&Movimento::data), u"17/03/2015"_s);
}

TEST(VistaMovimento, GruppiPieniDifferenzaDalDocumentoEUscita) {
    const AziendaDiProva azienda;
    ContestoDiProva prova(azienda);
    Documento documento;
    mettiImportoIva(documento.coppia, VoceIva::Imponibile, 1, 100);
    mettiImportoIva(documento.coppia, VoceIva::Imposta, 1, 22);
    Borftec form(prova.contesto, documento);
    Movimento movimento;
    movimento.righe[0] = {{u"10"_s, u"01"_s, u"0001"_s}, u"122"_s, {}};
    form.prepara(movimento);
    VistaBorftec vista(form);
    mostra(vista);
    EXPECT_LE(vista.minimumSizeHint().width(), 1024);
    EXPECT_EQ(testoDi(vista, u"Label1(3)"_s), u"122,00"_s);
    EXPECT_EQ(testoDi(vista, u"Label1(4)"_s), QString());
    tasto(vista, Qt::Key_Escape);
    EXPECT_TRUE(prova.operatore.domande.isEmpty()) << "nothing was typed";
    ASSERT_EQ(prova.operatore.messaggi.size(), 1);
    EXPECT_EQ(prova.operatore.messaggi[0].testo, u"Il documento resta senza movimento contabile"_s);
    EXPECT_EQ(prova.navigatore.mostrati, QList{Schermo::Borfte});

    vista.attiva();
    controllo(vista, u"cn1(2)"_s)->setFocus();
    scrivi(vista, u"20050001"_s);
    EXPECT_EQ(fuoco(vista), u"dare(2)"_s) << "a full group leads to the next one";
    EXPECT_EQ(testoDi(vista, u"cn2(2)"_s) + testoDi(vista, u"cn3(2)"_s), u"050001"_s);
    controllo(vista, u"dare(0)"_s)->setFocus(Qt::TabFocusReason);
    scrivi(vista, u"120"_s);
    EXPECT_EQ(testoDi(vista, u"Label1(4)"_s), u"-2,00"_s);
    EXPECT_TRUE(controllo(vista, u"Label1(4)"_s)->property("scarto").toBool());
    foto(vista, u"movimento_differenza"_s);
    prova.operatore.risposte = {false, true};
    tasto(vista, Qt::Key_Escape);
    EXPECT_EQ(prova.navigatore.mostrati.size(), 1);
    EXPECT_EQ(prova.operatore.messaggi.size(), 1);
    prova.sessione.modificamovimento = true;
    clic(vista, u"bottone(0)"_s);
    EXPECT_EQ(prova.operatore.domande.size(), 2);
    EXPECT_EQ(prova.navigatore.mostrati.size(), 2);
    EXPECT_EQ(prova.operatore.messaggi.size(), 1) << "the document keeps the movement that it has";
}

} // namespace
} // namespace bor
