#include "ui/bottonemenu.h"

#include "ui/legami.h"

#include <QMenu>
#include <QShortcut>

namespace bor {

BottoneMenu::BottoneMenu(const QString& nome, const QString& didascalia, const QString& icona, Legami& legami)
    : BottoneComando(nome, didascalia, icona, {}), m_legami(legami), m_menu(new QMenu(this)) {
    m_menu->setObjectName(nome + QStringLiteral("Menu"));
    setMenu(m_menu);
    setPopupMode(QToolButton::InstantPopup);
    // A press by key or by an assistive tool opens the menu as the mouse does.
    connect(this, &QToolButton::clicked, this, &QToolButton::showMenu);
}

void BottoneMenu::voce(const QString& testo, const QString& tasto, const std::function<void()>& azione) {
    const auto esegui = [this, azione] { m_legami.eseguiComando(azione); };
    QAction* voce = m_menu->addAction(testo + u'\t' + tasto);
    connect(voce, &QAction::triggered, this, esegui);
    auto* scorciatoia = new QShortcut(QKeySequence(tasto), this);
    scorciatoia->setAutoRepeat(false);
    scorciatoia->setWhatsThis(QString(testo).remove(u'&'));
    connect(scorciatoia, &QShortcut::activated, this, esegui);
}

} // namespace bor
