#include "ui/flusso.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <limits>

namespace bor {

namespace {

constexpr int distanzaLinee = 4;

bool siAllarga(const QLayoutItem* voce) {
    return voce->expandingDirections().testFlag(Qt::Horizontal);
}

/// What an item cannot do without.
int larghezzaDi(const QLayoutItem* voce) {
    return siAllarga(voce) ? voce->minimumSize().width() : voce->sizeHint().width();
}

/// A frame is as high as its line, a button as high as it wants to be.
int altezzaDi(const QLayoutItem* voce, int linea) {
    const QWidget* widget = voce->widget();
    const bool fissa = widget && widget->sizePolicy().verticalPolicy() == QSizePolicy::Fixed;
    return fissa ? std::min(voce->sizeHint().height(), linea) : linea;
}

} // namespace

Flusso::Flusso(QWidget* parent) : QLayout(parent) {}

Flusso::~Flusso() {
    qDeleteAll(m_voci);
}

void Flusso::inserisciDopo(const QWidget* quale, QWidget* widget) {
    const auto posto = std::ranges::find(m_voci, quale, &QLayoutItem::widget);
    addChildWidget(widget);
    m_voci.insert(posto == m_voci.end() ? posto : posto + 1, new QWidgetItem(widget));
    invalidate();
}

void Flusso::spazio(int punti) {
    addItem(new QSpacerItem(punti, 0, QSizePolicy::Fixed, QSizePolicy::Minimum));
}

void Flusso::molla() {
    addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
}

QLayoutItem* Flusso::takeAt(int i) {
    return i >= 0 && i < count() ? m_voci.takeAt(i) : nullptr;
}

int Flusso::distanza() const {
    const int stile =
        parentWidget()->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, parentWidget());
    return spacing() >= 0 ? spacing() : std::max(stile, 0);
}

QList<Flusso::Linea> Flusso::linee(int larghezza) const {
    QList<Linea> tutte;
    Linea linea;
    for (QLayoutItem* voce : m_voci) {
        if (voce->widget() && voce->isEmpty())
            continue;
        const int sua = larghezzaDi(voce);
        const int conDistanza = sua + (linea.voci.isEmpty() ? 0 : distanza());
        if (voce->widget() && !linea.voci.isEmpty() && linea.larghezza + conDistanza > larghezza) {
            tutte.append(linea);
            linea = {};
        }
        // No line begins with a gap.
        if (!voce->widget() && linea.voci.isEmpty() && !siAllarga(voce))
            continue;
        linea.larghezza += sua + (linea.voci.isEmpty() ? 0 : distanza());
        linea.altezza = std::max(linea.altezza, voce->sizeHint().height());
        linea.voci.append(voce);
    }
    if (!linea.voci.isEmpty())
        tutte.append(linea);
    return tutte;
}

int Flusso::heightForWidth(int larghezza) const {
    const QMargins margini = contentsMargins();
    int altezza = 0;
    for (const Linea& linea : linee(larghezza - margini.left() - margini.right()))
        altezza += linea.altezza + (altezza > 0 ? distanzaLinee : 0);
    return altezza + margini.top() + margini.bottom();
}

QSize Flusso::sizeHint() const {
    const QList<Linea> una = linee(std::numeric_limits<int>::max());
    const QSize dentro = una.isEmpty() ? QSize() : QSize(una.front().larghezza, una.front().altezza);
    return dentro.grownBy(contentsMargins());
}

QSize Flusso::minimumSize() const {
    QSize minima;
    for (const QLayoutItem* voce : m_voci) {
        if (!voce->isEmpty())
            minima = minima.expandedTo({larghezzaDi(voce), voce->sizeHint().height()});
    }
    return minima.grownBy(contentsMargins());
}

void Flusso::setGeometry(const QRect& posto) {
    QLayout::setGeometry(posto);
    const QRect dentro = posto.marginsRemoved(contentsMargins());
    int y = dentro.top();
    for (const Linea& linea : linee(dentro.width())) {
        disponi(linea, {dentro.left(), y, dentro.width(), linea.altezza});
        y += linea.altezza + distanzaLinee;
    }
}

void Flusso::disponi(const Linea& linea, QRect posto) const {
    const auto elastiche = static_cast<int>(std::ranges::count_if(linea.voci, siAllarga));
    int resto = std::max(posto.width() - linea.larghezza, 0);
    int daDare = elastiche;
    for (QLayoutItem* voce : linea.voci) {
        const int parte = siAllarga(voce) ? resto / daDare-- : 0;
        resto -= parte;
        const int larghezza = std::min(larghezzaDi(voce) + parte, posto.width());
        const int altezza = altezzaDi(voce, posto.height());
        voce->setGeometry({posto.left(), posto.top() + (posto.height() - altezza) / 2, larghezza, altezza});
        posto.setLeft(posto.left() + larghezza + distanza());
    }
}

} // namespace bor
