#include "ui/vista.h"

#include "ui/campi.h"
#include "ui/lettere.h"
#include "ui/rigaelisa.h"

#include <QBoxLayout>
#include <QDialog>
#include <QKeyEvent>
#include <QShortcut>

#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

Vista::Vista(QWidget* parent)
    : QWidget(parent), legami([this] {
          // After an event that led to another screen, this one no longer names the window.
          if (!isVisible())
              return;
          window()->setWindowTitle(titolo());
          if (!std::exchange(m_nomiDistinti, true))
              distinguiNomi(*this);
          assegnaLettere(*this);
      }),
      invio(this) {
    auto* aiuto = new QShortcut(Qt::Key_F12, this);
    aiuto->setAutoRepeat(false);
    aiuto->setWhatsThis(u"Tasti di questo schermo"_s);
    connect(aiuto, &QShortcut::activated, this,
            [this] { (new FinestraTasti(titolo(), tasti(), this))->open(); });
}

void Vista::intesta(const std::function<QString()>& testo) {
    auto* avvisi = new RigaElisa(Qt::ElideRight);
    avvisi->setObjectName(u"avvisi"_s);
    avvisi->setAccessibleName(u"Da controllare"_s);
    avvisi->setProperty("avviso", true);
    avvisi->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // In the middle of it stands the customer; the number and the amount at its ends remain.
    auto* riga = new RigaElisa(Qt::ElideMiddle);
    riga->setObjectName(u"intestazione"_s);
    riga->setAccessibleName(u"Documento"_s);
    riga->setStyleSheet(u"font-weight: bold;"_s);
    legami.altro([this, riga, avvisi, testo] {
        riga->setText(testo());
        riga->setToolTip(riga->text());
        avvisi->setText(legami.avvisi());
        avvisi->setToolTip(avvisi->text());
        avvisi->setVisible(!avvisi->text().isEmpty());
    });
    auto* cima = new QHBoxLayout;
    cima->addWidget(riga, 1);
    cima->addWidget(avvisi, 1);
    static_cast<QBoxLayout*>(layout())->insertLayout(0, cima);
}

void Vista::offriGuida(const QKeySequence& tasto, const QString& capitolo, ApriCapitolo apri) {
    m_apriGuida = std::move(apri);
    auto* bottone = new BottoneComando(u"guida"_s, u"Guida"_s, u"guida"_s, tasto);
    connect(bottone, &QToolButton::clicked, this, [this, capitolo] { apriGuida(capitolo); });
    const QWidget* barra = layout()->itemAt(layout()->count() - 1)->widget();
    barra->layout()->addWidget(bottone);
}

void Vista::apriGuida(const QString& capitolo) const {
    if (m_apriGuida)
        m_apriGuida(capitolo);
}

QList<TastoSchermo> Vista::tasti() const {
    QList<TastoSchermo> elenco;
    for (const auto* scorciatoia : findChildren<QShortcut*>()) {
        const auto* padrone = qobject_cast<QWidget*>(scorciatoia->parent());
        if (scorciatoia->whatsThis().isEmpty() || !padrone->isVisibleTo(this))
            continue;
        QStringList scritti;
        for (const QKeySequence& tasto : scorciatoia->keys())
            scritti.append(tasto.toString(QKeySequence::NativeText));
        if (!scritti.isEmpty())
            elenco.append({scritti.join(u", "_s), scorciatoia->whatsThis()});
    }
    return elenco + altriTasti +
           QList<TastoSchermo>{
               {u"Invio"_s, u"Al campo seguente; preme il bottone su cui si è"_s},
               {u"Tab, Maiusc+Tab"_s, u"Al campo seguente, al precedente"_s},
               {u"Esc"_s, u"Lascia lo schermo, come il suo bottone di uscita"_s},
               {u"Alt e lettera sottolineata"_s, u"Al campo della didascalia; preme il bottone"_s},
               {u"F4"_s, u"Nel campo di una data: il calendario"_s},
               {u","_s, u"Negli importi: il punto decimale; i punti scritti prima erano migliaia"_s}};
}

void Vista::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() != Qt::Key_Escape || evento->modifiers() != Qt::NoModifier)
        QWidget::keyPressEvent(evento);
    else if (!evento->isAutoRepeat())
        lascia();
}

void offriGuida(QDialog* finestra, const QString& capitolo) {
    auto* tasto = new QShortcut(finestra);
    // Whoever comes from the goods lines is used to the second one.
    tasto->setKeys({Qt::Key_F1, Qt::SHIFT | Qt::Key_F1});
    tasto->setAutoRepeat(false);
    QObject::connect(tasto, &QShortcut::activated, finestra, [finestra, capitolo] {
        const QWidget* sotto = finestra->parentWidget();
        while (sotto && !dynamic_cast<const Vista*>(sotto))
            sotto = sotto->parentWidget();
        if (const auto* vista = dynamic_cast<const Vista*>(sotto))
            vista->apriGuida(capitolo);
    });
}

} // namespace bor
