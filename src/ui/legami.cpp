#include "ui/legami.h"

#include <QAbstractSlider>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStringList>
#include <QStyle>

#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// True in a window that is not the active one, too.
bool inFuoco(const QWidget* widget) {
    return widget->window()->focusWidget() == widget;
}

} // namespace

bool interrompeSoltanto(Qt::FocusReason motivo) {
    return motivo == Qt::ActiveWindowFocusReason || motivo == Qt::PopupFocusReason ||
           motivo == Qt::MenuBarFocusReason;
}

void segna(QWidget* widget, const char* proprieta, bool acceso) {
    if (widget->property(proprieta).toBool() == acceso)
        return;
    widget->setProperty(proprieta, acceso);
    // Only then does the style sheet look at the property again.
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

Legami::Legami(std::function<void()> dopo) : m_dopo(std::move(dopo)) {}

void Legami::testo(QLineEdit* campo, Leggi leggi, Scrivi scrivi) {
    altro([this, campo, leggi] {
        if (campo == m_inModifica)
            return;
        const QString nuovo = leggi();
        if (campo->text() == nuovo)
            return;
        const QSignalBlocker zitto(campo);
        campo->setText(nuovo);
        campo->setCursorPosition(0);
        if (campo->hasFocus())
            campo->selectAll();
    });
    if (!scrivi) {
        campo->setReadOnly(true);
        campo->setFocusPolicy(Qt::ClickFocus);
        return;
    }
    connect(campo, &QLineEdit::textEdited, this, [this, campo, scrivi](const QString& testo) {
        m_inModifica = campo;
        esegui([&] { scrivi(testo); });
        m_inModifica = nullptr;
    });
    lasciato(campo, [] {});
}

void Legami::segnala(QLineEdit* campo, Leggi avviso) {
    m_segnalati.push_back(campo);
    altro([campo, avviso] {
        const QString testo = avviso();
        if (testo == campo->toolTip())
            return;
        campo->setToolTip(testo);
        campo->setAccessibleDescription(testo);
        segna(campo, "errato", !testo.isEmpty());
    });
}

QString Legami::avvisi() const {
    QStringList testi;
    for (const QLineEdit* campo : m_segnalati) {
        QString testo = campo->toolTip();
        if (testo.isEmpty() || !campo->isVisible())
            continue;
        testo[0] = testo[0].toLower();
        testi.append(campo->accessibleName() + u": "_s + testo);
    }
    return testi.join(u"; "_s);
}

void Legami::spunta(QAbstractButton* bottone, std::function<bool()> leggi, std::function<void(bool)> scrivi) {
    altro([bottone, leggi] {
        const QSignalBlocker zitto(bottone);
        bottone->setChecked(leggi());
    });
    connect(bottone, &QAbstractButton::clicked, this,
            [this, scrivi](bool acceso) { esegui([&] { scrivi(acceso); }); });
}

void Legami::lista(QComboBox* lista, std::function<int()> leggi, std::function<void(int)> scrivi) {
    altro([lista, leggi] {
        const QSignalBlocker zitto(lista);
        lista->setCurrentIndex(leggi());
    });
    lista->installEventFilter(this);
    connect(lista, &QComboBox::activated, this, [this, scrivi](int i) { esegui([&] { scrivi(i); }); });
}

void Legami::cursore(QAbstractSlider* cursore, std::function<int()> leggi, std::function<void(int)> scrivi) {
    altro([cursore, leggi] {
        const QSignalBlocker zitto(cursore);
        cursore->setValue(leggi());
    });
    cursore->installEventFilter(this);
    connect(cursore, &QAbstractSlider::valueChanged, this,
            [this, scrivi](int v) { esegui([&] { scrivi(v); }); });
}

void Legami::etichetta(QLabel* etichetta, Leggi leggi) {
    altro([etichetta, leggi] { etichetta->setText(leggi()); });
}

void Legami::visibile(QWidget* widget, std::function<bool()> leggi) {
    // What is not shown takes no room, from the first layout on.
    if (!leggi())
        widget->hide();
    altro([widget, leggi] { widget->setVisible(leggi()); });
}

void Legami::abilitato(QWidget* widget, std::function<bool()> leggi) {
    altro([widget, leggi] { widget->setEnabled(leggi()); });
}

void Legami::altro(std::function<void()> aggiorna) {
    m_aggiornamenti.push_back(std::move(aggiorna));
}

void Legami::comando(QAbstractButton* bottone, std::function<void()> azione) {
    connect(bottone, &QAbstractButton::clicked, this, [this, azione] { eseguiComando(azione); });
}

void Legami::eseguiComando(const std::function<void()>& azione) {
    const QWidget* finestra = QApplication::activeWindow();
    const QPointer<QLineEdit> campo = finestra ? qobject_cast<QLineEdit*>(finestra->focusWidget()) : nullptr;
    if (!campo) {
        esegui(azione);
        return;
    }
    const QString prima = campo->text();
    const bool selezionato = campo->selectedText() == prima;
    campo->clearFocus();
    esegui(azione);
    if (!campo || !campo->isVisible() || campo->window()->focusWidget())
        return;
    const QScopedValueRollback ritorno(m_ritorno, true);
    campo->setFocus();
    if (selezionato || campo->text() != prima)
        campo->selectAll();
}

void Legami::entrato(QWidget* widget, std::function<void()> evento) {
    m_fuochi.push_back({widget, true, std::move(evento)});
    widget->installEventFilter(this);
}

void Legami::lasciato(QWidget* widget, std::function<void()> evento) {
    m_fuochi.push_back({widget, false, std::move(evento)});
    widget->installEventFilter(this);
}

void Legami::esegui(const std::function<void()>& evento) {
    evento();
    aggiorna();
}

void Legami::aggiorna() {
    for (const auto& aggiornamento : m_aggiornamenti)
        aggiornamento();
    if (m_dopo)
        m_dopo();
}

bool Legami::eventFilter(QObject* oggetto, QEvent* evento) {
    switch (evento->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        fuoco(oggetto, static_cast<QFocusEvent*>(evento));
        return false;
    case QEvent::Wheel:
        if (qobject_cast<QComboBox*>(oggetto) ||
            (qobject_cast<QAbstractSlider*>(oggetto) && !inFuoco(static_cast<QWidget*>(oggetto)))) {
            // Whoever scrolls the screen passes over lists and bars: the wheel is for what lies behind them.
            evento->ignore();
            return true;
        }
        return false;
    default:
        return false;
    }
}

void Legami::fuoco(const QObject* oggetto, const QFocusEvent* evento) {
    const bool entrata = evento->gotFocus();
    if (interrompeSoltanto(evento->reason()) || (entrata && m_ritorno))
        return;
    for (const Fuoco& fuoco : m_fuochi) {
        if (fuoco.widget == oggetto && fuoco.entrata == entrata)
            esegui(fuoco.evento);
    }
}

} // namespace bor
