#include "ui/aspetto.h"

#include "common/installazione.h"
#include "common/italiano.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Qt's own words, in its boxes and menus, and its names of days and months.
void parlaItaliano() {
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    traduciQt();
}

/// By these the desktop knows which menu entry a window belongs to.
void presenta() {
    QCoreApplication::setApplicationName(identificatore.toString());
    QGuiApplication::setDesktopFileName(identificatore.toString());
    QIcon icona;
    for (const QString& lato : {u"48"_s, u"128"_s})
        icona.addFile(u":/icone/%1-%2.png"_s.arg(identificatore, lato));
    QGuiApplication::setWindowIcon(icona);
}

} // namespace

void applicaAspetto(QApplication& applicazione) {
    presenta();
    parlaItaliano();
    applicazione.setStyle(QStyleFactory::create(u"Fusion"_s));
    QPalette tinte;
    tinte.setColor(QPalette::Window, QColor(0xEE, 0xF1, 0xF5));
    tinte.setColor(QPalette::WindowText, QColor(0x1E, 0x27, 0x33));
    tinte.setColor(QPalette::Base, Qt::white);
    tinte.setColor(QPalette::AlternateBase, QColor(0xF3, 0xFA, 0xFC));
    tinte.setColor(QPalette::Text, QColor(0x1E, 0x27, 0x33));
    tinte.setColor(QPalette::Button, QColor(0xE4, 0xE9, 0xEF));
    tinte.setColor(QPalette::ButtonText, QColor(0x1E, 0x27, 0x33));
    tinte.setColor(QPalette::Highlight, QColor(0x1F, 0x6F, 0xB2));
    tinte.setColor(QPalette::HighlightedText, Qt::white);
    const QColor spento(0x8A, 0x94, 0xA0);
    tinte.setColor(QPalette::Disabled, QPalette::WindowText, spento);
    tinte.setColor(QPalette::Disabled, QPalette::Text, spento);
    tinte.setColor(QPalette::Disabled, QPalette::ButtonText, spento);
    applicazione.setPalette(tinte);
    applicazione.setStyleSheet(
        u"QGroupBox { font-weight: 600; border: 1px solid #C3CBD5; border-radius: 4px;"
        "  margin-top: 1.1ex; padding: 4px; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 3px; color: #1F5A8C; }"
        "QLineEdit { padding: 1px 3px; border: 1px solid #B4BDC8; border-radius: 2px; background: white; }"
        "QLineEdit:read-only { background: #E8ECF1; }"
        "QLineEdit:disabled { background: #E8ECF1; color: #8A94A0; }"
        "QLineEdit:focus { border: 1px solid #1F6FB2; background: #FFFBE0; }"
        "QLineEdit[errato=\"true\"] { border: 1px solid #C62828; background: #FDE3E3; }"
        "QComboBox:focus, QTableView:focus, QListView:focus { border: 1px solid #1F6FB2; }"
        "QToolButton:focus { border: 2px solid #1F6FB2; border-radius: 3px; }"_s);
}

} // namespace bor
