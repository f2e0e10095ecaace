// The scroll bar, the page keys and the wheel of the screens that show some of a document's many rows.
#pragma once

#include "ui/legami.h"

#include <QKeyEvent>
#include <QScrollBar>

class QWheelEvent;

namespace bor {

/// The bar of a form that has a `finestra()` on its rows and moves it with `scorri()`.
template <class Form>
QScrollBar* cursoreRighe(Legami& legami, Form& form, const QString& nome) {
    auto* cursore = new QScrollBar(Qt::Vertical);
    cursore->setObjectName(QStringLiteral("VScroll1"));
    cursore->setAccessibleName(nome);
    cursore->setRange(1, form.finestra().ultima());
    cursore->setPageStep(form.finestra().linee());
    legami.cursore(
        cursore, [&form] { return form.finestra().prima(); }, [&form](int prima) { form.scorri(prima); });
    return cursore;
}

/// Page Up and Page Down show the rows before or after; false for any other key.
template <class Form>
bool sfoglia(const QKeyEvent* tasto, Legami& legami, Form& form) {
    if (tasto->key() != Qt::Key_PageUp && tasto->key() != Qt::Key_PageDown)
        return false;
    legami.esegui([&] { form.scorri(form.finestra().pagina(tasto->key() == Qt::Key_PageUp ? -1 : 1)); });
    return true;
}

/// The wheel over the lines turns the bar, which also takes the focus: the box that has it comes to show
/// another row, and a digit typed by surprise must not change that one.
void gira(QWidget* cursore, QWheelEvent* evento);

} // namespace bor
