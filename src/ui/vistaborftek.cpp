#include "ui/vistaborftek.h"

#include "ui/barracomandi.h"
#include "ui/campi.h"

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

using Campo = Borftek::Campo;

/// Name of the control array and heading of each field of a row.
struct Colonna {
    Campo campo;
    QStringView nome;
    QStringView intestazione;
};

constexpr std::array<Colonna, 5> colonne = {{
    {Campo::Data, u"artic", u"Data"},
    {Campo::Descrizione, u"ds", u"Descrizione prestazione"},
    {Campo::Anticipazioni, u"antic", u"Anticipazioni"},
    {Campo::Spese, u"spese", u"Spese"},
    {Campo::Onorari, u"prezzo", u"Onorari"},
}};

} // namespace

VistaBorftek::VistaBorftek(Borftek& form, QWidget* parent) : Vista(parent), m_form(form) {
    auto* layout = new QVBoxLayout(this);
    auto* centro = new QHBoxLayout;
    centro->addWidget(creaRighe(), 1);
    centro->addWidget(creaPrestazioni());
    layout->addLayout(centro, 1);
    layout->addWidget(creaTotali());
    layout->addWidget(creaComandi());
}

QWidget* VistaBorftek::creaRighe() {
    auto* riquadro = new QGroupBox(u"Prestazioni del documento"_s);
    auto* griglia = new QGridLayout(riquadro);
    griglia->setVerticalSpacing(8);
    for (std::size_t c = 0; c < colonne.size(); ++c) {
        auto* intestazione = new QLabel(colonne[c].intestazione.toString());
        griglia->addWidget(intestazione, 0, static_cast<int>(c), c < 2 ? Qt::AlignLeft : Qt::AlignRight);
    }
    for (int r = 0; r < Borftek::righeSchermo; ++r)
        creaRiga(griglia, r);
    m_cursore = new QScrollBar(Qt::Vertical);
    m_cursore->setObjectName(u"VScroll1"_s);
    m_cursore->setAccessibleName(u"Prima riga visibile"_s);
    m_cursore->setRange(1, Borftek::ultimaPosizione);
    m_cursore->setPageStep(Borftek::righeSchermo);
    m_cursore->setFocusPolicy(Qt::StrongFocus);
    legami.cursore(
        m_cursore, [this] { return m_form.primariga(); }, [this](int v) { m_form.scorri(v); });
    griglia->addWidget(m_cursore, 1, static_cast<int>(colonne.size()), Borftek::righeSchermo, 1);
    griglia->setColumnStretch(1, 1);
    griglia->setRowStretch(Borftek::righeSchermo + 1, 1);
    return riquadro;
}

void VistaBorftek::creaRiga(QGridLayout* griglia, int riga) {
    for (std::size_t c = 0; c < colonne.size(); ++c) {
        const auto& [campo, radice, intestazione] = colonne[c];
        const QString nome = u"%1(%2)"_s.arg(radice).arg(riga);
        const QString didascalia = u"%1, riga %2"_s.arg(intestazione).arg(riga + 1);
        QWidget* widget = nullptr;
        if (campo == Campo::Data) {
            auto* giorno = new CampoData(nome, u"aartic(%1)"_s.arg(riga), didascalia);
            m_campi[static_cast<std::size_t>(riga)][c] = giorno->campo();
            widget = giorno;
        } else {
            auto* casella = campo == Campo::Descrizione
                                ? static_cast<QLineEdit*>(new CampoTesto(nome, didascalia, 50))
                                : new CampoImporto(nome, didascalia);
            m_campi[static_cast<std::size_t>(riga)][c] = casella;
            widget = casella;
        }
        griglia->addWidget(widget, riga + 1, static_cast<int>(c));
        lega(riga, campo, m_campi[static_cast<std::size_t>(riga)][c]);
    }
}

void VistaBorftek::lega(int riga, Campo campo, QLineEdit* casella) {
    legami.testo(
        casella, [this, riga, campo] { return m_form.testo(riga, campo); },
        [this, riga, campo](const QString& testo) { m_form.cambia(riga, campo, testo); });
    legami.entrato(casella, [this, riga] { m_form.entra(riga); });
    invio.passo(casella, [this, riga, campo] {
        std::optional<Borftek::Posto> posto;
        legami.esegui([&] { posto = m_form.invio(riga, campo); });
        if (posto)
            vai(*posto);
    });
}

void VistaBorftek::vai(Borftek::Posto posto) {
    vaiA(m_campi[static_cast<std::size_t>(posto.riga)][static_cast<std::size_t>(posto.campo)]);
}

QWidget* VistaBorftek::creaPrestazioni() {
    auto* riquadro = new QGroupBox(u"Tabella prestazioni"_s);
    riquadro->setObjectName(u"Frame2"_s);
    auto* colonna = new QVBoxLayout(riquadro);
    m_prestazioni = new QListWidget;
    m_prestazioni->setObjectName(u"List1"_s);
    m_prestazioni->setAccessibleName(riquadro->title());
    m_prestazioni->setTextElideMode(Qt::ElideRight);
    m_prestazioni->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    const auto scegli = [this] {
        legami.esegui([this] { m_form.scegliPrestazione(m_prestazioni->currentRow()); });
        vai({m_form.rigafocus(), Campo::Data});
    };
    connect(m_prestazioni, &QListWidget::itemClicked, this, scegli);
    invio.passo(m_prestazioni, scegli);
    colonna->addWidget(m_prestazioni);
    return riquadro;
}

QWidget* VistaBorftek::creaTotali() {
    auto* riquadro = new QGroupBox(u"Totali"_s);
    auto* barra = new QHBoxLayout(riquadro);
    const auto mostra = [&](const QString& nome, const QString& testo, const Legami::Leggi& leggi) {
        auto* casella = new CampoTesto(nome, testo, 16);
        casella->setAlignment(Qt::AlignRight);
        legami.testo(casella, leggi);
        barra->addWidget(didascalia(testo, casella));
        barra->addWidget(casella);
        barra->addSpacing(16);
    };
    mostra(u"numfat"_s, u"Numero del documento"_s, [this] { return m_form.numfat(); });
    mostra(u"tota(0)"_s, u"Totale anticipazioni"_s, [this] { return m_form.totale(Campo::Anticipazioni); });
    mostra(u"tota(1)"_s, u"Totale spese"_s, [this] { return m_form.totale(Campo::Spese); });
    mostra(u"tota(2)"_s, u"Totale onorari"_s, [this] { return m_form.totale(Campo::Onorari); });
    barra->addStretch();
    return riquadro;
}

QWidget* VistaBorftek::creaComandi() {
    auto* barra = new BarraComandi(legami);
    barra->comando(u"comando(0)"_s, u"Torna senza riportare"_s, u"indietro"_s, u"Ctrl+Q"_s,
                   [this] { m_form.lascia(); });
    barra->comando(u"comando(1)"_s, u"Conferma"_s, u"conferma"_s, u"F10"_s, [this] { m_form.conferma(); });
    barra->spazio();
    barra->comando(u"comando(2)"_s, u"Inserisci riga"_s, u"inserisci"_s, u"F7"_s, [this] {
        m_form.inserisciRiga();
        vai({m_form.rigafocus(), Campo::Data});
    });
    barra->comando(u"comando(3)"_s, u"Elimina riga"_s, u"togli"_s, u"F8"_s, [this] { m_form.eliminaRiga(); });
    return barra;
}

void VistaBorftek::attiva() {
    const bool primaVolta = m_form.attiva();
    if (primaVolta) {
        m_prestazioni->clear();
        m_prestazioni->addItems(m_form.prestazioni());
    }
    legami.aggiorna();
    if (primaVolta)
        vai({0, Campo::Data});
}

void VistaBorftek::lascia() {
    m_form.lascia();
}

QString VistaBorftek::titolo() const {
    return m_form.titolo();
}

void VistaBorftek::keyPressEvent(QKeyEvent* evento) {
    const int tasto = evento->key();
    if (tasto != Qt::Key_PageUp && tasto != Qt::Key_PageDown)
        return Vista::keyPressEvent(evento);
    const int passo = tasto == Qt::Key_PageUp ? -Borftek::righeSchermo : Borftek::righeSchermo;
    legami.esegui([&] { m_form.scorri(m_form.primariga() + passo); });
}

void VistaBorftek::wheelEvent(QWheelEvent* evento) {
    // The box in focus would be left on another line than the one it was entered for.
    m_cursore->setFocus();
    QApplication::sendEvent(m_cursore, evento);
}

} // namespace bor
