#include "ui/rigaelisa.h"

#include <QPainter>
#include <QStyle>

namespace bor {

RigaElisa::RigaElisa(Qt::TextElideMode dove, QWidget* parent) : QLabel(parent), m_dove(dove) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QString RigaElisa::mostrata() const {
    return fontMetrics().elidedText(text(), m_dove, contentsRect().width());
}

void RigaElisa::paintEvent(QPaintEvent*) {
    QPainter disegno(this);
    style()->drawItemText(&disegno, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                          mostrata(), foregroundRole());
}

} // namespace bor
