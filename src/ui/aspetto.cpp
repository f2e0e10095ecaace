#include "ui/aspetto.h"

#include "common/installazione.h"
#include "common/italiano.h"
#include "ui/icona.h"
#include "ui/testiinteri.h"
#include "ui/tonodesktop.h"

#include <QApplication>
#include <QLocale>
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
    // A drawing, since for the first pixel picture Qt loads all that it knows of picture files.
    QGuiApplication::setWindowIcon(icona(identificatore.toString(), ColoriIcona::DelDisegno));
}

/// A run without a desktop always looks the same.
bool senzaDesktop() {
    const QString piattaforma = QGuiApplication::platformName();
    return piattaforma == u"offscreen" || piattaforma == u"minimal";
}

} // namespace

void applicaAspetto(QApplication& applicazione) {
    presenta();
    parlaItaliano();
    applicazione.installEventFilter(new TestiInteri(&applicazione));
    const QPalette ricevuta = QApplication::palette();
    applicazione.setStyle(QStyleFactory::create(u"Fusion"_s));
    if (senzaDesktop())
        return applicaTono(Tono::Chiaro);
    applicaTono(tonoDelDesktop(ricevuta));
    seguiDesktop(&applicazione, [ricevuta] {
        const Tono tono = tonoDelDesktop(ricevuta);
        if (tono != tonoDi(QApplication::palette()))
            applicaTono(tono);
    });
}

void applicaTono(Tono tono) {
    QApplication::setPalette(tavolozza(tono));
    qApp->setStyleSheet(foglioDiStile(tono));
}

} // namespace bor
