#include "ui/adattatori.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QUrl>

namespace bor {

namespace {

Q_LOGGING_CATEGORY(logUi, "bor.ui")

QMessageBox::Icon iconaQt(Icona icona) {
    switch (icona) {
    case Icona::Informazione:
        return QMessageBox::Information;
    case Icona::Domanda:
        return QMessageBox::Question;
    case Icona::Esclamazione:
        return QMessageBox::Warning;
    case Icona::Stop:
        return QMessageBox::Critical;
    case Icona::Nessuna:
        break;
    }
    return QMessageBox::NoIcon;
}

/// A box is never shown under the wait cursor of the work that raised it.
class CursoreNormale {
public:
    CursoreNormale() : m_sospeso(QApplication::overrideCursor() != nullptr) {
        if (m_sospeso)
            QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~CursoreNormale() {
        if (m_sospeso)
            QApplication::restoreOverrideCursor();
    }
    CursoreNormale(const CursoreNormale&) = delete;
    CursoreNormale& operator=(const CursoreNormale&) = delete;

private:
    bool m_sospeso;
};

/// A box that comes up under a key held down is not answered by that key before anybody has read it.
class SenzaRipetizioni : public QObject {
public:
    SenzaRipetizioni() { QCoreApplication::instance()->installEventFilter(this); }

protected:
    bool eventFilter(QObject*, QEvent* evento) override {
        return evento->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(evento)->isAutoRepeat();
    }
};

} // namespace

void OperatoreQt::messaggio(const QString& testo, const QString& titolo, Icona icona) {
    const CursoreNormale cursore;
    const SenzaRipetizioni filtro;
    QMessageBox(iconaQt(icona), titolo, testo, QMessageBox::Ok, m_finestra).exec();
}

bool OperatoreQt::chiedi(const QString& testo, const QString& titolo, Icona icona, Predefinita predefinita) {
    const CursoreNormale cursore;
    const SenzaRipetizioni filtro;
    QMessageBox box(iconaQt(icona), titolo, testo, QMessageBox::Yes | QMessageBox::No, m_finestra);
    box.button(QMessageBox::Yes)->setText(QStringLiteral("&Sì"));
    box.button(QMessageBox::No)->setText(QStringLiteral("&No"));
    box.setDefaultButton(predefinita == Predefinita::Si ? QMessageBox::Yes : QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void OperatoreQt::attesa(bool inizio) {
    if (inizio)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void OperatoreQt::lasciaEventi() {
    QApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
}

QString OperatoreQt::scegliFile(const QString& titolo, const QString& filtro) {
    return QFileDialog::getOpenFileName(m_finestra, titolo, {}, filtro);
}

EsitoApri SistemaQt::apri(const QString& percorso) {
    const QFileInfo file(percorso);
    if (!file.exists())
        return file.dir().exists() ? EsitoApri::FileMancante : EsitoApri::CartellaMancante;
    if (!file.isReadable())
        return EsitoApri::Vietato;
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(percorso)))
        return EsitoApri::Riuscito;
    qCWarning(logUi, "no program opens %s", qPrintable(percorso));
    return EsitoApri::SenzaProgramma;
}

bool SistemaQt::avvia(const QString& programma, const QStringList& argomenti) {
    const bool avviato = QProcess::startDetached(programma, argomenti);
    if (!avviato)
        qCWarning(logUi, "cannot start %s", qPrintable(programma));
    return avviato;
}

} // namespace bor
