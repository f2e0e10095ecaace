#include "ui/menuelenco.h"

#include "register/borfte.h"
#include "ui/campi.h"
#include "ui/finestravista.h"
#include "ui/stampatabella.h"
#include "ui/vista.h"

#include <QMenu>
#include <QShortcut>

#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

MenuElenco::MenuElenco(Borfte& form, Vista* schermo, std::function<void()> cambiata)
    : QObject(schermo), m_form(form), m_schermo(schermo), m_cambiata(std::move(cambiata)),
      m_menu(new QMenu(schermo)),
      m_bottone(new BottoneComando(u"menuElenco"_s, u"Elenco"_s, u"lista"_s, {}, schermo)) {
    m_bottone->setToolTip(u"Vista, stampa ed esportazione dell'elenco"_s);
    connect(m_bottone, &QToolButton::clicked, this, [this] { apriMenu(); });
    const auto voce = [&](const QString& nome, const QString& testo, const QString& tasto,
                          const QString& cosa, void (MenuElenco::*azione)()) {
        const auto esegui = [this, azione] {
            if (fermo())
                (this->*azione)();
        };
        QAction* nuova = m_menu->addAction(tasto.isEmpty() ? testo : testo + u'\t' + tasto);
        nuova->setObjectName(nome);
        connect(nuova, &QAction::triggered, this, esegui);
        if (tasto.isEmpty())
            return;
        auto* scorciatoia = new QShortcut(QKeySequence(tasto), schermo);
        scorciatoia->setAutoRepeat(false);
        scorciatoia->setWhatsThis(cosa);
        connect(scorciatoia, &QShortcut::activated, this, esegui);
    };
    voce(u"vista"_s, u"&Vista"_s, u"Ctrl+L"_s, u"Elenco: periodo, genere e colonne"_s,
         &MenuElenco::scegliVista);
    voce(u"vistaComePrima"_s, u"&Come prima"_s, {}, {}, &MenuElenco::comePrima);
    m_menu->addSeparator();
    voce(u"stampaElenco"_s, u"&Stampa"_s, u"Ctrl+Shift+P"_s, u"Elenco: stampa"_s, &MenuElenco::stampa);
    voce(u"esportaElenco"_s, u"&Esporta"_s, u"Ctrl+Shift+T"_s, u"Elenco: CSV, PDF o JSON"_s,
         &MenuElenco::esporta);
}

void MenuElenco::apriMenu() const {
    m_menu->popup(m_bottone->mapToGlobal(QPoint(0, -m_menu->sizeHint().height())));
    m_menu->setActiveAction(m_menu->actions().first());
}

bool MenuElenco::fermo() const {
    return m_form.comandoRiordino().fermo();
}

void MenuElenco::scegliVista() {
    const OpzioniRegistro& opzioni = m_form.opzioni();
    auto* finestra = new FinestraVista(opzioni.vista(), opzioni.bordata(), opzioni.oggi(), m_schermo);
    connect(finestra, &QDialog::accepted, this, [this, finestra] {
        m_form.opzioni().cambiaVista(finestra->vista());
        m_cambiata();
    });
    finestra->open();
}

void MenuElenco::comePrima() {
    m_form.opzioni().cambiaVista({});
    m_cambiata();
}

void MenuElenco::stampa() {
    stampaTabella(m_form.tabella(), m_schermo);
}

void MenuElenco::esporta() {
    esportaTabella(m_form.tabella(), u"registro-fatture"_s, m_schermo);
}

} // namespace bor
