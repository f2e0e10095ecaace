#include "ui/stampanteqt.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

namespace bor {

namespace {

constexpr int puntiPerPollice = 1200;
constexpr double millimetriPerPollice = 25.4;

QFont fontDi(const Carattere& carattere) {
    QFont font(carattere.nome);
    font.setPointSizeF(carattere.punti > 0 ? carattere.punti : 9);
    font.setBold(carattere.grassetto);
    font.setItalic(carattere.corsivo);
    return font;
}

QColor coloreDi(int bgr) {
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

} // namespace

StampanteQt::StampanteQt() = default;

StampanteQt::~StampanteQt() = default;

QPrinter& StampanteQt::stampante() const {
    if (!m_stampante) {
        m_stampante = std::make_unique<QPrinter>(QPrinter::HighResolution);
        m_stampante->setResolution(puntiPerPollice);
        m_stampante->setPageSize(QPageSize(QPageSize::A4));
        m_stampante->setFullPage(true);
    }
    return *m_stampante;
}

QPainter& StampanteQt::penna() {
    if (m_paginaDovuta)
        stampante().newPage();
    m_paginaDovuta = false;
    return *m_penna;
}

double StampanteQt::punti(double millimetri) const {
    return millimetri * stampante().resolution() / millimetriPerPollice;
}

bool StampanteQt::inizia(const QString& titolo) {
    if (QPrinterInfo::defaultPrinter().isNull() && QPrinterInfo::availablePrinterNames().isEmpty())
        return false;
    stampante().setDocName(titolo);
    m_penna = std::make_unique<QPainter>();
    m_paginaDovuta = false;
    return m_penna->begin(&stampante());
}

double StampanteQt::larghezza(const QString& testo, const Carattere& carattere) {
    return QFontMetricsF(fontDi(carattere), &stampante()).horizontalAdvance(testo) * millimetriPerPollice /
           stampante().resolution();
}

void StampanteQt::testo(double x, double y, const QString& testo, const Carattere& carattere, int colore) {
    QPainter& p = penna();
    p.setFont(fontDi(carattere));
    p.setPen(coloreDi(colore));
    p.drawText(QPointF(punti(x), punti(y) + p.fontMetrics().ascent()), testo);
}

void StampanteQt::linea(double x1, double y1, double x2, double y2, int colore) {
    QPainter& p = penna();
    p.setPen(QPen(coloreDi(colore), punti(0.2)));
    p.drawLine(QPointF(punti(x1), punti(y1)), QPointF(punti(x2), punti(y2)));
}

void StampanteQt::riquadro(double x1, double y1, double x2, double y2, int colore, bool pieno) {
    QPainter& p = penna();
    const QRectF area = QRectF(QPointF(punti(x1), punti(y1)), QPointF(punti(x2), punti(y2))).normalized();
    if (pieno) {
        p.fillRect(area, coloreDi(colore));
        return;
    }
    p.setPen(QPen(coloreDi(colore), punti(0.2)));
    p.setBrush(Qt::NoBrush);
    p.drawRect(area);
}

void StampanteQt::immagine(double x1, double y1, double x2, double y2, const QString& percorso) {
    const QImage immagine(percorso);
    if (!immagine.isNull())
        penna().drawImage(QRectF(QPointF(punti(x1), punti(y1)), QPointF(punti(x2), punti(y2))), immagine);
}

void StampanteQt::nuovaPagina() {
    if (m_paginaDovuta)
        stampante().newPage();
    m_paginaDovuta = true;
}

void StampanteQt::termina() {
    m_penna.reset();
}

} // namespace bor
