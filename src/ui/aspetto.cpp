#include "ui/aspetto.h"

#include "common/installazione.h"
#include "common/italiano.h"
#include "ui/icona.h"
#include "ui/testiinteri.h"
#include "ui/tonodesktop.h"

#include <QApplication>
#include <QLocale>
#include <QStyleFactory>

#include <fontconfig/fontconfig.h>

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
    Aspetto(applicazione).completa();
}

Aspetto::Aspetto(QApplication& applicazione)
    : m_applicazione(applicazione), m_ricevuta(QApplication::palette()) {
    if (!senzaDesktop())
        m_tono = chiediTono(m_ricevuta);
    presenta();
    parlaItaliano();
    applicazione.installEventFilter(new TestiInteri(&applicazione));
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
}

void Aspetto::completa() {
    if (!m_tono)
        return applicaTono(Tono::Chiaro);
    applicaTono(m_tono());
    seguiDesktop(&m_applicazione, [ricevuta = m_ricevuta] {
        const Tono tono = chiediTono(ricevuta)();
        if (tono != tonoDi(QApplication::palette()))
            applicaTono(tono);
    });
}

void applicaTono(Tono tono) {
    QApplication::setPalette(tavolozza(tono));
    qApp->setStyleSheet(foglioDiStile(tono));
}

void preparaCaratteri() {
    FcInit();
}

} // namespace bor
