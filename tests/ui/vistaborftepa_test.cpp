#include "ui/vistaborftepa.h"

#include "einvoice/fatturadiprova.h"
#include "ui/finestrarilievi.h"
#include "ui/gesti.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

TEST(VistaFatturaPa, SiCompilaDallaTastieraSiGeneraESiControlla) {
    FatturaDiProva f;
    VistaBorftepa vista(f.form);
    mostra(vista);
    EXPECT_EQ(fuoco(vista), u"Text2(0)"_s);
    EXPECT_EQ(testoDi(vista, u"Text2(20)"_s), u"Comune di Cantù"_s);
    EXPECT_EQ(testoDi(vista, u"Text2(16)"_s), u"42"_s);
    controllo(vista, u"Text2(20)"_s)->setFocus();
    EXPECT_EQ(fuoco(vista), u"Text2(0)"_s);

    const auto invio = [&] { tasto(vista, Qt::Key_Return); };
    invio();
    EXPECT_EQ(fuoco(vista), u"dsca(0)"_s);
    invio();
    invio();
    EXPECT_EQ(fuoco(vista), u"Text2(1)"_s);
    controllo(vista, u"Text2(2)"_s)->setFocus();
    scrivi(vista, u"ODA 77"_s);
    invio();
    scrivi(vista, u"01/02/2015"_s); // a whole date moves on by itself
    EXPECT_EQ(fuoco(vista), u"Text2(3)"_s);
    controllo(vista, u"dsca(3)"_s)->setFocus();
    scrivi(vista, u"311214"_s);
    invio();
    EXPECT_EQ(fuoco(vista), u"Text2(6)"_s);
    EXPECT_EQ(testoDi(vista, u"dsca(3)"_s), u"31/12/2014"_s);
    auto* vettori = controllo<QComboBox>(vista, u"Combo1"_s);
    vettori->setFocus();
    scrivi(vista, u"Tr"_s);
    EXPECT_EQ(vettori->currentText(), u"Trasporti Rapidi"_s);
    clic(vista, u"art73"_s);

    EXPECT_FALSE(controllo(vista, u"controlla"_s)->isEnabled());
    tasto(vista, Qt::Key_F10);
    const QByteArray xml = f.xml();
    EXPECT_TRUE(xml.contains("<IdDocumento>ODA 77</IdDocumento>\r\n        <Data>2015-02-01</Data>"));
    EXPECT_TRUE(xml.contains("<Denominazione>Trasporti Rapidi</Denominazione>"));
    EXPECT_TRUE(xml.contains("<Art73>SI</Art73>"));
    foto(vista, u"fatturapa"_s);

    tasto(vista, Qt::Key_F8);
    auto* finestra = controllo<QDialog>(vista, u"rilievi"_s);
    ASSERT_NE(finestra, nullptr);
    EXPECT_TRUE(finestra->isVisible());
    // The bare "&" of the company's name makes the file unreadable.
    EXPECT_GT(controllo<QListWidget>(*finestra, u"listaRilievi"_s)->count(), 0);
    foto(*finestra, u"rilievi"_s);
    EXPECT_TRUE(testoDi(*finestra, u"esito"_s).contains(u"così non si può spedire"_s));
    finestra->reject();
    clic(vista, u"controlla"_s);
    EXPECT_TRUE(finestra->isVisible());
    EXPECT_EQ(vista.findChildren<QDialog*>(u"rilievi"_s).size(), 1);
    tasto(vista, Qt::Key_Escape);
    EXPECT_EQ(f.prova.navigatore.mostrati, QList{Schermo::Borftea});
    vista.hide();
    EXPECT_FALSE(finestra->isVisible());
}

TEST(VistaFatturaPa, UnaDataCheNonEsisteESegnataFincheSiScrive) {
    FatturaDiProva f;
    VistaBorftepa vista(f.form);
    mostra(vista);
    auto* data = controllo<QLineEdit>(vista, u"dsca(0)"_s);
    data->setFocus();
    data->selectAll();
    scrivi(vista, u"31022015"_s);
    EXPECT_TRUE(data->property("errato").toBool());
    data->selectAll();
    scrivi(vista, u"28022015"_s);
    EXPECT_FALSE(data->property("errato").toBool());
}

TEST(VistaFatturaPa, UnaDataAMetaESistemataPrimaDiGenerare) {
    FatturaDiProva f;
    VistaBorftepa vista(f.form);
    mostra(vista);
    controllo(vista, u"dsca(0)"_s)->setFocus();
    controllo<QLineEdit>(vista, u"dsca(0)"_s)->selectAll();
    scrivi(vista, u"311215"_s);
    tasto(vista, Qt::Key_F10);
    EXPECT_TRUE(f.xml().contains("<Data>2015-12-31</Data>"));
    EXPECT_EQ(testoDi(vista, u"dsca(0)"_s), u"31/12/2015"_s);
}

TEST(FinestraRilievi, ContaERaccontaSenzaSbagliare) {
    FinestraRilievi finestra(nullptr);
    const Rilievo errore{.motivo = u"Manca il CAP."_s};
    const Rilievo avviso{.motivo = u"Le rate non tornano."_s, .gravita = Gravita::Avviso};
    const std::pair<std::vector<Rilievo>, QString> casi[] = {
        {{}, u"Nessun rilievo: il file si può spedire."_s},
        {{avviso}, u"Nessun rilievo, 1 avviso: il file si può spedire."_s},
        {{errore}, u"1 rilievo: il file così non si può spedire."_s},
        {{errore, avviso, errore, avviso}, u"2 rilievi, 2 avvisi: il file così non si può spedire."_s}};
    for (const auto& [rilievi, detto] : casi) {
        finestra.mostra(rilievi);
        EXPECT_EQ(testoDi(finestra, u"esito"_s), detto);
        EXPECT_EQ(controllo<QListWidget>(finestra, u"listaRilievi"_s)->count(), std::ssize(rilievi));
    }
}

} // namespace
} // namespace bor
