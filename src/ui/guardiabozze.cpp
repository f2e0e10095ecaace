#include "ui/guardiabozze.h"

#include <QCoreApplication>
#include <QEvent>

#include <chrono>

namespace bor {

GuardiaBozze::GuardiaBozze(std::function<void()> conserva) {
    m_attesa.setSingleShot(true);
    m_attesa.setInterval(std::chrono::seconds(1));
    connect(&m_attesa, &QTimer::timeout, this, std::move(conserva));
    QCoreApplication::instance()->installEventFilter(this);
}

bool GuardiaBozze::eventFilter(QObject* oggetto, QEvent* evento) {
    switch (evento->type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
        if (!m_attesa.isActive())
            m_attesa.start();
        break;
    default:
        break;
    }
    return QObject::eventFilter(oggetto, evento);
}

} // namespace bor
