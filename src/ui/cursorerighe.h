// The scroll bar of the screens that show some of a document's many rows.
#pragma once

#include "ui/legami.h"

#include <QScrollBar>

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

} // namespace bor
