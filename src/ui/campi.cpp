#include "ui/campi.h"

#include "common/date.h"

#include <QCalendarWidget>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QShortcutEvent>
#include <QValidator>
#include <QWidgetAction>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int caratteriImporto = 12;
constexpr int caratteriData = 10;

class ValidatoreImporto : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& testo, int&) const override {
        testo.replace(u',', u'.');
        for (const QChar c : std::as_const(testo)) {
            if (!(c >= u'0' && c <= u'9') && c != u'.' && c != u'-' && c != u'+' && c != u' ')
                return Invalid;
        }
        return Acceptable;
    }
};

} // namespace

CampoTesto::CampoTesto(const QString& nome, const QString& didascalia, int caratteri, QWidget* parent)
    : QLineEdit(parent), m_caratteri(caratteri) {
    setObjectName(nome);
    setAccessibleName(didascalia);
    if (caratteri > 0)
        setMaxLength(caratteri);
}

QSize CampoTesto::sizeHint() const {
    constexpr int caratteriLarghi = 40;
    const int caratteri = m_caratteri > 0 ? qMin(m_caratteri, caratteriLarghi) : caratteriLarghi;
    const QFontMetrics metrica = fontMetrics();
    const int margine = metrica.horizontalAdvance(u'0') * 2;
    return {metrica.horizontalAdvance(u'0') * caratteri + margine, QLineEdit::sizeHint().height()};
}

QSize CampoTesto::minimumSizeHint() const {
    constexpr int caratteriMinimi = 12;
    if (m_caratteri > 0 && m_caratteri <= caratteriMinimi)
        return sizeHint();
    return {fontMetrics().horizontalAdvance(u'0') * caratteriMinimi, sizeHint().height()};
}

CampoImporto::CampoImporto(const QString& nome, const QString& didascalia, QWidget* parent)
    : CampoTesto(nome, didascalia, 0, parent) {
    setAlignment(Qt::AlignRight);
    m_caratteri = caratteriImporto;
    setValidator(new ValidatoreImporto(this));
}

CampoData::CampoData(const QString& nome, const QString& nomeCalendario, const QString& didascalia,
                     QWidget* parent)
    : QWidget(parent), m_campo(new CampoTesto(nome, didascalia, caratteriData)), m_bottone(new QToolButton) {
    m_bottone->setObjectName(nomeCalendario);
    m_bottone->setAccessibleName(didascalia + u": calendario"_s);
    m_bottone->setIcon(QIcon(u":/icone/calendario.svg"_s));
    m_bottone->setToolTip(u"Calendario (F4)"_s);
    m_bottone->setFocusPolicy(Qt::NoFocus);
    m_campo->installEventFilter(this);
    connect(m_bottone, &QToolButton::clicked, this, [this] { apriCalendario(); });
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_campo);
    layout->addWidget(m_bottone);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusProxy(m_campo);
}

bool CampoData::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == m_campo && evento->type() == QEvent::FocusOut) {
        const QString completa = completaData(m_campo->text());
        if (completa != m_campo->text())
            metti(completa);
    }
    if (oggetto == m_campo && evento->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evento)->key() == Qt::Key_F4) {
        apriCalendario();
        return true;
    }
    return false;
}

void CampoData::apriCalendario() {
    QMenu menu(this);
    auto* calendario = new QCalendarWidget;
    calendario->setLocale(QLocale(QLocale::Italian, QLocale::Italy));
    calendario->setSelectedDate(dataValida(m_campo->text()).value_or(QDate::currentDate()));
    auto* azione = new QWidgetAction(&menu);
    azione->setDefaultWidget(calendario);
    menu.addAction(azione);
    const auto scegli = [&](QDate giorno) {
        menu.close();
        metti(testoData(giorno));
    };
    connect(calendario, &QCalendarWidget::clicked, &menu, scegli);
    connect(calendario, &QCalendarWidget::activated, &menu, scegli);
    calendario->setFocus();
    menu.exec(mapToGlobal(QPoint(0, height())));
    m_campo->setFocus();
}

void CampoData::metti(const QString& testo) {
    m_campo->setText(testo);
    Q_EMIT m_campo->textEdited(testo);
}

BottoneComando::BottoneComando(const QString& nome, const QString& didascalia, const QString& icona,
                               const QKeySequence& tasto, QWidget* parent)
    : QToolButton(parent) {
    setObjectName(nome);
    setText(didascalia);
    setAccessibleName(didascalia);
    if (!icona.isEmpty()) {
        setIcon(QIcon(u":/icone/%1.svg"_s.arg(icona)));
        setIconSize(QSize(28, 28));
        setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    }
    setFocusPolicy(Qt::TabFocus);
    setShortcut(tasto);
    const QString scritto = tasto.toString(QKeySequence::NativeText);
    setToolTip(scritto.isEmpty() ? didascalia : didascalia + u" ("_s + scritto + u")"_s);
}

bool BottoneComando::event(QEvent* evento) {
    // Qt presses a button by its shortcut only a tenth of a second later; who works from the keyboard is
    // faster.
    if (evento->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(evento)->isAmbiguous()) {
        click();
        return true;
    }
    return QToolButton::event(evento);
}

QLabel* didascalia(const QString& testo, QWidget* campo, QWidget* parent) {
    auto* etichetta = new QLabel(testo, parent);
    etichetta->setBuddy(campo);
    return etichetta;
}

void riga(QGridLayout* griglia, int numero, const QString& testo, QWidget* campo, int colonna) {
    griglia->addWidget(didascalia(testo, campo), numero, colonna, Qt::AlignRight | Qt::AlignVCenter);
    griglia->addWidget(campo, numero, colonna + 1);
}

} // namespace bor
