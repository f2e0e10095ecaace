#include "ui/campodata.h"

#include "common/date.h"
#include "ui/icona.h"
#include "ui/vista.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QList>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int caratteriData = 10;

} // namespace

FinestraData::FinestraData(const Bordata& bordata, QWidget* parent, const QWidget* campo)
    : QDialog(parent), m_bordata(bordata), m_campo(campo), m_calendario(new QCalendarWidget) {
    setObjectName(u"bordata"_s);
    setWindowTitle(u"Imposta data"_s);
    offriGuida(this, u"tasti"_s);
    m_calendario->setObjectName(u"nuovadata"_s);
    m_calendario->setAccessibleName(windowTitle());
    m_calendario->setLocale(QLocale(QLocale::Italian, QLocale::Italy));
    m_calendario->setFirstDayOfWeek(Qt::Monday);
    m_calendario->setSelectedDate(m_bordata.iniziale());
    connect(m_calendario, &QCalendarWidget::selectionChanged, this, [this] {
        if (!m_cammina)
            scegli();
    });
    connect(m_calendario, &QCalendarWidget::clicked, this, [this] { scegli(); });
    connect(m_calendario, &QCalendarWidget::activated, this, [this] { scegli(); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_calendario);
    for (auto* giorni : m_calendario->findChildren<QAbstractItemView*>())
        giorni->installEventFilter(this);
    m_calendario->setFocus();
}

bool FinestraData::eventFilter(QObject* oggetto, QEvent* evento) {
    static const QList<int> passi = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,     Qt::Key_Down,
                                     Qt::Key_Home, Qt::Key_End,   Qt::Key_PageUp, Qt::Key_PageDown};
    if (evento->type() != QEvent::KeyPress || !passi.contains(static_cast<QKeyEvent*>(evento)->key()))
        return false;
    const QScopedValueRollback cammina(m_cammina, true);
    oggetto->event(evento);
    return true;
}

void FinestraData::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    const QRect posto = screen()->availableGeometry();
    if (!m_campo)
        return move(posto.center() - rect().center());
    // The window's own frame is not known before it is on screen.
    const QSize misura = size() + QSize(8, style()->pixelMetric(QStyle::PM_TitleBarHeight) + 8);
    const QRect campo(m_campo->mapToGlobal(QPoint()), m_campo->size());
    const int sotto = campo.bottom() + 1;
    const bool entra = sotto + misura.height() <= posto.bottom() + 1;
    const int x =
        std::clamp(campo.left(), posto.left(), std::max(posto.left(), posto.right() + 1 - misura.width()));
    move(x, std::max(posto.top(), entra ? sotto : campo.top() - misura.height()));
}

void FinestraData::scegli() {
    if (result() == Accepted)
        return;
    m_bordata.scegli(m_calendario->selectedDate());
    accept();
}

QString avvisoData(const QString& testo) {
    return dataInesistente(testo) ? u"Questa data non esiste"_s : QString();
}

CampoData::CampoData(const QString& nome, const QString& nomeCalendario, const QString& didascalia,
                     const Bordata& bordata, QWidget* parent)
    : QWidget(parent), m_bordata(bordata), m_campo(new CampoTesto(nome, didascalia, caratteriData)),
      m_bottone(new QToolButton) {
    m_bottone->setObjectName(nomeCalendario);
    m_bottone->setAccessibleName(didascalia + u": calendario"_s);
    m_bottone->setIcon(icona(u"calendario"_s));
    m_bottone->setToolTip(u"Calendario (F4)"_s);
    m_bottone->setFocusPolicy(Qt::NoFocus);
    m_campo->selezionaAlClic();
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
        if (!static_cast<QKeyEvent*>(evento)->isAutoRepeat())
            apriCalendario();
        return true;
    }
    return false;
}

void CampoData::apriCalendario() {
    m_bordata.prepara(m_campo->text());
    FinestraData(m_bordata, this, this).exec();
    m_campo->setFocus();
    if (!m_bordata.scelta().isEmpty())
        metti(m_bordata.scelta());
}

void CampoData::metti(const QString& testo) {
    m_campo->setText(testo);
    Q_EMIT m_campo->textEdited(testo);
}

} // namespace bor
