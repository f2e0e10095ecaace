#include "ui/affiancati.h"

#include <algorithm>

namespace bor {

Affiancati::Affiancati() : m_layout(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    m_layout->setContentsMargins(0, 0, 0, 0);
}

void Affiancati::aggiungi(QWidget* widget, int parte) {
    m_layout->addWidget(widget, parte);
}

void Affiancati::aggiungi(QLayout* layout, int parte) {
    auto* area = new QWidget;
    layout->setContentsMargins(0, 0, 0, 0);
    area->setLayout(layout);
    aggiungi(area, parte);
}

void Affiancati::adatta(int larghezza) {
    int serve = m_layout->spacing() * std::max(m_layout->count() - 1, 0);
    for (int i = 0; i < m_layout->count(); ++i)
        serve += m_layout->itemAt(i)->minimumSize().width();
    const auto direzione = serve > larghezza ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (direzione == m_layout->direction())
        return;
    m_layout->setDirection(direzione);
    // At once: the area asks for the new height before the layout would tell it.
    updateGeometry();
}

} // namespace bor
