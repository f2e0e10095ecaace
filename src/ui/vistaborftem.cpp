#include "ui/vistaborftem.h"

#include "ui/affiancati.h"
#include "ui/campi.h"
#include "ui/finestrastorico.h"
#include "ui/flusso.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

VistaBorftem::VistaBorftem(Borftem& form, QWidget* parent) : Vista(parent), m_form(form) {
    Percorso cliente;
    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(creaSede(cliente));
    auto* commerciali = creaDatiCommerciali(cliente);
    // One of the three is in view, in the place of all.
    auto* alterni = new QGridLayout;
    for (QWidget* riquadro : {creaContabili(), creaSpedizione(), creaPratica()})
        alterni->addWidget(riquadro, 0, 0);
    sinistra->addLayout(alterni);
    sinistra->addStretch();
    auto* destra = new QVBoxLayout;
    destra->addWidget(commerciali);
    destra->addStretch();
    auto* dati = new Affiancati;
    dati->aggiungi(sinistra, 1);
    dati->aggiungi(destra, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(dati, 1);
    layout->addWidget(creaRicerca());
    layout->addWidget(creaComandi());
    collegaPercorsi(cliente);
    offriStorico(*this, [this] { apriStorico(); });
    altriTasti = {{u"Su, Giù, PagSu, PagGiù"_s, u"Nel campo del nome: gli altri clienti, in ordine"_s}};
}

void VistaBorftem::apriStorico() {
    if (m_storico && m_form.recordCorrente() > 0)
        (new FinestraStorico(*m_storico, m_form.storico(), {}, this))->open();
}

QWidget* VistaBorftem::creaRicerca() {
    auto* gruppo = new QWidget;
    auto* colonna = new QVBoxLayout(gruppo);
    colonna->setContentsMargins(0, 0, 0, 0);
    auto* aiuto = new QLabel(u"Per cercare un cliente utilizzare il cursore a lato oppure inserire nel campo "
                             "sottostante il nominativo o la ragione sociale (o parte di essa) e clic sul "
                             "bottone 'cerca'"_s);
    aiuto->setObjectName(u"Label3"_s);
    aiuto->setWordWrap(true);
    auto* barra = new QHBoxLayout;
    barra->addWidget(aiuto, 1);
    creaCursore(barra);
    colonna->addLayout(barra);
    return gruppo;
}

void VistaBorftem::creaCursore(QHBoxLayout* barra) {
    m_cursore = new QScrollBar(Qt::Horizontal);
    m_cursore->setObjectName(u"HScroll1"_s);
    m_cursore->setAccessibleName(u"Clienti in ordine alfabetico"_s);
    m_cursore->setToolTip(u"Dal campo del nome: freccia su e giù, pagina su e giù"_s);
    legami.altro([this] {
        const QSignalBlocker zitto(m_cursore);
        m_cursore->setRange(1, std::max(m_form.numeroClienti(), 1));
    });
    legami.cursore(
        m_cursore, [this] { return m_form.posizione(); }, [this](int p) { m_form.cambiaPosizione(p); });
    barra->addWidget(m_cursore, 1);
}

QWidget* VistaBorftem::creaComandi() {
    auto* gruppo = new QWidget;
    gruppo->setAccessibleName(u"Comandi"_s);
    auto* barra = new Flusso(gruppo);
    barra->setContentsMargins(0, 0, 0, 0);
    m_nome = new CampoTesto(u"nome"_s, u"Nome/Ragione sociale cliente da cercare:"_s);
    legami.testo(
        m_nome, [this] { return m_form.nome(); }, [this](const QString& testo) { m_form.cambiaNome(testo); });
    auto* etichetta = didascalia(m_nome->accessibleName(), m_nome);
    etichetta->setObjectName(u"Lab1"_s);
    barra->addWidget(etichetta);
    barra->addWidget(m_nome);
    const auto comando = [&](const QString& nome, const QString& testo, const QString& icona,
                             const QString& tasto, std::function<void()> azione) {
        auto* bottone = new BottoneComando(nome, testo, icona, QKeySequence(tasto));
        legami.comando(bottone, std::move(azione));
        barra->addWidget(bottone);
    };
    const auto cerca = [this] {
        m_form.cerca();
        vaiA(m_nome);
    };
    comando(u"b_cerca"_s, u"Cerca"_s, u"cerca"_s, u"F3"_s, cerca);
    comando(u"b_lista"_s, u"Lista"_s, u"lista"_s, u"F6"_s, [this] { m_form.lista(); });
    barra->molla();
    comando(u"bottone"_s, u"Avanti"_s, u"avanti"_s, u"F10"_s, [this] { m_form.avanti(); });
    invio.passo(m_nome, [this, cerca] { legami.esegui(cerca); });
    return gruppo;
}

void VistaBorftem::collegaPercorsi(const Percorso& cliente) {
    Percorso tabulazione = cliente;
    for (const Percorso& passi : m_percorsi)
        tabulazione.insert(tabulazione.end(), passi.begin(), passi.end());
    for (std::size_t i = 1; i < tabulazione.size(); ++i)
        setTabOrder(tabulazione[i - 1], tabulazione[i]);
    invio.catena(cliente);
    invio.passo(cliente.back(), [this] { vaiA(percorso(m_form.riquadro()).front()); });
    for (const Percorso& passi : m_percorsi)
        invio.catena(passi);
    for (const RiquadroTestata quale : {RiquadroTestata::Contabili, RiquadroTestata::Pratica})
        invio.passo(percorso(quale).back(), m_nome);
}

void VistaBorftem::attiva() {
    m_form.attiva();
    legami.aggiorna();
    vaiA(m_nome);
}

void VistaBorftem::keyPressEvent(QKeyEvent* evento) {
    const QList<int> scorrono = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
    if (m_nome->hasFocus() && scorrono.contains(evento->key()))
        QApplication::sendEvent(m_cursore, evento);
    else
        Vista::keyPressEvent(evento);
}

void VistaBorftem::lascia() {
    m_form.lascia();
}

QString VistaBorftem::titolo() const {
    return u"Selezione cliente"_s;
}

} // namespace bor
