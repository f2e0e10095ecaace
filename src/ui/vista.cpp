#include "ui/vista.h"

#include <QKeyEvent>

namespace bor {

Vista::Vista(QWidget* parent)
    : QWidget(parent), legami([this] {
          // After an event that led to another screen, this one no longer names the window.
          if (isVisible())
              window()->setWindowTitle(titolo());
      }),
      invio(this) {}

void Vista::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape && evento->modifiers() == Qt::NoModifier)
        lascia();
    else
        QWidget::keyPressEvent(evento);
}

} // namespace bor
