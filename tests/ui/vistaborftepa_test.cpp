#include "ui/vistaborftepa.h"

#include "einvoice/fatturadiprova.h"
#include "ui/gesti.h"

#include <QComboBox>
#include <QDialog>
#include <QListWidget>

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
    finestra->reject();
    tasto(vista, Qt::Key_Escape);
    EXPECT_EQ(f.prova.navigatore.mostrati, QList{Schermo::Borftea});
}

} // namespace
} // namespace bor
