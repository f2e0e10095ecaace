#include "ui/testiinteri.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTextDocument>
#include <QToolTip>

namespace bor {

namespace {

bool entra(const QWidget& widget, const QString& testo, int larghezza) {
    return widget.fontMetrics().horizontalAdvance(testo) <= larghezza;
}

QString tagliato(const QLineEdit& campo) {
    constexpr int bordi = 12; // frame, padding and the line edit's own margin
    return entra(campo, campo.text(), campo.width() - bordi) ? QString() : campo.text();
}

QString tagliato(const QComboBox& lista) {
    QStyleOptionComboBox opzione;
    opzione.initFrom(&lista);
    const int posto =
        lista.style()
            ->subControlRect(QStyle::CC_ComboBox, &opzione, QStyle::SC_ComboBoxEditField, &lista)
            .width();
    return entra(lista, lista.currentText(), posto) ? QString() : lista.currentText();
}

QString tagliato(const QLabel& etichetta) {
    if (etichetta.wordWrap() || etichetta.sizeHint().width() <= etichetta.width())
        return {};
    return etichetta.buddy() ? etichetta.text().remove(u'&') : etichetta.text();
}

QString tagliato(const QAbstractItemView& elenco, QPoint posto) {
    const QModelIndex cella = elenco.indexAt(posto);
    if (!cella.isValid() || !cella.data(Qt::ToolTipRole).toString().isEmpty() ||
        elenco.sizeHintForIndex(cella).width() <= elenco.visualRect(cella).width())
        return {};
    return cella.data().toString();
}

QString tagliato(const QWidget& widget, QPoint posto) {
    if (const auto* campo = qobject_cast<const QLineEdit*>(&widget))
        return tagliato(*campo);
    if (const auto* lista = qobject_cast<const QComboBox*>(&widget))
        return tagliato(*lista);
    if (const auto* etichetta = qobject_cast<const QLabel*>(&widget))
        return tagliato(*etichetta);
    const auto* elenco = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
    return elenco && elenco->viewport() == &widget ? tagliato(*elenco, posto) : QString();
}

} // namespace

bool TestiInteri::eventFilter(QObject* oggetto, QEvent* evento) {
    const auto* widget = evento->type() == QEvent::ToolTip ? qobject_cast<QWidget*>(oggetto) : nullptr;
    if (!widget || !widget->toolTip().isEmpty())
        return false;
    const auto* aiuto = static_cast<QHelpEvent*>(evento);
    const QString testo = tagliato(*widget, aiuto->pos());
    if (testo.isEmpty())
        return false;
    // As it stands, whatever signs a name may hold.
    QToolTip::showText(aiuto->globalPos(), Qt::mightBeRichText(testo) ? testo.toHtmlEscaped() : testo);
    return true;
}

} // namespace bor
