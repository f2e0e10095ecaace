#include "ui/vistaborfte.h"

#include "common/versione.h"
#include "register/borfte.h"
#include "ui/barraintestazioni.h"
#include "ui/campi.h"
#include "ui/griglia.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableView>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Shown in the order of `Colonna`.
constexpr std::array<ColonnaGriglia, colonneElenco> colonne = {{
    {u"Registr.", 1000, Qt::AlignRight},
    {u"Data", 1000},
    {u"Fattura", 1000},
    {u"Data", 1000},
    {u"Cliente", 7230},
    {u"Importo", 1300, Qt::AlignRight},
    {u"PA", 800, Qt::AlignHCenter},
    {u"PDF", ColonnaGriglia::elastica, Qt::AlignHCenter},
    {},
    {},
}};

/// A group of options, one of which is chosen; the buttons are named `nome(0)` and so on.
QGroupBox* opzioni(const QString& titolo, const QString& nome, const QStringList& didascalie, Legami& legami,
                   const std::function<int()>& leggi, const std::function<void(int)>& scrivi) {
    auto* gruppo = new QGroupBox(titolo);
    auto* colonna = new QVBoxLayout(gruppo);
    colonna->setSpacing(1);
    auto* bottoni = new QButtonGroup(gruppo);
    for (int i = 0; i < didascalie.size(); ++i) {
        auto* opzione = new QRadioButton(didascalie[i]);
        opzione->setObjectName(u"%1(%2)"_s.arg(nome).arg(i));
        opzione->setAccessibleName(didascalie[i]);
        bottoni->addButton(opzione, i);
        colonna->addWidget(opzione);
        legami.spunta(
            opzione, [leggi, i] { return leggi() == i; }, [scrivi, i](bool) { scrivi(i); });
    }
    colonna->addStretch();
    return gruppo;
}

} // namespace

VistaBorfte::VistaBorfte(Borfte& form, QWidget* parent)
    : Vista(parent), m_form(form),
      m_modello(new ModelloGriglia(
          colonne,
          {[&form] { return form.righeGriglia(); },
           [&form](int riga, int colonna) { return form.testo(riga, static_cast<Colonna>(colonna)); },
           [&form](int riga, int colonna) { return form.colore(riga, colonna); }},
          this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(4);
    QWidget* opzioniVista = creaOpzioni();
    QWidget* elenco = creaElenco();
    layout->addWidget(opzioniVista);
    layout->addWidget(elenco, 1);
    layout->addWidget(creaComandi());
    legami.altro([this] { aggiornaElenco(); });
    m_form.suAvanzamento([this] { legami.aggiorna(); });
}

QWidget* VistaBorfte::creaOpzioni() {
    auto* barra = new QWidget;
    auto* layout = new QHBoxLayout(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(opzioni(
        u"Registrazioni"_s, u"selvis"_s,
        {u"Visualizza tutte le registrazioni"_s, u"Visualizza solo le ultime 1000 registrazioni"_s,
         u"Visualizza solo le ultime 5000 registrazioni"_s},
        legami, [this] { return m_form.selvis(); }, [this](int i) { m_form.cambiaSelvis(i); }));
    layout->addWidget(opzioni(
        u"Posizione"_s, u"visua"_s,
        {u"Visualizza a partire dalla prima registrazione"_s,
         u"Visualizza a partire dall'ultima registrazione"_s},
        legami, [this] { return m_form.visua(); }, [this](int i) { m_form.cambiaVisua(i); }));
    auto* filtro = new QGroupBox(u"Filtro"_s);
    auto* colonna = new QVBoxLayout(filtro);
    auto* lista = new QComboBox;
    lista->setObjectName(u"Combo1"_s);
    lista->setAccessibleName(u"Filtro"_s);
    lista->addItems({u"Visualizza tutte le fatture"_s, u"Visualizza solo le fatture normali"_s,
                     u"Visualizza solo le fatturePA"_s});
    legami.lista(
        lista, [this] { return static_cast<int>(m_form.filtro()); },
        [this](int i) { m_form.cambiaFiltro(static_cast<FiltroFatture>(i)); });
    colonna->addWidget(lista);
    colonna->addStretch();
    layout->addWidget(filtro);
    layout->addStretch();
    return barra;
}

QWidget* VistaBorfte::creaElenco() {
    m_elenco = new QTableView;
    m_elenco->setObjectName(u"elenco"_s);
    m_elenco->setAccessibleName(u"Registro delle fatture emesse"_s);
    m_elenco->setModel(m_modello);
    preparaElenco(m_elenco, colonne);
    connect(m_elenco, &QTableView::doubleClicked, this, [this] { apri(); });
    connect(m_elenco->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& cella) { m_form.cellaCorrente(cella.row(), cella.column()); });
    invio.passo(m_elenco, [this] { apri(); });

    auto* riquadro = new QWidget;
    auto* layout = new QVBoxLayout(riquadro);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(new BarraIntestazioni(m_elenco,
                                            {{0, u"Riordina"_s, QKeySequence(u"Ctrl+1"_s)},
                                             {1, u"Riordina"_s, QKeySequence(u"Ctrl+2"_s)},
                                             {4, u"Riordina"_s, QKeySequence(u"Ctrl+3"_s)}},
                                            [this](int i) { legami.esegui([&] { m_form.ordina(i); }); }));
    layout->addWidget(m_elenco);
    return riquadro;
}

QWidget* VistaBorfte::creaComandi() {
    auto* barra = new QWidget;
    auto* layout = new QHBoxLayout(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto comando = [&](int indice, const QString& testo, const QString& icona, const QString& tasto,
                             std::function<void()> azione, const std::function<bool()>& visibile) {
        auto* bottone = new BottoneComando(u"bottone(%1)"_s.arg(indice), testo, icona, QKeySequence(tasto));
        legami.comando(bottone, std::move(azione));
        legami.visibile(bottone, visibile);
        legami.abilitato(bottone, [this] { return !m_form.occupato(); });
        layout->addWidget(bottone);
    };
    const auto sempre = [] { return true; };
    const auto normale = [this] { return !m_form.sceltaRiordino() && !m_form.occupato(); };
    const auto scelta = [this] { return m_form.sceltaRiordino(); };
    comando(
        0, u"Esci"_s, u"esci"_s, u"Ctrl+Q"_s, [this] { m_form.esci(); }, sempre);
    comando(
        1, u"Aggiorna"_s, u"aggiorna"_s, u"F5"_s, [this] { m_form.rileggi(); }, sempre);
    comando(
        2, u"Riordina"_s, u"riordina"_s, u"F6"_s, [this] { m_form.scegliRiordino(); }, normale);
    layout->addSpacing(24);
    auto* etichetta = new QLabel;
    etichetta->setObjectName(u"Label3"_s);
    legami.etichetta(etichetta, [this] { return m_form.etichetta(); });
    legami.visibile(etichetta, [this] { return m_form.etichettaVisibile(); });
    layout->addWidget(etichetta);
    comando(
        3, u"Fattura"_s, u"fattura"_s, u"F2"_s, [this] { m_form.nuovoDocumento(0); }, normale);
    comando(
        4, u"Nota di credito"_s, u"notacredito"_s, u"F3"_s, [this] { m_form.nuovoDocumento(1); }, normale);
    comando(
        5, u"Per data"_s, u"perdata"_s, u"F7"_s, [this] { m_form.riordino(TipoRiordino::PerData); }, scelta);
    comando(
        6, u"Per protocollo"_s, u"perprotocollo"_s, u"F8"_s,
        [this] { m_form.riordino(TipoRiordino::PerProtocollo); }, scelta);
    comando(
        7, u"Per numero"_s, u"pernumero"_s, u"F9"_s, [this] { m_form.riordino(TipoRiordino::PerNumero); },
        scelta);
    m_barra = new QProgressBar;
    m_barra->setObjectName(u"srt"_s);
    m_barra->setAccessibleName(u"Avanzamento del riordino"_s);
    legami.visibile(m_barra, [this] { return m_form.occupato() && m_form.massimoAvanzamento() > 0; });
    legami.altro([this] {
        m_barra->setRange(1, std::max(m_form.massimoAvanzamento(), 1));
        m_barra->setValue(m_form.avanzamento());
    });
    layout->addWidget(m_barra, 1);
    layout->addStretch();
    auto* scritta = new QLabel(u"Ver. N."_s + versione());
    scritta->setObjectName(u"xx_versione"_s);
    layout->addWidget(scritta, 0, Qt::AlignBottom);
    return barra;
}

void VistaBorfte::attiva() {
    m_form.attiva();
    legami.aggiorna();
    m_elenco->setFocus();
}

void VistaBorfte::lascia() {
    m_form.esci();
}

QString VistaBorfte::titolo() const {
    return u"Gestione fatture emesse"_s;
}

void VistaBorfte::aggiornaElenco() {
    const bool riempito = std::exchange(m_riempimenti, m_form.riempimenti()) != m_form.riempimenti();
    const bool ordinato = std::exchange(m_ordinamenti, m_form.ordinamenti()) != m_form.ordinamenti();
    if (!riempito && !ordinato)
        return;
    const int vista = m_elenco->verticalScrollBar()->value();
    const int rigaCursore = m_elenco->currentIndex().row();
    m_modello->rinnova();
    // The operator's cursor goes where the list opens: to its first document, or to its last one. A sort
    // leaves it, and what is seen, in place.
    const int ultima = std::max(m_form.elenco().quante() - 1, 0);
    const int corrente = !riempito ? std::max(rigaCursore, 0) : m_form.visua() == 1 ? ultima : 0;
    m_elenco->setCurrentIndex(m_modello->index(corrente, static_cast<int>(Colonna::DataRegistrazione)));
    m_elenco->verticalScrollBar()->setValue(riempito ? m_form.primaRigaVisibile() : vista);
}

void VistaBorfte::apri() {
    const QModelIndex cella = m_elenco->currentIndex();
    if (cella.isValid())
        legami.esegui([&] { m_form.apri(cella.row(), cella.column()); });
}

} // namespace bor
