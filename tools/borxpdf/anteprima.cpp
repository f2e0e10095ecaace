#include "borxpdf/anteprima.h"

#include "borxpdf/pdf.h"
#include "common/posti.h"

#include <QAction>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolBar>

#include <algorithm>
#include <span>
#include <vector>

using namespace Qt::StringLiterals;

namespace bor::pdf {
namespace {

constexpr double kZoomMinimo = 0.25;
constexpr double kZoomMassimo = 5;
constexpr double kPasso = 1.25;
constexpr int kMargine = 12; // pixels around the sheet

} // namespace

/// The sheet on the desk: one page at the present zoom.
class Anteprima::Foglio : public QWidget {
public:
    explicit Foglio(DocumentoPdf& documento) : m_documento(documento) { ridimensiona(); }

    double zoom() const { return m_zoom; }
    void setZoom(double zoom) {
        m_zoom = std::clamp(zoom, kZoomMinimo, kZoomMassimo);
        ridimensiona();
    }
    qsizetype pagina() const { return m_pagina; }
    void setPagina(qsizetype pagina) {
        m_pagina = pagina;
        update();
    }
    /// Width in pixels of the sheet at natural size.
    double larghezzaNaturale() const { return m_documento.layout.pagina().width() / 25.4 * logicalDpiX(); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pittore(this);
        pittore.fillRect(rect(), Qt::white);
        const LayoutPdf& layout = m_documento.layout;
        pittore.scale(m_zoom * logicalDpiX() / kUnitaPollice, m_zoom * logicalDpiX() / kUnitaPollice);
        pittore.translate(-unitaDaMillimetri(layout.taglioSinistra), -unitaDaMillimetri(layout.taglioAlto));
        m_documento.disegnatore.disegna(pittore, elemento(m_documento.stampa.pagine, m_pagina));
    }

private:
    void ridimensiona() {
        const QSizeF pagina = m_documento.layout.pagina();
        const double larghezza = larghezzaNaturale() * m_zoom;
        setFixedSize(qRound(larghezza), qRound(larghezza * pagina.height() / pagina.width()));
        update();
    }

    DocumentoPdf& m_documento;
    double m_zoom = 1;
    qsizetype m_pagina = 0;
};

Anteprima::Anteprima(DocumentoPdf documento, std::function<void()> apriGuida)
    : m_documento(std::move(documento)), m_apriGuida(std::move(apriGuida)), m_foglio(new Foglio(m_documento)),
      m_area(new QScrollArea(this)), m_didascalia(new QLabel(this)) {
    setWindowTitle(u"Anteprima di stampa"_s);
    m_foglio->setObjectName(u"foglio"_s);
    m_foglio->setAccessibleName(u"Pagina stampata"_s);
    m_didascalia->setObjectName(u"pagina"_s);
    m_area->setWidget(m_foglio);
    m_area->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_area->setBackgroundRole(QPalette::Dark);
    m_area->setFocusPolicy(Qt::StrongFocus);
    setCentralWidget(m_area);
    preparaComandi();
    siAffianca();
    mostraPagina(0);
    m_area->setFocus();
}

Anteprima::~Anteprima() = default;

void Anteprima::preparaComandi() {
    auto* barra = addToolBar(u"Comandi"_s);
    barra->setMovable(false);
    const auto comando = [&](const QString& testo, const QList<QKeySequence>& tasti, const auto& azione) {
        QAction* nuova = barra->addAction(testo);
        nuova->setShortcuts(tasti);
        nuova->setToolTip(u"%1 (%2)"_s.arg(testo, tasti.first().toString(QKeySequence::NativeText)));
        connect(nuova, &QAction::triggered, this, azione);
    };
    comando(u"Pagina precedente"_s, {Qt::CTRL | Qt::Key_PageUp},
            [this] { mostraPagina(m_foglio->pagina() - 1); });
    comando(u"Pagina successiva"_s, {Qt::CTRL | Qt::Key_PageDown},
            [this] { mostraPagina(m_foglio->pagina() + 1); });
    barra->addWidget(m_didascalia);
    comando(u"Ingrandisci"_s, {Qt::Key_Plus, QKeySequence::ZoomIn}, [this] { ingrandisci(kPasso); });
    comando(u"Riduci"_s, {Qt::Key_Minus, QKeySequence::ZoomOut}, [this] { ingrandisci(1 / kPasso); });
    comando(u"Larghezza"_s, {Qt::Key_L}, [this] { adattaLarghezza(); });
    comando(u"Stampa"_s, {QKeySequence::Print}, [this] { chiediStampa(); });
    comando(u"Chiudi"_s, {Qt::Key_Escape}, [this] { close(); });

    const auto tasto = [this](Qt::Key quale, const auto& azione) {
        auto* nuova = new QAction(this);
        nuova->setShortcut(quale);
        connect(nuova, &QAction::triggered, this, azione);
        addAction(nuova);
    };
    tasto(Qt::Key_F1, m_apriGuida);
    tasto(Qt::Key_PageUp, [this] { scorri(-1); });
    tasto(Qt::Key_PageDown, [this] { scorri(1); });
    tasto(Qt::Key_Home, [this] { mostraPagina(0); });
    tasto(Qt::Key_End, [this] { mostraPagina(std::ssize(m_documento.stampa.pagine) - 1); });
}

/// At the right edge of the screen and as high as it: what is printed stands beside the document on screen.
void Anteprima::siAffianca() {
    constexpr int comoda = 900;
    const QRect libera = screen()->availableGeometry();
    constexpr int cornice = 4;
    const int titolo = style()->pixelMetric(QStyle::PM_TitleBarHeight) + kMargine;
    resize(std::min(std::max(libera.width() / 2, comoda), libera.width() - cornice),
           libera.height() - titolo);
    move(libera.right() + 1 - width() - cornice, libera.top());
}

/// A page key first brings the rest of the page into view, then the page beyond.
void Anteprima::scorri(int verso) {
    QScrollBar* barra = m_area->verticalScrollBar();
    const bool inFondo = barra->value() == (verso > 0 ? barra->maximum() : barra->minimum());
    if (!inFondo) {
        barra->setValue(barra->value() + verso * barra->pageStep());
        return;
    }
    const qsizetype prima = m_foglio->pagina();
    mostraPagina(prima + verso);
    if (verso < 0 && m_foglio->pagina() != prima)
        barra->setValue(barra->maximum());
}

void Anteprima::chiediStampa() {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setDocName(windowTitle());
    QPrintDialog dialogo(&stampante, this);
    dialogo.setMinMax(1, static_cast<int>(std::ssize(m_documento.stampa.pagine)));
    if (dialogo.exec() == QDialog::Accepted && !stampa(stampante))
        QMessageBox::critical(
            this, u"Attenzione"_s,
            u"La stampante non ha accettato il documento: controllatela e ripetete la stampa."_s);
}

bool Anteprima::stampa(QPrinter& stampante) {
    const std::vector<Pagina>& tutte = m_documento.stampa.pagine;
    const auto quante = static_cast<int>(std::ssize(tutte));
    const int prima = std::clamp(stampante.fromPage(), 1, quante);
    const int ultima = stampante.toPage() == 0 ? quante : std::clamp(stampante.toPage(), prima, quante);
    stampante.setFullPage(true);
    stampante.setPageSize(
        QPageSize(m_documento.layout.pagina(), QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch));
    return disegnaPagine(stampante,
                         std::span(tutte).subspan(static_cast<std::size_t>(prima - 1),
                                                  static_cast<std::size_t>(ultima - prima + 1)),
                         m_documento.layout, m_documento.disegnatore);
}

void Anteprima::mostraPagina(qsizetype pagina) {
    const qsizetype pagine = std::ssize(m_documento.stampa.pagine);
    if (pagina < 0 || pagina >= pagine)
        return;
    m_foglio->setPagina(pagina);
    m_area->verticalScrollBar()->setValue(0);
    m_didascalia->setText(u" Pagina %1 di %2 "_s.arg(pagina + 1).arg(pagine));
}

void Anteprima::ingrandisci(double fattore) {
    m_aLarghezza = false;
    m_foglio->setZoom(m_foglio->zoom() * fattore);
}

void Anteprima::adattaLarghezza() {
    m_aLarghezza = true;
    const int libera = m_area->width() - m_area->verticalScrollBar()->sizeHint().width() - 2 * kMargine;
    m_foglio->setZoom(libera / m_foglio->larghezzaNaturale());
}

void Anteprima::resizeEvent(QResizeEvent* evento) {
    QMainWindow::resizeEvent(evento);
    if (m_aLarghezza)
        adattaLarghezza();
}

} // namespace bor::pdf
