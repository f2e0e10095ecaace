#include "ui/vistaborftek.h"

#include "ui/affiancati.h"
#include "ui/barracomandi.h"
#include "ui/campodata.h"
#include "ui/cursorerighe.h"
#include "ui/finestraincolla.h"
#include "ui/finestrastorico.h"
#include "ui/flusso.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>

#include <utility>

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

/// In the order of the screen.
constexpr std::array<Colonna, 5> colonne = {{
    {Campo::Data, u"artic", u"Data"},
    {Campo::Descrizione, u"ds", u"Descrizione prestazione"},
    {Campo::Anticipazioni, u"antic", u"Anticipazioni"},
    {Campo::Spese, u"spese", u"Spese"},
    {Campo::Onorari, u"prezzo", u"Onorari"},
}};

/// Those of the window that tells what would be pasted.
constexpr std::array<ColonnaGriglia, 7> colonneIncolla = {{
    {u"Riga", 500, Qt::AlignRight},
    {u"Data", 1000},
    {u"Descrizione prestazione", 3000},
    {u"Anticipazioni", 1200, Qt::AlignRight},
    {u"Spese", 1000, Qt::AlignRight},
    {u"Onorari", 1000, Qt::AlignRight},
    {u"Rilievi", 3000},
}};

} // namespace

VistaBorftek::VistaBorftek(Borftek& form, QWidget* parent) : Vista(parent), m_form(form) {
    auto* layout = new QVBoxLayout(this);
    auto* centro = new Affiancati;
    centro->aggiungi(creaRighe(), 1);
    centro->aggiungi(creaPrestazioni(), 0);
    layout->addWidget(centro, 1);
    layout->addWidget(creaTotali());
    layout->addWidget(creaComandi());
    legami.altro([this] { aggiornaPrestazioni(); });
    legami.altro([this] {
        if (const auto cella = m_form.prendiFuoco())
            vaiA(m_campi[cella->linea][cella->campo]);
    });
    altriTasti =
        tastiRighe() + QList<TastoSchermo>{{u"PagSu, PagGiù"_s, u"Le righe precedenti, le seguenti"_s}};
}

QWidget* VistaBorftek::creaRighe() {
    auto* riquadro = new QGroupBox(u"Prestazioni del documento"_s);
    auto* griglia = new QGridLayout(riquadro);
    griglia->setVerticalSpacing(8);
    for (const Colonna& colonna : colonne)
        griglia->addWidget(new QLabel(colonna.intestazione.toString()), 0, ordinale(colonna.campo),
                           colonna.campo <= Campo::Descrizione ? Qt::AlignLeft : Qt::AlignRight);
    for (int linea = 0; linea < Borftek::linee; ++linea)
        creaLinea(griglia, linea);
    m_cursore = cursoreRighe(legami, m_form, u"Prima riga visibile"_s);
    m_cursore->setFocusPolicy(Qt::StrongFocus);
    griglia->addWidget(m_cursore, 1, quantiIn(colonne), Borftek::linee, 1);
    griglia->setColumnStretch(1, 1);
    griglia->setRowStretch(Borftek::linee + 1, 1);
    return riquadro;
}

void VistaBorftek::creaLinea(QGridLayout* griglia, int linea) {
    for (const auto& [campo, radice, intestazione] : colonne) {
        const QString nome = u"%1(%2)"_s.arg(radice).arg(linea);
        const QString didascalia = u"%1, riga %2"_s.arg(intestazione).arg(linea + 1);
        QWidget* widget = nullptr;
        QLineEdit*& casella = m_campi[linea][campo];
        if (campo == Campo::Data) {
            auto* giorno = new CampoData(nome, u"aartic(%1)"_s.arg(linea), didascalia, m_form.bordata());
            casella = giorno->campo();
            widget = giorno;
        } else {
            casella = campo == Campo::Descrizione ? new CampoTesto(nome, didascalia, 50)
                                                  : new CampoImporto(nome, didascalia);
            widget = casella;
        }
        griglia->addWidget(widget, linea + 1, ordinale(campo));
        lega({campo, linea}, casella);
    }
}

void VistaBorftek::lega(Borftek::Cella cella, QLineEdit* casella) {
    legami.testo(
        casella, [this, cella] { return m_form.testo(cella); },
        [this, cella](const QString& testo) { m_form.cambia(cella, testo); });
    casella->installEventFilter(this);
    legami.altro([this, casella, cella] { segnaScelta(casella, m_form, cella.linea); });
    legami.segnala(casella, [this, cella] { return m_form.avviso(cella); });
    legami.entrato(casella, [this, cella] { m_form.entra(cella); });
    invio.passo(casella, [this, cella] { legami.esegui([&] { m_form.invio(cella); }); });
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
    };
    connect(m_prestazioni, &QListWidget::itemClicked, this, scegli);
    invio.passo(m_prestazioni, scegli);
    colonna->addWidget(m_prestazioni);
    return riquadro;
}

QWidget* VistaBorftek::creaTotali() {
    auto* riquadro = new QGroupBox(u"Totali"_s);
    auto* barra = new Flusso(riquadro);
    const auto mostra = [&](const QString& nome, const QString& testo, const Legami::Leggi& leggi) {
        auto* casella = new CampoTesto(nome, testo, 16);
        casella->setAlignment(Qt::AlignRight);
        legami.testo(casella, leggi);
        barra->addWidget(conDidascalia(testo, casella));
        barra->spazio(16);
    };
    mostra(u"numfat"_s, u"Numero del documento"_s, [this] { return m_form.numfat(); });
    mostra(u"tota(0)"_s, u"Totale anticipazioni"_s, [this] { return m_form.totale(Campo::Anticipazioni); });
    mostra(u"tota(1)"_s, u"Totale spese"_s, [this] { return m_form.totale(Campo::Spese); });
    mostra(u"tota(2)"_s, u"Totale onorari"_s, [this] { return m_form.totale(Campo::Onorari); });
    return riquadro;
}

QWidget* VistaBorftek::creaComandi() {
    auto* barra = new BarraComandi(legami);
    barra->comando(u"comando(0)"_s, u"Torna senza riportare"_s, u"indietro"_s, u"Ctrl+Q"_s,
                   [this] { m_form.lascia(); });
    barra->comando(u"comando(1)"_s, u"Conferma"_s, u"conferma"_s, u"F10"_s, [this] { m_form.conferma(); });
    barra->spazio();
    barra->comando(u"comando(2)"_s, u"Inserisci riga"_s, u"inserisci"_s, u"F7"_s,
                   [this] { m_form.inserisciRiga(); });
    barra->comando(u"comando(3)"_s, u"Elimina riga"_s, u"togli"_s, u"F8"_s, [this] { m_form.eliminaRiga(); });
    barra->comando(u"storico"_s, u"Storico"_s, u"storico"_s, u"Ctrl+H"_s, [this] { apriStorico(); });
    return barra;
}

void VistaBorftek::apriStorico() {
    if (m_storico)
        (new FinestraStorico(*m_storico, m_form.storico(), {}, this))->open();
}

void VistaBorftek::attiva() {
    m_form.attiva();
    legami.aggiorna();
}

void VistaBorftek::aggiornaPrestazioni() {
    if (std::exchange(m_edizione, m_form.edizione()) == m_form.edizione())
        return;
    m_prestazioni->clear();
    m_prestazioni->addItems(m_form.prestazioni());
}

void VistaBorftek::lascia() {
    m_form.lascia();
}

QString VistaBorftek::titolo() const {
    return m_form.titolo();
}

bool VistaBorftek::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress)
        return Vista::eventFilter(oggetto, evento);
    return tastoRighe(static_cast<const QKeyEvent&>(*evento), static_cast<QLineEdit&>(*oggetto), legami,
                      m_form.appunti(), colonneIncolla, this);
}

void VistaBorftek::keyPressEvent(QKeyEvent* evento) {
    if (!sfoglia(evento, legami, m_form))
        Vista::keyPressEvent(evento);
}

void VistaBorftek::wheelEvent(QWheelEvent* evento) {
    gira(m_cursore, evento);
}

} // namespace bor
