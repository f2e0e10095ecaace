#include "tour/giro.h"

#include "common/comandopdf.h"
#include "common/percorsi.h"
#include "common/rapporto.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QMenu>
#include <QProcess>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace bor::tour {

QWidget* Giro::controllo(const QString& nome) {
    // Screens share control names: the one in view is meant.
    for (QWidget* widget : m_finestra.findChildren<QWidget*>(nome)) {
        if (widget->isVisible())
            return widget;
    }
    fallito(u"manca il controllo "_s + nome);
    return nullptr;
}

void Giro::premi(const QString& nome) {
    if (auto* bottone = qobject_cast<QAbstractButton*>(controllo(nome)))
        bottone->click();
    QApplication::processEvents();
}

void Giro::vaiSu(const QString& nome) {
    if (QWidget* widget = controllo(nome))
        widget->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
}

QWidget& Giro::davanti() {
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
        return *menu;
    if (QWidget* dialogo = QApplication::activeModalWidget())
        return *dialogo;
    auto* attivo = qobject_cast<QDialog*>(QApplication::activeWindow());
    if (attivo && attivo->isVisible())
        return *attivo;
    return m_finestra;
}

void Giro::tasto(Qt::Key quale, Qt::KeyboardModifiers modi) {
    // Where no window manager does it: a window that closed leaves the keys to the one behind it.
    if (!QApplication::activePopupWidget() && !davanti().isActiveWindow()) {
        davanti().activateWindow();
        if (!QTest::qWaitForWindowActive(&davanti()))
            fallito(u"la finestra non riprende i tasti"_s);
    }
    QTest::keyClick(davanti().windowHandle(), quale, modi);
    QApplication::processEvents();
}

void Giro::scrivi(const QString& testo) {
    for (const QChar c : testo) {
        QKeyEvent giu(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        if (QWidget* fuoco = QApplication::focusWidget())
            QApplication::sendEvent(fuoco, &giu);
    }
    QApplication::processEvents();
}

void Giro::riga(const QString& testo) {
    scrivi(testo);
    tasto(Qt::Key_Return);
}

void Giro::foto(const QString& nome) {
    QApplication::processEvents();
    if (!davanti().grab().save(m_cartella.filePath(nome + u".png"_s)))
        fallito(u"non si può scrivere "_s + nome);
}

void Giro::aspetta(const QString& nome) {
    constexpr int secondi = 60;
    QElapsedTimer orologio;
    orologio.start();
    const auto inVista = [&] {
        const QList<QWidget*> tutti = m_finestra.findChildren<QWidget*>(nome);
        return std::ranges::any_of(tutti, &QWidget::isVisible);
    };
    while (!inVista() && orologio.elapsed() < secondi * 1000)
        QTest::qWait(5);
    controllo(nome);
}

void Giro::pdf(const QString& nome, bool parcella) {
    QProcess strumento;
    strumento.setWorkingDirectory(m_unita);
    const ComandoPdf comando{.layout =
                                 cartellaAzienda(1) + u"\\borlano."_s + (parcella ? u"lxp"_s : u"lxf"_s),
                             .rapporto = fileRapporto.toString(),
                             .pdf = u'\\' + nome + u".pdf"_s,
                             .indirizzo = senzaPosta.toString()};
    strumento.start(QCoreApplication::applicationDirPath() + u"/borxpdf"_s, comando.argomenti());
    const QString fatto = m_unita + u'/' + nome + u".pdf"_s;
    const QString meta = m_cartella.filePath(nome + u".pdf"_s);
    QFile::remove(meta);
    if (!strumento.waitForFinished() || strumento.exitCode() != 0 || !QFile::copy(fatto, meta))
        fallito(u"manca il PDF "_s + nome);
}

void Giro::fallito(const QString& motivo) {
    std::fprintf(stderr, "tour: %s\n", qPrintable(motivo));
    m_riuscito = false;
}

} // namespace bor::tour
