// What a person does to a screen: finds a control by its name, types, clicks, looks.
#pragma once

#include "ui/vista.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <gtest/gtest.h>

namespace bor {

/// The control of this name; fails the test when the screen has none.
template <class W = QWidget>
W* controllo(QWidget& vista, const QString& nome) {
    W* trovato = vista.findChild<W*>(nome);
    if (!trovato)
        ADD_FAILURE() << "no control " << qPrintable(nome);
    return trovato;
}

inline void clic(QWidget& vista, const QString& nome) {
    if (auto* bottone = controllo<QAbstractButton>(vista, nome))
        QTest::mouseClick(bottone, Qt::LeftButton);
}

/// Types into whatever has the focus, as a person would.
inline void scrivi(QWidget& vista, const QString& testo) {
    for (const QChar c : testo) {
        QWidget* bersaglio = vista.focusWidget() ? vista.focusWidget() : &vista;
        QKeyEvent giu(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(bersaglio, &giu);
        QKeyEvent su(QEvent::KeyRelease, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(bersaglio, &su);
    }
}

inline void tasto(QWidget& vista, Qt::Key quale, Qt::KeyboardModifiers modi = Qt::NoModifier) {
    QTest::keyClick(vista.window()->windowHandle(), quale, modi);
}

/// A key that stays down: pressed once, then repeated by the keyboard.
inline void tieni(QWidget& vista, Qt::Key quale, Qt::KeyboardModifiers modi = Qt::NoModifier) {
    QTest::keyPress(vista.window()->windowHandle(), quale, modi);
    for (int volta = 0; volta < 3; ++volta) {
        QWidget* bersaglio = QApplication::focusWidget() ? QApplication::focusWidget() : vista.window();
        QTest::simulateEvent(bersaglio, true, quale, modi, {}, true);
    }
    QTest::keyRelease(vista.window()->windowHandle(), quale, modi);
}

/// The wheel turned one notch over a widget, down where `verso` is below 0.
inline void rotella(QWidget* widget, int verso = -1) {
    QWheelEvent giro(QPointF(2, 2), widget->mapToGlobal(QPointF(2, 2)), {}, QPoint(0, 120 * verso),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &giro);
}

inline QString fuoco(QWidget& vista) {
    return vista.focusWidget() ? vista.focusWidget()->objectName() : QString();
}

inline QString testoDi(QWidget& vista, const QString& nome) {
    if (const auto* campo = vista.findChild<QLineEdit*>(nome))
        return campo->text();
    const auto* etichetta = controllo<QLabel>(vista, nome);
    return etichetta ? etichetta->text() : QString();
}

/// Shows the view in a window of the size that the program asks of a screen.
inline void mostra(Vista& vista) {
    vista.resize(1280, 720);
    vista.show();
    vista.activateWindow(); // shortcuts work only in the active window
    EXPECT_TRUE(QTest::qWaitForWindowActive(&vista));
    vista.attiva();
    QApplication::processEvents();
}

/// Saves a picture of the screen where the environment variable BOR_FOTO names a folder.
inline void foto(QWidget& vista, const QString& nome) {
    const QString cartella = qEnvironmentVariable("BOR_FOTO");
    if (!cartella.isEmpty())
        vista.grab().save(cartella + u'/' + nome + QStringLiteral(".png"));
}

} // namespace bor
