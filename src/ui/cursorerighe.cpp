#include "ui/cursorerighe.h"

#include <QApplication>
#include <QWheelEvent>

namespace bor {

void gira(QWidget* cursore, QWheelEvent* evento) {
    cursore->setFocus();
    QApplication::sendEvent(cursore, evento);
}

} // namespace bor
