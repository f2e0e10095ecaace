#include "ui/legami.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <utility>

namespace bor {

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
    connect(lista, &QComboBox::activated, this, [this, scrivi](int i) { esegui([&] { scrivi(i); }); });
}

void Legami::cursore(QAbstractSlider* cursore, std::function<int()> leggi, std::function<void(int)> scrivi) {
    altro([cursore, leggi] {
        const QSignalBlocker zitto(cursore);
        cursore->setValue(leggi());
    });
    connect(cursore, &QAbstractSlider::valueChanged, this,
            [this, scrivi](int v) { esegui([&] { scrivi(v); }); });
}

void Legami::etichetta(QLabel* etichetta, Leggi leggi) {
    altro([etichetta, leggi] { etichetta->setText(leggi()); });
}

void Legami::visibile(QWidget* widget, std::function<bool()> leggi) {
    altro([widget, leggi] { widget->setVisible(leggi()); });
}

void Legami::abilitato(QWidget* widget, std::function<bool()> leggi) {
    altro([widget, leggi] { widget->setEnabled(leggi()); });
}

void Legami::altro(std::function<void()> aggiorna) {
    m_aggiornamenti.push_back(std::move(aggiorna));
}

void Legami::comando(QAbstractButton* bottone, std::function<void()> azione) {
    connect(bottone, &QAbstractButton::clicked, this, [this, azione] { esegui(azione); });
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
    const bool entrata = evento->type() == QEvent::FocusIn;
    if (!entrata && evento->type() != QEvent::FocusOut)
        return false;
    const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
    if (motivo == Qt::ActiveWindowFocusReason || motivo == Qt::PopupFocusReason ||
        motivo == Qt::MenuBarFocusReason)
        return false;
    for (const Fuoco& fuoco : m_fuochi) {
        if (fuoco.widget == oggetto && fuoco.entrata == entrata)
            esegui(fuoco.evento);
    }
    return false;
}

} // namespace bor
