#include "ui/menuscelti.h"

#include "lotto/estratto.h"
#include "ui/campi.h"
#include "ui/finestralotto.h"
#include "ui/finestrarapporto.h"
#include "ui/stampatabella.h"
#include "ui/vista.h"

#include <QMenu>
#include <QShortcut>
#include <QTableView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

const QString titoloAttenzione = u"Attenzione"_s;

bool cambiaDocumenti(ComandoScelti comando) {
    return comando == ComandoScelti::Pdf || comando == ComandoScelti::Posta;
}

} // namespace

MenuScelti::MenuScelti(Scelti& scelti, Registro registro, QTableView* elenco, Vista* vista)
    : QObject(vista), m_scelti(scelti), m_registro(std::move(registro)), m_vista(vista),
      m_menu(new QMenu(vista)), m_bottone(new BottoneComando(u"bottoneScelti"_s, u"Scelti"_s, u"scelti"_s,
                                                             QKeySequence(Qt::Key_F4), vista)) {
    m_bottone->setToolTip(u"Comandi sui documenti scelti (F4)"_s);
    m_menu->setObjectName(u"menuScelti"_s);
    connect(m_bottone, &QToolButton::clicked, this, [this] { mostra(); });
    const auto voce = [&](const QString& testo, const QString& tasto, const QString& cosa,
                          const std::function<void()>& azione) {
        connect(m_menu->addAction(testo + u'\t' + tasto), &QAction::triggered, this, azione);
        auto* scorciatoia = new QShortcut(QKeySequence(tasto), vista);
        scorciatoia->setAutoRepeat(false);
        scorciatoia->setWhatsThis(cosa);
        connect(scorciatoia, &QShortcut::activated, this, azione);
    };
    const auto comando = [this](ComandoScelti quale) { return [this, quale] { esegui(quale); }; };
    voce(u"&Stampa"_s, u"Ctrl+P"_s, u"Scelti: stampa"_s, comando(ComandoScelti::Stampa));
    voce(u"P&DF"_s, u"Ctrl+D"_s, u"Scelti: PDF"_s, comando(ComandoScelti::Pdf));
    voce(u"PDF e p&osta"_s, u"Ctrl+M"_s, u"Scelti: PDF e posta"_s, comando(ComandoScelti::Posta));
    m_menu->addSeparator();
    voce(u"&Fattura elettronica"_s, u"Ctrl+E"_s, u"Scelti: fattura elettronica"_s,
         comando(ComandoScelti::Elettronica));
    voce(u"&Controllo"_s, u"Ctrl+K"_s, u"Scelti: controllo"_s, comando(ComandoScelti::Controlla));
    m_menu->addSeparator();
    voce(u"Espor&tazione"_s, u"Ctrl+T"_s, u"Scelti: esportazione"_s, [this] { esporta(); });
    elenco->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(elenco, &QTableView::customContextMenuRequested, this, [this, elenco](const QPoint& dove) {
        if (m_registro.fermo())
            m_menu->popup(elenco->viewport()->mapToGlobal(dove));
    });
}

void MenuScelti::mostra() const {
    const int altezza = m_menu->sizeHint().height();
    m_menu->popup(m_bottone->mapToGlobal(QPoint(0, -altezza)));
    m_menu->setActiveAction(m_menu->actions().first());
}

bool MenuScelti::chiamabile() const {
    if (!m_registro.fermo())
        return false;
    if (!m_registro.scelta.documenti().empty())
        return true;
    m_scelti.operatore().messaggio(
        u"Nessun documento scelto. Si scelgono con le frecce o il mouse insieme a Maiusc o Ctrl; Ctrl+A li "
        u"sceglie tutti."_s,
        titoloAttenzione, Icona::Informazione);
    return false;
}

void MenuScelti::esegui(ComandoScelti comando) {
    if (!chiamabile())
        return;
    std::unique_ptr<Lotto> lotto;
    {
        const Attesa attesa(m_scelti.operatore());
        lotto = m_scelti.prepara(comando, m_registro.scelta.documenti());
    }
    if (lotto->quanti() == 0) {
        m_scelti.operatore().messaggio(lotto->domanda(), lotto->titolo(), Icona::Esclamazione);
        return;
    }
    const auto finito = [this, comando](const RapportoLotto& esito) {
        if (cambiaDocumenti(comando))
            m_registro.cambiato();
        rapporto(esito);
    };
    (new FinestraLotto(std::move(lotto), finito, m_vista))->open();
}

void MenuScelti::esporta() {
    if (!chiamabile())
        return;
    Estratto estratto;
    {
        const Attesa attesa(m_scelti.operatore());
        estratto = m_scelti.estrai(m_registro.scelta.documenti());
    }
    if (!estratto.righe.empty())
        esportaTabella(estratto.tabella(m_scelti.decimali()), u"documenti-scelti"_s, m_vista);
    if (!estratto.fuori.righe.empty())
        rapporto(estratto.fuori);
}

void MenuScelti::rapporto(const RapportoLotto& rapporto) {
    (new FinestraRapporto(rapporto, m_registro.apri, m_vista))->show();
}

} // namespace bor
