#include "ui/areascorrevole.h"

#include "ui/affiancati.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace bor {

namespace {

/// Moves the first item of a layout behind the last one of another, with its share of the room.
void sposta(QVBoxLayout* da, QVBoxLayout* a) {
    const int parte = da->stretch(0);
    QLayoutItem* voce = da->takeAt(0);
    if (QWidget* widget = voce->widget()) {
        // A widget tells its changes to the first item that was made for it.
        delete voce;
        a->addWidget(widget, parte);
    } else if (QLayout* layout = voce->layout()) {
        a->addLayout(layout, parte);
    } else {
        a->addItem(voce);
    }
}

} // namespace

AreaScorrevole::AreaScorrevole(QVBoxLayout* layout) : QScrollArea(layout->parentWidget()) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto* contenuto = new QWidget(viewport());
    setWidget(contenuto);
    auto* dentro = new QVBoxLayout(contenuto);
    dentro->setContentsMargins(0, 0, 0, 0);
    dentro->setSpacing(layout->spacing());
    while (layout->count() > 1)
        sposta(layout, dentro);
    layout->insertWidget(0, this, 1);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* ora) {
        if (ora && widget()->isAncestorOf(ora))
            mostra(ora);
    });
}

/// Whole, where `ensureWidgetVisible` would bring only its text cursor into view; its beginning, where there
/// is no room for the whole.
void AreaScorrevole::mostra(const QWidget* campo) {
    constexpr int margine = 8;
    const QRect area(campo->mapTo(widget(), QPoint()), campo->size());
    ensureVisible(area.right(), area.bottom(), margine, margine);
    ensureVisible(area.left(), area.top(), margine, margine);
}

void AreaScorrevole::adatta() {
    for (QObject* figlio : widget()->children()) {
        if (auto* parti = dynamic_cast<Affiancati*>(figlio))
            parti->adatta(viewport()->width());
    }
}

bool AreaScorrevole::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == widget() && evento->type() == QEvent::LayoutRequest)
        adatta();
    return QScrollArea::eventFilter(oggetto, evento);
}

void AreaScorrevole::resizeEvent(QResizeEvent* evento) {
    adatta();
    QScrollArea::resizeEvent(evento);
}

void AreaScorrevole::keyPressEvent(QKeyEvent* evento) {
    evento->ignore();
}

} // namespace bor
