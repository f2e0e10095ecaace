#include "ui/finestra.h"

#include "ui/areascorrevole.h"
#include "ui/vista.h"

#include <QCloseEvent>
#include <QScreen>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

namespace bor {

Finestra::Finestra() : m_pila(new QStackedWidget) {
    setCentralWidget(m_pila);
    // As the letters need it; never larger than what the screen has free, its own frame included.
    const QSize cornice(2, style()->pixelMetric(QStyle::PM_TitleBarHeight) + 8);
    const QSize comoda(160 * fontMetrics().horizontalAdvance(u'0'), 48 * fontMetrics().height());
    resize(comoda.boundedTo(screen()->availableSize() - cornice));
}

void Finestra::aggiungi(Schermo schermo, Vista* vista) {
    m_viste[schermo] = vista;
    new AreaScorrevole(static_cast<QVBoxLayout*>(vista->layout()));
    m_pila->addWidget(vista);
}

Vista* Finestra::vista(Schermo schermo) const {
    const auto trovata = m_viste.find(schermo);
    return trovata == m_viste.end() ? nullptr : trovata->second;
}

void Finestra::mostra(Schermo schermo) {
    Vista* nuova = vista(schermo);
    if (!nuova)
        return;
    m_pila->setCurrentWidget(nuova);
    nuova->attiva();
}

void Finestra::termina() {
    m_terminata = true;
    close();
}

void Finestra::closeEvent(QCloseEvent* evento) {
    // The close button does what the screen's leave button does; only the register ends the program.
    if (!m_terminata) {
        if (auto* inVista = static_cast<Vista*>(m_pila->currentWidget()))
            inVista->lascia();
    }
    evento->setAccepted(m_terminata);
}

} // namespace bor
