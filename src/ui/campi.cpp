#include "ui/campi.h"

#include "ui/icona.h"
#include "ui/legami.h"
#include "ui/validatoreimporto.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QShortcut>

#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int caratteriImporto = 12; ///< that a box for a number is wide

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

void CampoTesto::focusInEvent(QFocusEvent* evento) {
    m_appenaEntrato = m_selezionaAlClic && evento->reason() == Qt::MouseFocusReason;
    if (m_svuotabile)
        setClearButtonEnabled(true);
    QLineEdit::focusInEvent(evento);
}

void CampoTesto::focusOutEvent(QFocusEvent* evento) {
    QLineEdit::focusOutEvent(evento);
    if (!interrompeSoltanto(evento->reason()) && fontMetrics().horizontalAdvance(text()) > width())
        setCursorPosition(0);
}

void CampoTesto::mouseReleaseEvent(QMouseEvent* evento) {
    QLineEdit::mouseReleaseEvent(evento);
    if (std::exchange(m_appenaEntrato, false) && !hasSelectedText())
        selectAll();
}

CampoImporto::CampoImporto(const QString& nome, const QString& didascalia, int caratteri, QWidget* parent)
    : CampoTesto(nome, didascalia, 0, parent), m_validatore(new ValidatoreImporto(caratteri, this)) {
    setAlignment(Qt::AlignRight);
    m_caratteri = caratteri > 0 ? caratteri : caratteriImporto;
    setValidator(m_validatore);
    selezionaAlClic();
}

void CampoImporto::focusInEvent(QFocusEvent* evento) {
    if (!interrompeSoltanto(evento->reason()))
        m_validatore->entra();
    CampoTesto::focusInEvent(evento);
}

BottoneComando::BottoneComando(const QString& nome, const QString& didascalia, const QString& icona,
                               const QKeySequence& tasto, QWidget* parent)
    : QToolButton(parent), m_tasto(tasto), m_scorciatoia(new QShortcut(this)) {
    setObjectName(nome);
    setAccessibleName(didascalia);
    if (!icona.isEmpty()) {
        setIcon(bor::icona(icona));
        setIconSize(QSize(28, 28));
        setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    }
    setFocusPolicy(Qt::TabFocus);
    m_scorciatoia->setAutoRepeat(false);
    m_scorciatoia->setWhatsThis(didascalia);
    connect(m_scorciatoia, &QShortcut::activated, this, [this] { click(); });
    mettiDidascalia(didascalia);
    const QString scritto = tasto.toString(QKeySequence::NativeText);
    setToolTip(scritto.isEmpty() ? didascalia : didascalia + u" ("_s + scritto + u")"_s);
}

void BottoneComando::mettiDidascalia(const QString& didascalia) {
    setText(didascalia);
    // Qt's own shortcut of the letter would press the button again as long as the key is held, and only a
    // tenth of a second later.
    setShortcut({});
    QList<QKeySequence> tasti;
    for (const QKeySequence& tasto : {m_tasto, QKeySequence::mnemonic(didascalia)}) {
        if (!tasto.isEmpty())
            tasti.append(tasto);
    }
    m_scorciatoia->setKeys(tasti);
}

QLabel* didascalia(const QString& testo, QWidget* campo, QWidget* parent) {
    auto* etichetta = new QLabel(testo, parent);
    etichetta->setBuddy(campo);
    return etichetta;
}

QWidget* conDidascalia(const QString& testo, QWidget* campo) {
    auto* insieme = new QWidget;
    auto* linea = new QHBoxLayout(insieme);
    linea->setContentsMargins(0, 0, 0, 0);
    linea->addWidget(didascalia(testo, campo));
    linea->addWidget(campo);
    insieme->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return insieme;
}

void riga(QGridLayout* griglia, int numero, const QString& testo, QWidget* campo, int colonna) {
    griglia->addWidget(didascalia(testo, campo), numero, colonna, Qt::AlignRight | Qt::AlignVCenter);
    griglia->addWidget(campo, numero, colonna + 1);
}

} // namespace bor
