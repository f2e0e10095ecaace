// What holds on every screen: letters, names, keys, the wheel, a key held down, Qt's own words.
#include "archive/fpa.h"
#include "common/installazione.h"
#include "support/programmaintero.h"
#include "ui/adattatori.h"
#include "ui/campi.h"
#include "ui/gesti.h"
#include "ui/guida.h"
#include "ui/rigaelisa.h"

#include <QAbstractSlider>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLayout>
#include <QMenu>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QTableWidget>
#include <QTimer>

#include <array>
#include <map>
#include <memory>
#include <set>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

class Schermi : public testing::Test, protected ProgrammaIntero {
protected:
    Schermi() {
        for (const QString& nome : {u"Alfa"_s, u"Beta"_s, u"Gamma"_s})
            azienda.cliente(nome);
        for (int i = 1; i <= 3; ++i)
            azienda.documento(documentoDi(i, QString::number(i), 100 * i, 22 * i));
        avvia();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&finestra));
        tasto(finestra, Qt::Key_F2);
        tasto(finestra, Qt::Key_Return);
        tasto(finestra, Qt::Key_F10);
    }
    Vista& mostra(Schermo schermo) {
        if (schermo == Schermo::Borftel)
            modulo->documento().recordfattura = 1; // only a stored document has one
        finestra.mostra(schermo);
        QApplication::processEvents();
        return vista(schermo);
    }
};

/// In the order of README's table.
constexpr std::array tuttiGliSchermi = {Schermo::Borfte,      Schermo::Borftem,    Schermo::Borsel,
                                        Schermo::Borftea,     Schermo::Borftex,    Schermo::Borftek,
                                        Schermo::Borftec,     Schermo::Borftepa,   Schermo::Borftel,
                                        Schermo::Scadenzario, Schermo::DatiMensili};

TEST_F(Schermi, OgniComandoHaLaSuaLettera) {
    for (const Schermo schermo : tuttiGliSchermi) {
        Vista& vista = mostra(schermo);
        std::map<QString, QString> prese;
        int didascalie = 0;
        const auto prendi = [&](const QString& testo) {
            const QString lettera = QKeySequence::mnemonic(testo).toString();
            EXPECT_TRUE(lettera.isEmpty() || prese.try_emplace(lettera, testo).second)
                << qPrintable(lettera + u": "_s + prese[lettera] + u", "_s + testo);
            return !lettera.isEmpty();
        };
        for (auto* bottone : vista.findChildren<QToolButton*>()) {
            if (bottone->isVisible() && dynamic_cast<BottoneComando*>(bottone)) {
                EXPECT_TRUE(prendi(bottone->text())) << qPrintable(bottone->text());
            }
        }
        for (auto* etichetta : vista.findChildren<QLabel*>()) {
            if (etichetta->isVisible() && etichetta->buddy())
                didascalie += prendi(etichetta->text()) ? 1 : 0;
        }
        if (schermo == Schermo::Borftem || schermo == Schermo::Borftea) {
            EXPECT_GT(didascalie, 9) << qPrintable(vista.titolo());
        }
    }
    Vista& testata = mostra(Schermo::Borftem);
    const QString citta = controllo<QLabel>(testata, u"Lab1"_s)->text();
    ASSERT_TRUE(citta.contains(u'&'));
    controllo(testata, u"Text2(4)"_s)->setFocus();
    tasto(testata, static_cast<Qt::Key>(citta[citta.indexOf(u'&') + 1].toUpper().unicode()), Qt::AltModifier);
    EXPECT_EQ(fuoco(testata), u"nome"_s);
}

TEST_F(Schermi, OgniCampoHaUnNomeSuo) {
    for (const Schermo schermo : tuttiGliSchermi) {
        Vista& vista = mostra(schermo);
        std::map<QString, QString> nomi;
        for (auto* widget : vista.findChildren<QWidget*>()) {
            if (!qobject_cast<QLineEdit*>(widget) && !qobject_cast<QComboBox*>(widget))
                continue;
            const QString nome = widget->accessibleName();
            EXPECT_FALSE(nome.isEmpty()) << qPrintable(widget->objectName());
            EXPECT_TRUE(nomi.try_emplace(nome, widget->objectName()).second)
                << qPrintable(nome + u": "_s + nomi[nome] + u", "_s + widget->objectName());
        }
    }
}

TEST_F(Schermi, TabPassaPerOgniCampoETornaAlPrimo) {
    azienda.scrivi(u"borlano.fpa"_s, QByteArray("999").leftJustified(sizeof(Fpa)));
    for (const Schermo schermo : tuttiGliSchermi) {
        Vista& vista = mostra(schermo);
        std::set<const QWidget*> campi;
        for (auto* widget : vista.findChildren<QWidget*>()) {
            // One button of a group is entered, the others are chosen with the arrows.
            const bool unoDiTanti = qobject_cast<QRadioButton*>(widget) != nullptr;
            if (widget->isVisible() && widget->isEnabled() && !widget->focusProxy() && !unoDiTanti &&
                widget->focusPolicy() & Qt::TabFocus)
                campi.insert(widget);
        }
        ASSERT_FALSE(campi.empty()) << qPrintable(vista.titolo());
        QWidget* const primo = const_cast<QWidget*>(*campi.begin());
        for (const Qt::KeyboardModifiers modi : {Qt::NoModifier, Qt::ShiftModifier}) {
            primo->setFocus(Qt::TabFocusReason);
            std::set<const QWidget*> passati;
            while (passati.insert(finestra.focusWidget()).second)
                tasto(vista, Qt::Key_Tab, modi);
            EXPECT_EQ(finestra.focusWidget(), primo) << qPrintable(vista.titolo());
            for (const QWidget* campo : campi)
                EXPECT_TRUE(passati.contains(campo))
                    << qPrintable(vista.titolo() + u": "_s + campo->objectName()) << ' '
                    << campo->metaObject()->className();
        }
    }
}

TEST_F(Schermi, LaRotellaNonCambiaListeEBarre) {
    for (const Schermo schermo : tuttiGliSchermi) {
        Vista& vista = mostra(schermo);
        for (auto* lista : vista.findChildren<QComboBox*>()) {
            const QSignalBlocker zitta(lista);
            lista->addItem(u"ancora"_s);
            lista->setFocus();
            lista->setCurrentIndex(0);
            rotella(lista);
            EXPECT_EQ(lista->currentIndex(), 0) << qPrintable(lista->objectName());
        }
    }
    Vista& testata = mostra(Schermo::Borftem);
    auto* barra = controllo<QAbstractSlider>(testata, u"HScroll1"_s);
    const int prima = barra->value();
    rotella(barra);
    EXPECT_EQ(barra->value(), prima);
    barra->setFocus();
    rotella(barra);
    EXPECT_NE(barra->value(), prima);
}

TEST_F(Schermi, UnTastoTenutoPremutoAgisceUnaVolta) {
    mostra(Schermo::Borfte);
    tieni(finestra, Qt::Key_F2);
    EXPECT_TRUE(finestra.vista(Schermo::Borftem)->isVisible());
    controllo(*finestra.vista(Schermo::Borftem), u"Text2(0)"_s)->setFocus();
    tieni(finestra, Qt::Key_F10);
    EXPECT_TRUE(finestra.vista(Schermo::Borftea)->isVisible()) << "F10 went on to save the document";
    EXPECT_TRUE(operatore.messaggi.isEmpty());
    tieni(finestra, Qt::Key_Escape);
    EXPECT_TRUE(finestra.isVisible()) << "Esc went on to end the program";
    EXPECT_TRUE(finestra.vista(Schermo::Borfte)->isVisible());
}

TEST_F(Schermi, UnComandoVedeLaDataComeSeIlCampoFosseLasciato) {
    modulo->documento().dddp[0] = {};
    Vista& parcella = mostra(Schermo::Borftek);
    for (const bool clicDelTopo : {false, true}) {
        modulo->contesto().sessione.righelette = false;
        mostra(Schermo::Borftek);
        controllo(parcella, u"artic(0)"_s)->setFocus(Qt::TabFocusReason);
        scrivi(parcella, clicDelTopo ? u"020315"_s : u"31042016"_s);
        if (clicDelTopo)
            clic(parcella, u"comando(1)"_s);
        else
            tasto(parcella, Qt::Key_F10);
        EXPECT_EQ(modulo->documento().dddp[0].data, clicDelTopo ? u"02/03/2015"_s : u"31/04/2016"_s);
    }
}

TEST_F(Schermi, RegimiCambiatiFinoAllaConfermaDelleRighe) {
    modulo->documento().recordfattura = 1;
    modulo->documento().coppia.fte.parcella = 2;
    Vista& testata = mostra(Schermo::Borftem);
    Vista& documento = *finestra.vista(Schermo::Borftea);
    const auto* avviso = controllo<QLabel>(documento, u"regimicambiati"_s);
    tasto(testata, Qt::Key_F10);
    EXPECT_FALSE(avviso->isVisible());
    mostra(Schermo::Borftem);
    controllo(testata, u"ivaono"_s)->setFocus();
    tasto(testata, Qt::Key_Down);
    tasto(testata, Qt::Key_F10);
    EXPECT_TRUE(avviso->isVisible());
    foto(documento, u"regimi_cambiati"_s);
    tasto(documento, Qt::Key_F3);
    tasto(finestra, Qt::Key_Escape);
    EXPECT_TRUE(avviso->isVisible()) << "nothing was confirmed";
    tasto(documento, Qt::Key_F3);
    tasto(finestra, Qt::Key_F10);
    EXPECT_TRUE(documento.isVisible());
    EXPECT_FALSE(avviso->isVisible());
}

/// Keys of commands as README writes them: "F10", "Ctrl+F7", and each of "Ctrl+1 to 3".
std::set<QString> tastiScritti(const QString& testo) {
    static const QRegularExpression serie(u"Ctrl\\+(\\d) to (\\d)"_s);
    static const QRegularExpression tasto(u"(Ctrl\\+)?\\bF\\d+|Ctrl\\+(?:[A-Z0-9]\\b(?! to)|End)"_s);
    std::set<QString> tasti;
    for (const auto& trovata : serie.globalMatch(testo)) {
        for (int i = trovata.captured(1).toInt(); i <= trovata.captured(2).toInt(); ++i)
            tasti.insert(u"Ctrl+%1"_s.arg(i));
    }
    for (const auto& trovata : tasto.globalMatch(testo))
        tasti.insert(trovata.captured());
    return tasti;
}

QString leggi(const QString& nome) {
    QFile file(QStringLiteral(BOR_SOURCE_DIR "/") + nome);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The keys of all screens, then those of each, against what the screens have.
void diceITasti(Finestra& finestra, const QString& testo, const QString& tabella, const QString& riga1) {
    const QStringList parti = testo.split(tabella);
    ASSERT_EQ(parti.size(), 2);
    const std::set<QString> comuni = tastiScritti(parti[0]);
    QStringList righe = parti[1].split(u'\n', Qt::SkipEmptyParts).filter(QRegularExpression(riga1));
    ASSERT_EQ(righe.size(), std::ssize(tuttiGliSchermi));
    for (const Schermo schermo : tuttiGliSchermi) {
        const Vista& vista = *finestra.vista(schermo);
        std::set<QString> ci;
        for (const auto* scorciatoia : vista.findChildren<QShortcut*>())
            ci.merge(tastiScritti(scorciatoia->key().toString()));
        for (const TastoSchermo& altro : vista.tasti())
            ci.merge(tastiScritti(QString(altro.tasto).replace(u"Fine"_s, u"End"_s)));
        std::set<QString> detti = comuni;
        const QString riga = righe.takeFirst();
        detti.merge(tastiScritti(riga));
        for (const QString& tasto : comuni)
            ci.insert(tasto);
        EXPECT_EQ(QStringList(ci.begin(), ci.end()).join(u' '),
                  QStringList(detti.begin(), detti.end()).join(u' '))
            << qPrintable(riga);
    }
}

TEST_F(Schermi, ReadmeEGuidaDiconoITastiCheCiSono) {
    QString readme = leggi(u"README.md"_s);
    readme = readme.mid(readme.indexOf(u"## Keys"_s));
    readme = readme.left(readme.indexOf(u"\n## "_s, 3));
    diceITasti(finestra, readme, u"| screen | keys |"_s, u"^\\| [a-z]"_s);
    // As README writes them.
    QString guida = leggi(u"docs/guida/tasti.md"_s);
    guida.remove(u'`').replace(u" a Ctrl+"_s, u" to "_s).replace(u"Ctrl+Fine"_s, u"Ctrl+End"_s);
    diceITasti(finestra, guida, u"| schermo | tasti |"_s, u"^\\| \\["_s);
}

TEST_F(Schermi, F1ApreIlCapitoloDelloSchermo) {
    // Company data that are complete, or the form of the electronic invoice closes itself.
    azienda.scrivi(u"borlano.fpa"_s, QByteArray("999").leftJustified(sizeof(Fpa)));
    const QString pagine = installato(u"guida"_s) + u'/';
    const QDir capitoli(QStringLiteral(BOR_SOURCE_DIR "/docs/guida"));
    for (const Schermo schermo : tuttiGliSchermi) {
        sistema.aperti.clear();
        Vista& vista = mostra(schermo);
        const QString titolo = vista.titolo();
        if (schermo == Schermo::Borftex)
            tasto(vista, Qt::Key_F1);
        tasto(vista, Qt::Key_F1, schermo == Schermo::Borftex ? Qt::ShiftModifier : Qt::NoModifier);
        EXPECT_EQ(sistema.aperti, QStringList{pagine + capitolo(schermo) + u".html"_s}) << qPrintable(titolo);
        EXPECT_TRUE(capitoli.exists(capitolo(schermo) + u".md"_s)) << qPrintable(titolo);
        clic(vista, u"guida"_s);
        EXPECT_EQ(sistema.aperti.size(), 2) << qPrintable(titolo);
    }
    EXPECT_TRUE(operatore.messaggi.isEmpty());
    sistema.esitoApri = EsitoApri::SenzaProgramma;
    tasto(mostra(Schermo::Borfte), Qt::Key_F1);
    EXPECT_EQ(operatore.messaggi.size(), 1);

    Vista& registro = mostra(Schermo::Borfte);
    tasto(registro, Qt::Key_L, Qt::ControlModifier);
    auto* sopra = registro.findChild<QDialog*>(u"finestraVista"_s);
    ASSERT_TRUE(sopra && QTest::qWaitForWindowActive(sopra));
    sistema.aperti.clear();
    tasto(*sopra, Qt::Key_F1);
    EXPECT_EQ(sistema.aperti, QStringList{pagine + u"registro.html"_s});
}

TEST_F(Schermi, F12MostraITastiDelloSchermo) {
    Vista& vista = mostra(Schermo::Borftex);
    tasto(vista, Qt::Key_F12);
    auto* tasti = vista.findChild<QDialog*>(u"tasti"_s);
    ASSERT_TRUE(tasti && tasti->isVisible());
    auto* elenco = tasti->findChild<QTableWidget*>(u"elencoTasti"_s);
    EXPECT_FALSE(elenco->findItems(u"F10"_s, Qt::MatchStartsWith).isEmpty());
    EXPECT_FALSE(elenco->findItems(u"F1"_s, Qt::MatchExactly).isEmpty());
    foto(*tasti, u"tasti"_s);
    ASSERT_TRUE(QTest::qWaitForWindowActive(tasti));
    tasto(*tasti, Qt::Key_F1);
    EXPECT_EQ(sistema.aperti, QStringList{installato(u"guida"_s) + u"/tasti.html"_s});
    tasto(*tasti, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(sistema.aperti.size(), 2);
    QTest::keyClick(tasti, Qt::Key_Escape);
    EXPECT_FALSE(tasti->isVisible());
}

TEST_F(Schermi, AncheQtParlaItaliano) {
    QFileDialog dialogo;
    dialogo.setOption(QFileDialog::DontUseNativeDialog);
    QStringList testi;
    for (const auto* etichetta : dialogo.findChildren<QLabel*>())
        testi.append(etichetta->text());
    for (const auto* bottone : dialogo.findChildren<QAbstractButton*>())
        testi << bottone->text() << bottone->toolTip();
    QLineEdit campo;
    const QMenu* menu = campo.createStandardContextMenu();
    for (const auto* azione : menu->actions())
        testi.append(azione->text());
    const QRegularExpression inglese(
        u"\\b(Open|Cancel|Look in|Files|Back|Forward|Copy|Paste|Select|Undo|Folder|Directory|View)\\b"_s);
    for (const QString& testo : testi)
        EXPECT_FALSE(QString(testo).remove(u'&').contains(inglese)) << qPrintable(testo);
    EXPECT_EQ(QLocale().language(), QLocale::Italian);
}

TEST_F(Schermi, InCimaSiLeggeDiChiEIlDocumento) {
    modulo->documento().estremi.numero = u"12"_s;
    modulo->documento().testata.cliente.sede = {.ragione1 = u"Alfa & <b>C."_s, .citta = u"Lodi"_s};
    for (const Schermo schermo : {Schermo::Borftea, Schermo::Borftex, Schermo::Borftek, Schermo::Borftec,
                                  Schermo::Borftepa, Schermo::Borftel}) {
        Vista& vista = mostra(schermo);
        auto* riga = controllo<QLabel>(vista, u"intestazione"_s);
        EXPECT_TRUE(riga->isVisibleTo(&vista));
        EXPECT_TRUE(riga->text().startsWith(u"Fattura 12 del "_s)) << qPrintable(riga->text());
        EXPECT_TRUE(riga->text().endsWith(u" - Alfa & <b>C., Lodi"_s));
    }
}

TEST_F(Schermi, UnImportoInCimaNonSiTagliaInSilenzio) {
    RigaElisa cima(Qt::ElideMiddle);
    cima.setText(u"Fattura 4 del 23/11/2026 - Oleificio San Zeno, Zevio - netto a pagare 11,96"_s);
    cima.resize(cima.fontMetrics().horizontalAdvance(cima.text()) + 4, 20);
    EXPECT_EQ(cima.mostrata(), cima.text());
    cima.resize(cima.width() * 3 / 4, 20);
    EXPECT_TRUE(cima.mostrata().contains(u'…')) << qPrintable(cima.mostrata());
    EXPECT_TRUE(cima.mostrata().endsWith(u"netto a pagare 11,96"_s)) << qPrintable(cima.mostrata());
    EXPECT_TRUE(dynamic_cast<RigaElisa*>(controllo<QLabel>(mostra(Schermo::Borftea), u"intestazione"_s)));
}

TEST_F(Schermi, UnaDomandaCheDistruggeHaNoSullInvio) {
    OperatoreQt vero;
    const auto conInvio = [&vero](Predefinita predefinita) {
        QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
        return vero.chiedi(u"Sei proprio sicuro?"_s, u"Eliminazione"_s, Icona::Domanda, predefinita);
    };
    EXPECT_FALSE(conInvio(Predefinita::No));
    EXPECT_TRUE(conInvio(Predefinita::Si));
}

TEST_F(Schermi, SuUnoSchermoPiccoloIComandiRestanoInVistaEIlRestoScorre) {
    EXPECT_LE(finestra.width(), finestra.screen()->availableSize().width());
    EXPECT_LE(finestra.height(), finestra.screen()->availableSize().height());
    modulo->documento().integrata = Integrata::Intracomunitaria;
    for (const QSize misura : {QSize(1024, 700), QSize(960, 480)}) {
        finestra.resize(misura);
        for (const Schermo schermo : tuttiGliSchermi) {
            Vista& vista = mostra(schermo);
            finestra.mostra(schermo);
            if (!vista.isVisible())
                continue; // the electronic invoice of a company without its data
            ASSERT_EQ(finestra.size(), misura) << qPrintable(vista.titolo());
            const auto inVista = [](const QWidget* widget) {
                return widget->visibleRegion().boundingRect().size() == widget->size();
            };
            foto(finestra, u"piccolo_%1_%2"_s.arg(misura.width()).arg(static_cast<int>(schermo)));
            const QWidget* barra = vista.layout()->itemAt(vista.layout()->count() - 1)->widget();
            for (const auto* bottone : barra->findChildren<QToolButton*>()) {
                EXPECT_TRUE(!bottone->isVisible() || inVista(bottone)) << qPrintable(bottone->objectName());
            }
            for (auto* campo : vista.findChildren<QLineEdit*>()) {
                if (!campo->isVisible() || !campo->isEnabled())
                    continue;
                campo->setFocus(Qt::TabFocusReason);
                EXPECT_TRUE(inVista(campo)) << qPrintable(vista.titolo() + u": "_s + campo->objectName());
            }
        }
    }
}

} // namespace
} // namespace bor
