#include "ui/vistaborsel.h"

#include "common/posti.h"
#include "register/borsel.h"
#include "ui/barracomandi.h"
#include "ui/barraintestazioni.h"
#include "ui/campi.h"
#include "ui/griglia.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTableView>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Shown in the order of `ColonnaCliente`.
constexpr std::array<ColonnaGriglia, colonneCliente> colonne = {{
    {u"Nominativo", 3700},
    {u"", 3000},
    {u"Indirizzo", 3000},
    {u"Città", 3000},
    {u"Partita iva", ColonnaGriglia::elastica, Qt::AlignLeft, 1200},
}};

/// A key that changes a text.
bool scrive(const QKeyEvent& tasto) {
    const bool comando = (tasto.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
    return !comando &&
           (tasto.key() == Qt::Key_Backspace || (!tasto.text().isEmpty() && tasto.text().at(0).isPrint()));
}

} // namespace

VistaBorsel::VistaBorsel(Borsel& form, QWidget* parent)
    : Vista(parent), m_form(form),
      m_modello(new ModelloGriglia(
          colonne,
          {[&form] { return form.righeGriglia(); },
           [&form](int riga, int colonna) { return form.testo(riga, enumeratore<ColonnaCliente>(colonna)); },
           [&form](int riga, int) { return form.colore(riga); }},
          this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(4);
    QWidget* ricerca = creaRicerca();
    QWidget* elenco = creaElenco();
    layout->addWidget(ricerca);
    layout->addWidget(elenco, 1);
    auto* comandi = new BarraComandi(legami);
    comandi->comando(u"indice"_s, u"Torna senza scegliere"_s, u"indietro"_s, u"Ctrl+Q"_s,
                     [this] { m_form.esci(); });
    layout->addWidget(comandi);
    legami.altro([this] { aggiornaElenco(); });
}

QWidget* VistaBorsel::creaRicerca() {
    auto* barra = new QWidget;
    auto* layout = new QHBoxLayout(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    const QString testo = u"Nominativo (o parte di esso):"_s;
    m_selnome = new CampoTesto(u"selnome"_s, testo);
    legami.testo(
        m_selnome, [this] { return m_form.nome(); },
        [this](const QString& nome) { m_form.cambiaNome(nome); });
    invio.passo(m_selnome, [this] {
        legami.esegui([this] { m_form.caricaclienti(); });
        vaiA(m_elenco);
    });
    layout->addWidget(didascalia(testo, m_selnome));
    layout->addWidget(m_selnome);
    layout->addStretch();
    return barra;
}

QWidget* VistaBorsel::creaElenco() {
    m_elenco = new QTableView;
    m_elenco->setObjectName(u"elenco"_s);
    m_elenco->setAccessibleName(u"Clienti"_s);
    m_elenco->setModel(m_modello);
    preparaElenco(m_elenco, colonne, [this] { return m_form.quanti(); });
    connect(m_elenco, &QTableView::doubleClicked, this, [this] { scegli(); });
    invio.passo(m_elenco, [this] { scegli(); });
    m_elenco->installEventFilter(this);

    std::vector<BarraIntestazioni::Comando> comandi;
    comandi.reserve(colonneCliente);
    for (int i = 0; i < colonneCliente; ++i)
        comandi.push_back({i, u"Riordina"_s, QKeySequence(u"Ctrl+%1"_s.arg(i + 1))});
    auto* nessuno = new QLabel(u"Nessun cliente"_s);
    nessuno->setObjectName(u"nessuno"_s);
    nessuno->setAlignment(Qt::AlignCenter);
    legami.visibile(nessuno, [this] { return m_form.quanti() == 0; });
    auto* riquadro = new QWidget;
    auto* layout = new QVBoxLayout(riquadro);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(nessuno);
    layout->addWidget(new BarraIntestazioni(m_elenco, comandi, [this](int i) {
        legami.esegui([&] { m_form.ordina(enumeratore<ColonnaCliente>(i)); });
    }));
    layout->addWidget(m_elenco);
    return riquadro;
}

void VistaBorsel::attiva() {
    m_form.attiva();
    legami.aggiorna();
    vaiA(m_elenco);
}

void VistaBorsel::lascia() {
    m_form.esci();
}

QString VistaBorsel::titolo() const {
    return u"Selezione cliente"_s;
}

void VistaBorsel::keyPressEvent(QKeyEvent* evento) {
    if (m_selnome->hasFocus() && evento->key() == Qt::Key_Down)
        vaiA(m_elenco);
    else
        Vista::keyPressEvent(evento);
}

bool VistaBorsel::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto != m_elenco || evento->type() != QEvent::KeyPress ||
        !scrive(*static_cast<QKeyEvent*>(evento)))
        return Vista::eventFilter(oggetto, evento);
    m_selnome->setFocus(Qt::OtherFocusReason);
    m_selnome->end(false);
    QCoreApplication::sendEvent(m_selnome, evento);
    return true;
}

void VistaBorsel::aggiornaElenco() {
    if (std::exchange(m_edizione, m_form.edizione()) == m_form.edizione())
        return;
    m_modello->rinnova();
    m_elenco->setCurrentIndex(m_modello->index(0, 0));
    m_elenco->scrollToTop();
}

void VistaBorsel::scegli() {
    legami.esegui([this] { m_form.scegli(m_elenco->currentIndex().row()); });
}

} // namespace bor
