#include "ui/invio.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>

#include <utility>

namespace bor {

PercorsoInvio::PercorsoInvio(QWidget* vista) : QObject(vista) {
    vista->installEventFilter(this);
}

void PercorsoInvio::passo(QWidget* da, QWidget* a) {
    passo(da, [a] { vaiA(a); });
}

void PercorsoInvio::passo(QWidget* da, std::function<void()> azione) {
    m_passi[da] = std::move(azione);
    da->installEventFilter(this);
}

void PercorsoInvio::catena(const std::vector<QWidget*>& widgets) {
    for (std::size_t i = 1; i < widgets.size(); ++i)
        passo(widgets[i - 1], widgets[i]);
}

bool PercorsoInvio::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress)
        return false;
    const auto* tasto = static_cast<QKeyEvent*>(evento);
    const bool invio = tasto->key() == Qt::Key_Return || tasto->key() == Qt::Key_Enter;
    if (!invio || (tasto->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    auto* widget = static_cast<QWidget*>(oggetto);
    // Held, the key walks through the fields but presses and chooses nothing by the way.
    const QWidget* inFuoco = widget->focusWidget() ? widget->focusWidget() : widget;
    if (tasto->isAutoRepeat() &&
        (qobject_cast<const QAbstractButton*>(inFuoco) || qobject_cast<const QAbstractItemView*>(inFuoco)))
        return true;
    const auto passo = m_passi.find(oggetto);
    if (passo != m_passi.end()) {
        passo->second();
        return true;
    }
    // An Enter that nobody took comes up to the view from the widget in focus.
    if (auto* bottone = qobject_cast<QAbstractButton*>(widget->focusWidget())) {
        bottone->click();
        return true;
    }
    return false;
}

void vaiA(QWidget* widget) {
    widget->setFocus(Qt::TabFocusReason);
    // A field that has the focus already gets no such event.
    if (auto* campo = qobject_cast<QLineEdit*>(widget))
        campo->selectAll();
}

} // namespace bor
