// Asks every caption, button, box and list of every screen whether its text fits, on small and large screens
// and with large letters, on the demo company; and whether all of it can be read, light and dark.
#include "app/modulo.h"
#include "app/schermi.h"
#include "borcrea/creaazienda.h"
#include "common/avvio.h"
#include "support/porte_finte.h"
#include "support/stampante_finta.h"
#include "ui/aspetto.h"
#include "ui/campi.h"
#include "ui/finestra.h"
#include "ui/gesti.h"
#include "ui/tonodesktop.h"

#include <QComboBox>
#include <QDBusVariant>
#include <QGroupBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLayout>
#include <QScrollArea>
#include <QTableView>
#include <QTemporaryDir>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace bor {
namespace {

/// Whoever rests the pointer there reads the whole text.
bool siLeggeColPuntatore(QWidget* widget, const QString& testo, QPoint posto) {
    if (widget->toolTip().contains(testo))
        return true;
    QToolTip::showText({}, {});
    QHelpEvent aiuto(QEvent::ToolTip, posto, widget->mapToGlobal(posto));
    QApplication::sendEvent(widget, &aiuto);
    const bool letto = QToolTip::text().contains(testo);
    QToolTip::showText({}, {});
    return letto;
}

bool piuLargo(const QWidget& widget, const QString& testo, int posto) {
    return widget.fontMetrics().size(Qt::TextShowMnemonic, testo).width() > posto;
}

QString nomeDi(const QWidget& widget) {
    return widget.objectName() + u" \""_s + widget.accessibleName() + u'"';
}

/// What of one widget cannot be read; empty when all can.
QString tagliato(QWidget* widget) {
    const QPoint mezzo = widget->rect().center();
    if (auto* etichetta = qobject_cast<QLabel*>(widget)) {
        const bool bassa = etichetta->wordWrap()
                               ? etichetta->heightForWidth(etichetta->width()) > etichetta->height()
                               : etichetta->fontMetrics().height() > etichetta->height();
        const bool stretta =
            !etichetta->wordWrap() && piuLargo(*etichetta, etichetta->text(), etichetta->width());
        return bassa || (stretta && !etichetta->toolTip().contains(etichetta->text())) ? etichetta->text()
                                                                                       : QString();
    }
    if (auto* campo = qobject_cast<QLineEdit*>(widget)) {
        // A number or a date is always seen whole.
        const bool intero = campo->validator() || campo->maxLength() <= 10;
        const bool stretto = piuLargo(*campo, campo->text(), campo->width() - 8);
        const bool nascosto = stretto && (intero || !siLeggeColPuntatore(campo, campo->text(), mezzo));
        return nascosto || campo->fontMetrics().height() > campo->height() ? nomeDi(*campo) : QString();
    }
    if (auto* lista = qobject_cast<QComboBox*>(widget)) {
        constexpr int freccia = 24;
        return piuLargo(*lista, lista->currentText(), lista->width() - freccia) &&
                       !siLeggeColPuntatore(lista, lista->currentText(), mezzo)
                   ? nomeDi(*lista)
                   : QString();
    }
    if (auto* bottone = qobject_cast<QAbstractButton*>(widget)) {
        const QSize serve = bottone->text().isEmpty() ? bottone->iconSize() : bottone->sizeHint();
        return serve.width() > bottone->width() || serve.height() > bottone->height() ? bottone->text()
                                                                                      : QString();
    }
    if (const auto* gruppo = qobject_cast<QGroupBox*>(widget))
        return piuLargo(*gruppo, gruppo->title(), gruppo->width()) ? gruppo->title() : QString();
    return {};
}

/// Headings and the first rows of a grid.
QStringList tagliatiIn(QTableView& griglia) {
    QStringList trovati;
    const QHeaderView& testata = *griglia.horizontalHeader();
    for (int c = 0; c < testata.count(); ++c) {
        if (testata.isSectionHidden(c))
            continue;
        const QString titolo = griglia.model()->headerData(c, Qt::Horizontal).toString();
        if (testata.sectionSizeHint(c) > testata.sectionSize(c) || griglia.columnViewportPosition(c) < 0)
            trovati.append(u"heading "_s + titolo);
        for (int r = 0; r < 20; ++r) {
            const QModelIndex cella = griglia.model()->index(r, c);
            const QRect posto = griglia.visualRect(cella);
            const QString testo = cella.data().toString();
            if (griglia.viewport()->rect().contains(posto.center()) &&
                piuLargo(griglia, testo, posto.width()) &&
                !siLeggeColPuntatore(griglia.viewport(), testo, posto.center()))
                trovati.append(u"cell "_s + testo);
        }
    }
    return trovati;
}

bool parla(const QWidget* widget) {
    return qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget) ||
           qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const QGroupBox*>(widget) || qobject_cast<const QAbstractItemView*>(widget);
}

/// The parts that Qt puts into its own widgets, and the list that floats over the goods lines, lie elsewhere.
bool nelloSchermo(const QWidget* widget) {
    const QWidget* padre = widget->parentWidget();
    return widget->isVisible() && parla(widget) && !qobject_cast<const QLineEdit*>(padre) &&
           !qobject_cast<const QAbstractScrollArea*>(padre) && !qobject_cast<const QComboBox*>(padre);
}

QStringList difetti(QWidget& schermo) {
    QStringList trovati;
    const QList<QWidget*> tutti = schermo.findChildren<QWidget*>();
    for (QWidget* widget : tutti) {
        if (!nelloSchermo(widget))
            continue;
        if (const QString testo = tagliato(widget); !testo.isEmpty())
            trovati.append(u"cut: "_s + testo);
        if (auto* griglia = qobject_cast<QTableView*>(widget))
            trovati += tagliatiIn(*griglia);
        if (!widget->parentWidget()->rect().contains(widget->geometry()))
            trovati.append(u"beyond its frame: "_s + nomeDi(*widget));
        for (const QWidget* altro : tutti) {
            if (altro < widget && altro->parentWidget() == widget->parentWidget() && nelloSchermo(altro) &&
                altro->geometry().intersects(widget->geometry()))
                trovati.append(u"overlap: "_s + nomeDi(*widget) + u", "_s + nomeDi(*altro));
        }
    }
    return trovati;
}

class Misure : public testing::TestWithParam<double> {
protected:
    static void SetUpTestSuite() {
        unita = std::make_unique<QTemporaryDir>();
        EXPECT_TRUE(
            crea::creaAzienda(
                {.sorgente = QStringLiteral(BOR_SOURCE_DIR "/demo"), .unita = unita->path(), .codice = 1})
                .isEmpty());
    }
    static void TearDownTestSuite() { unita.reset(); }

    Misure() {
        QFont grande = solito;
        grande.setPointSizeF(solito.pointSizeF() * GetParam());
        QApplication::setFont(grande);
        finestra = std::make_unique<Finestra>();
        modulo = Modulo::avvia(rigaAvvio(1), Percorsi(unita->path(), unita->filePath(u"c"_s)),
                               {operatore, orologio, sistema, *finestra, stampante});
        aggiungiSchermi(*finestra, *modulo);
        finestra->show();
    }
    ~Misure() override {
        finestra.reset();
        QApplication::setFont(solito);
    }
    /// What is shown changes the room that it needs, which changes what stands above it.
    static void assesta() {
        for (int volta = 0; volta < 3; ++volta)
            QApplication::processEvents();
    }
    /// The screens of a document in turn, its panels among them.
    void apri(int riga, const QList<Schermo>& schermi, const std::function<void(Schermo)>& guarda) {
        finestra->mostra(Schermo::Borfte);
        modulo->borfte().apertura().documento(riga);
        for (const Schermo schermo : schermi) {
            modulo->contesto().sessione.righelette = false;
            finestra->mostra(schermo);
            assesta();
            ASSERT_TRUE(finestra->vista(schermo)->isVisible());
            guarda(schermo);
        }
    }
    void guardaTutti(const std::function<void(Schermo)>& guarda) {
        finestra->mostra(Schermo::Borfte);
        assesta();
        guarda(Schermo::Borfte);
        for (const Schermo prospetto : {Schermo::Scadenzario, Schermo::DatiMensili}) {
            finestra->mostra(prospetto);
            assesta();
            guarda(prospetto);
        }
        apri(99, {Schermo::Borftem, Schermo::Borsel, Schermo::Borftea, Schermo::Borftex, Schermo::Borftec},
             guarda);
        apri(3, {Schermo::Borftem, Schermo::Borftea, Schermo::Borftek}, guarda);
        for (const auto prospetto : {Borftea::Prospetto::IvaDifferita, Borftea::Prospetto::Ritenute,
                                     Borftea::Prospetto::Spesometro, Borftea::Prospetto::RigheIva}) {
            modulo->borftea().mostraProspetto(prospetto);
            apri(3, {Schermo::Borftea}, guarda);
        }
        modulo->borfte().opzioni().cambiaFiltro(FiltroFatture::SoloPa);
        apri(0, {Schermo::Borftepa, Schermo::Borftel}, guarda);
        for (const auto prospetto : {Borftel::Prospetto::Righe, Borftel::Prospetto::Azienda}) {
            modulo->borftel().mostra(prospetto);
            finestra->mostra(Schermo::Borftel);
            assesta();
            guarda(Schermo::Borftel);
        }
        modulo->borfte().opzioni().cambiaFiltro(FiltroFatture::Tutte);
    }

    const QFont solito = QApplication::font();
    static inline std::unique_ptr<QTemporaryDir> unita; ///< the demo company, which nothing here changes
    OperatoreFinto operatore;
    OrologioFermo orologio;
    SistemaFinto sistema;
    StampanteFinta stampante;
    std::unique_ptr<Finestra> finestra;
    std::unique_ptr<Modulo> modulo;
};

INSTANTIATE_TEST_SUITE_P(Caratteri, Misure, testing::Values(1.0, 1.5));

TEST_P(Misure, OgniTestoDiOgniSchermoSiLeggeEIComandiSonoInVista) {
    for (const QSize misura : {QSize(960, 540), QSize(1024, 768), QSize(1366, 768), QSize(1920, 1080)}) {
        finestra->resize(misura);
        guardaTutti([&](Schermo schermo) {
            Vista& vista = *finestra->vista(schermo);
            const QString dove = u"%1x%2 x %3, %4"_s.arg(misura.width())
                                     .arg(misura.height())
                                     .arg(GetParam())
                                     .arg(vista.titolo());
            EXPECT_EQ(finestra->size(), misura) << qPrintable(dove);
            EXPECT_TRUE(difetti(vista).isEmpty()) << qPrintable(dove + u'\n' + difetti(vista).join(u'\n'));
            foto(*finestra,
                 u"misura_%1_%2_%3"_s.arg(misura.width()).arg(GetParam()).arg(static_cast<int>(schermo)));
            const QWidget* barra = vista.layout()->itemAt(vista.layout()->count() - 1)->widget();
            EXPECT_EQ(barra->visibleRegion().boundingRect(), barra->rect()) << qPrintable(dove);
            for (const auto* area : vista.findChildren<QScrollArea*>()) {
                // With the usual letters nothing hides at the side, from the smallest screen on.
                EXPECT_LE(area->widget()->width(), area->viewport()->width() * (GetParam() > 1 ? 1.5 : 1))
                    << qPrintable(dove);
            }
        });
    }
}

TEST_P(Misure, SuUnoSchermoGrandeGliElenchiCrescono) {
    const auto misura = [this](QSize schermo) {
        finestra->resize(schermo);
        finestra->mostra(Schermo::Borfte);
        QApplication::processEvents();
        return controllo(*finestra->vista(Schermo::Borfte), u"elenco"_s)->size();
    };
    const QSize piccolo = misura({1024, 768});
    const QSize grande = misura({1920, 1080});
    EXPECT_EQ(grande.width() - piccolo.width(), 1920 - 1024);
    EXPECT_GE(grande.height() - piccolo.height(), 1080 - 768);
}

TEST(Difetti, LaProvaVedeCioCheNonSiLegge) {
    QWidget schermo;
    schermo.resize(400, 200);
    auto* etichetta = new QLabel(u"Importo complessivo documento"_s, &schermo);
    etichetta->setGeometry(0, 0, 60, 30);
    etichetta->setToolTip(u"Totale"_s);
    auto* bottone = new BottoneComando(u"b"_s, u"Nota di credito"_s, u"fattura"_s, {}, &schermo);
    bottone->setGeometry(80, 0, 40, 40);
    auto* sotto = new QLabel(u"a"_s, &schermo);
    sotto->setGeometry(100, 20, 60, 30);
    auto* importo = new CampoImporto(u"i"_s, u"Imponibile"_s, 0, &schermo);
    importo->setGeometry(200, 0, 50, 26);
    importo->setText(u"1234567.89"_s);
    auto* fuori = new QLabel(u"b"_s, &schermo);
    fuori->setGeometry(390, 100, 40, 30);
    schermo.show();
    const QString visti = difetti(schermo).join(u'\n');
    for (const QString& difetto : {u"cut: Importo complessivo documento"_s, u"cut: Nota di credito"_s,
                                   u"cut: i \"Imponibile\""_s, u"beyond its frame:  \"\""_s, u"overlap: "_s})
        EXPECT_EQ(visti.count(difetto), 1) << qPrintable(difetto);
}

double luminosita(const QColor& colore) {
    const auto parte = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * parte(colore.redF()) + 0.7152 * parte(colore.greenF()) + 0.0722 * parte(colore.blueF());
}

double contrasto(const QColor& a, const QColor& b) {
    const double diA = luminosita(a);
    const double diB = luminosita(b);
    return (std::max(diA, diB) + 0.05) / (std::min(diA, diB) + 0.05);
}

TEST(Tinte, SiLeggeTuttoSuChiaroESuScuro) {
    for (const Tono tono : {Tono::Chiaro, Tono::Scuro}) {
        applicaTono(tono);
        const QPalette tinte = QApplication::palette();
        EXPECT_EQ(tonoDi(tinte), tono);
        for (const auto& [testo, fondo] : {std::pair{QPalette::WindowText, QPalette::Window},
                                           {QPalette::Text, QPalette::Base},
                                           {QPalette::Text, QPalette::AlternateBase},
                                           {QPalette::ButtonText, QPalette::Button},
                                           {QPalette::HighlightedText, QPalette::Highlight},
                                           {QPalette::ToolTipText, QPalette::ToolTipBase}})
            EXPECT_GE(contrasto(tinte.color(testo), tinte.color(fondo)), 4.5) << int(testo);
        // Stripes as companies have them: the usual ones, and colours of an operator's own.
        for (const QColor& striscia : {QColor(Qt::white), QColor(0xF3, 0xFA, 0xFC), QColor(0xFF, 0xFF, 0x80),
                                       QColor(0x00, 0x00, 0x80), QColor(0x80, 0x80, 0x80)}) {
            const QColor fondo = fondoIn(tono, striscia);
            EXPECT_GE(contrasto(testoSu(fondo), fondo), 4.5) << qPrintable(striscia.name());
        }
        QLabel avviso(u"Regimi cambiati"_s);
        avviso.setProperty("avviso", true);
        avviso.ensurePolished();
        EXPECT_GE(contrasto(avviso.palette().color(QPalette::WindowText), tinte.color(QPalette::Window)),
                  4.5);
        QLineEdit errato;
        errato.setProperty("errato", true);
        errato.show();
        const QColor fondo = errato.grab().toImage().pixelColor(errato.width() / 2, errato.height() / 2);
        EXPECT_GE(contrasto(tinte.color(QPalette::Text), fondo), 4.5);
        EXPECT_NE(fondo, tinte.color(QPalette::Base));
        QLineEdit scarto;
        scarto.setProperty("scarto", true);
        scarto.ensurePolished();
        EXPECT_GE(contrasto(scarto.palette().color(QPalette::Text), tinte.color(QPalette::Base)), 4.5);
        EXPECT_NE(scarto.palette().color(QPalette::Text), tinte.color(QPalette::Text));
    }
    applicaTono(Tono::Chiaro);
}

TEST(Tinte, LaRispostaDellaScrivania) {
    const auto avvolto = [](const QVariant& valore) { return QVariant::fromValue(QDBusVariant(valore)); };
    EXPECT_EQ(tonoRisposto(avvolto(avvolto(1U))), Tono::Scuro);
    EXPECT_EQ(tonoRisposto(avvolto(2U)), Tono::Chiaro);
    for (const QVariant& nessuna : {QVariant(), QVariant(0U), QVariant(u"dark"_s), avvolto(7U)})
        EXPECT_EQ(tonoRisposto(nessuna), std::nullopt);
}

} // namespace
} // namespace bor
