#include "ui/finestra.h"

#include "ui/areascorrevole.h"
#include "ui/vista.h"

#include <QCloseEvent>
#include <QScreen>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace bor {

Finestra::Finestra() : m_pila(new QStackedWidget) {
    setCentralWidget(m_pila);
    // As the letters need it; never larger than what the screen has free, its own frame included.
    const QSize cornice(2, style()->pixelMetric(QStyle::PM_TitleBarHeight) + 8);
    const QSize comoda(160 * fontMetrics().horizontalAdvance(u'0'), 48 * fontMetrics().height());
    resize(comoda.boundedTo(screen()->availableSize() - cornice));
}

void Finestra::aggiungi(Schermo schermo, Crea crea, Completa completa) {
    m_daCreare[schermo] = {std::move(crea), std::move(completa)};
}

Vista* Finestra::vista(Schermo schermo) {
    if (const auto daCreare = m_daCreare.extract(schermo)) {
        Vista* nuova = daCreare.mapped().crea();
        m_viste[schermo] = nuova;
        new AreaScorrevole(static_cast<QVBoxLayout*>(nuova->layout()));
        daCreare.mapped().completa(*nuova);
        m_pila->addWidget(nuova);
    }
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
