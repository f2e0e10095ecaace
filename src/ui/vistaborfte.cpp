#include "ui/vistaborfte.h"

#include "common/posti.h"
#include "common/versione.h"
#include "register/borfte.h"
#include "ui/barraintestazioni.h"
#include "ui/bottonemenu.h"
#include "ui/campi.h"
#include "ui/colonneregistro.h"
#include "ui/finestrainformazioni.h"
#include "ui/flusso.h"
#include "ui/griglia.h"
#include "ui/menuelenco.h"
#include "ui/menuscelti.h"
#include "ui/sceltarighe.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <QStandardPaths>
#include <QTableView>

#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// A group of options, one of which is chosen; the buttons are named `nome(0)` and so on.
template <class Opzione>
QGroupBox* opzioni(const QString& titolo, const QString& nome, const QStringList& didascalie, Legami& legami,
                   const std::function<std::optional<Opzione>()>& leggi,
                   const std::function<void(Opzione)>& scrivi) {
    auto* gruppo = new QGroupBox(titolo);
    auto* colonna = new QVBoxLayout(gruppo);
    colonna->setSpacing(1);
    auto* bottoni = new QButtonGroup(gruppo);
    for (int i = 0; i < didascalie.size(); ++i) {
        auto* opzione = new QRadioButton(didascalie[i]);
        opzione->setObjectName(u"%1(%2)"_s.arg(nome).arg(i));
        opzione->setAccessibleName(titolo + u": "_s + didascalie[i]);
        bottoni->addButton(opzione, i);
        colonna->addWidget(opzione);
        const auto quale = enumeratore<Opzione>(i);
        legami.spunta(
            opzione, [leggi, quale] { return leggi() == quale; }, [scrivi, quale](bool) { scrivi(quale); });
    }
    colonna->addStretch();
    return gruppo;
}

/// The tooltip has what the line has no room for.
void mostraIntero(QLabel* linea, const QString& testo) {
    linea->setText(testo);
    linea->setToolTip(testo);
}

} // namespace

VistaBorfte::VistaBorfte(Borfte& form, QWidget* parent)
    : Vista(parent), m_form(form), m_colonne(new ColonneRegistro(this)),
      m_modello(new ModelloGriglia(
          m_colonne->tutte(),
          {[&form] { return form.righeGriglia(); },
           [&form](int riga, int colonna) { return form.testo(riga, enumeratore<Colonna>(colonna)); },
           [&form](int riga, int colonna) { return form.colore(riga, enumeratore<Colonna>(colonna)); },
           [&form](int riga) { return form.nota(riga); }, ordinale(Colonna::Numero),
           [&form] { return form.elenco().quante(); }},
          this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(4);
    QWidget* opzioniVista = creaOpzioni();
    QWidget* elenco = creaElenco();
    layout->addWidget(opzioniVista);
    layout->addWidget(elenco, 1);
    layout->addWidget(creaComandi());
    creaScorciatoie();
    m_colonne->mostra(m_form.opzioni().vista());
    legami.altro([this] { aggiornaElenco(); });
    m_form.comandoRiordino().suAvanzamento([this] { legami.aggiorna(); });
}

QWidget* VistaBorfte::creaOpzioni() {
    auto* barra = new QWidget;
    auto* layout = new Flusso(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(opzioni<Selvis>(
        u"Registrazioni"_s, u"selvis"_s,
        {u"Visualizza tutte le registrazioni"_s, u"Visualizza solo le ultime 1000 registrazioni"_s,
         u"Visualizza solo le ultime 5000 registrazioni"_s},
        legami, [this] { return m_form.opzioni().scelte().selvis; },
        [this](Selvis scelta) { m_form.opzioni().cambiaSelvis(scelta); }));
    layout->addWidget(opzioni<Visua>(
        u"Posizione"_s, u"visua"_s,
        {u"Visualizza a partire dalla prima registrazione"_s,
         u"Visualizza a partire dall'ultima registrazione"_s},
        legami, [this] { return m_form.opzioni().scelte().visua; },
        [this](Visua scelta) { m_form.opzioni().cambiaVisua(scelta); }));
    layout->addWidget(creaFiltro());
    return barra;
}

QGroupBox* VistaBorfte::creaFiltro() {
    auto* filtro = new QGroupBox(u"Filtro"_s);
    filtro->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto* colonna = new QVBoxLayout(filtro);
    auto* lista = new QComboBox;
    lista->setObjectName(u"Combo1"_s);
    lista->setAccessibleName(u"Filtro"_s);
    lista->addItems({u"Visualizza tutte le fatture"_s, u"Visualizza solo le fatture normali"_s,
                     u"Visualizza solo le fatturePA"_s,
                     u"Visualizza solo le fatture con movimento da controllare"_s});
    legami.lista(
        lista, [this] { return ordinale(m_form.opzioni().scelte().filtro); },
        [this](int i) { m_form.opzioni().cambiaFiltro(enumeratore<FiltroFatture>(i)); });
    colonna->addWidget(lista);
    const QString cerca = u"Cerca"_s;
    m_cerca = new CampoTesto(u"cerca"_s, cerca);
    m_cerca->setPlaceholderText(u"numero, numero/anno, cliente, importo o data"_s);
    m_cerca->setToolTip(u"Restano in elenco i documenti che rispondono; Esc li mostra tutti"_s);
    m_cerca->offriSvuota();
    legami.testo(
        m_cerca, [this] { return m_form.opzioni().scelte().cercato; },
        [this](const QString& testo) { m_form.opzioni().cerca(testo); });
    invio.passo(m_cerca, [this] { vaiA(m_elenco); });
    auto* linea = new QHBoxLayout;
    linea->addWidget(didascalia(cerca, m_cerca));
    linea->addWidget(m_cerca, 1);
    colonna->addLayout(linea);
    colonna->addStretch();
    return filtro;
}

QWidget* VistaBorfte::creaElenco() {
    m_elenco = new QTableView;
    m_elenco->setObjectName(u"elenco"_s);
    m_elenco->setAccessibleName(u"Registro delle fatture emesse"_s);
    m_elenco->setModel(m_modello);
    preparaElenco(m_elenco, m_colonne->tutte(), [this] { return m_form.elenco().quante(); });
    m_colonne->segui(m_elenco, [this](const std::vector<ColonnaScelta>& mostrate) {
        VistaRegistro vista = m_form.opzioni().vista();
        if (mostrate == vista.mostrate())
            return;
        vista.colonne = mostrate;
        m_form.opzioni().cambiaVista(vista);
        mostraVista();
    });
    m_scelta = new SceltaRighe(
        m_elenco, [this] { return m_form.elenco().quante(); },
        [this](const std::vector<TrattoRighe>& righe) {
            m_form.scelta().scegli(righe);
            aggiornaNota();
        });
    connect(m_elenco, &QTableView::doubleClicked, this, [this](const QModelIndex& cella) {
        legami.esegui([&] { m_form.apertura().cella(cella.row(), enumeratore<Colonna>(cella.column())); });
    });
    connect(m_elenco->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& cella) {
                m_form.cellaCorrente(cella.row(), enumeratore<Colonna>(cella.column()));
                aggiornaNota();
            });
    invio.passo(m_elenco, [this] {
        const QModelIndex cella = m_elenco->currentIndex();
        if (cella.isValid())
            legami.esegui([&] { m_form.apertura().documento(cella.row()); });
    });

    auto* riquadro = new QWidget;
    auto* layout = new QVBoxLayout(riquadro);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    std::vector<BarraIntestazioni::Comando> comandi;
    for (const Colonna colonna : {Colonna::Registrazione, Colonna::DataRegistrazione, Colonna::Cliente}) {
        const QKeySequence tasto(u"Ctrl+%1"_s.arg(comandi.size() + 1));
        comandi.push_back({ordinale(colonna), u"Riordina"_s, tasto});
    }
    layout->addWidget(new BarraIntestazioni(m_elenco, comandi, [this](int colonna) {
        legami.esegui([&] { m_form.ordina(enumeratore<Colonna>(colonna)); });
    }));
    layout->addWidget(m_elenco);
    creaPiede(*layout);
    return riquadro;
}

/// What the rows come to: on the left all that are shown, on the right those chosen.
void VistaBorfte::creaPiede(QLayout& layout) {
    const auto linea = [&](const QString& nome, const QString& accessibile) {
        auto* etichetta = new QLabel;
        etichetta->setObjectName(nome);
        etichetta->setAccessibleName(accessibile);
        etichetta->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        layout.addWidget(etichetta);
        return etichetta;
    };
    m_nota = linea(u"nota"_s, u"Documento scelto o totali dei documenti scelti"_s);
    m_mostrati = linea(u"mostrati"_s, u"Totali dell'elenco"_s);
}

/// Of the row of the cursor, or of all those that are chosen.
void VistaBorfte::aggiornaNota() {
    const SommeElenco scelti = m_form.elenco().somma(m_form.scelta().righe());
    mostraIntero(m_nota, scelti.documenti > 1 ? u"Scelti: "_s + m_form.totali(scelti)
                                              : m_form.nota(m_elenco->currentIndex().row()));
}

void VistaBorfte::mostraVista() {
    m_colonne->mostra(m_form.opzioni().vista());
    legami.aggiorna();
}

QWidget* VistaBorfte::creaComandi() {
    auto* barra = new QWidget;
    barra->setAccessibleName(u"Comandi"_s);
    auto* layout = new Flusso(barra);
    layout->setContentsMargins(0, 0, 0, 0);
    creaBottoni(layout);
    auto* avanzamento = new QProgressBar;
    avanzamento->setObjectName(u"srt"_s);
    avanzamento->setAccessibleName(u"Avanzamento del riordino"_s);
    const ComandoRiordino& riordino = m_form.comandoRiordino();
    legami.visibile(avanzamento, [&riordino] { return riordino.inCorso() && riordino.massimo() > 0; });
    legami.altro([&riordino, avanzamento] {
        avanzamento->setRange(1, std::max(riordino.massimo(), 1));
        avanzamento->setValue(riordino.avanzamento());
    });
    layout->addWidget(avanzamento);
    layout->molla();
    auto* menu = new MenuElenco(m_form, this, [this] { mostraVista(); });
    legami.visibile(menu->bottone(), [&riordino] { return riordino.fermo(); });
    layout->addWidget(menu->bottone());
    auto* informazioni = new BottoneComando(u"informazioni"_s, u"Informazioni"_s, u"informazioni"_s,
                                            QKeySequence(u"Ctrl+I"_s));
    legami.comando(informazioni, [this] { mostraInformazioni(); });
    legami.abilitato(informazioni, [&riordino] { return !riordino.inCorso(); });
    layout->addWidget(informazioni);
    auto* scritta = new QLabel(u"Ver. N."_s + versione());
    scritta->setObjectName(u"xx_versione"_s);
    layout->addWidget(scritta);
    return barra;
}

void VistaBorfte::creaBottoni(Flusso* layout) {
    const ComandoRiordino& riordino = m_form.comandoRiordino();
    const auto comando = [&](int indice, const QString& testo, const QString& icona, const QString& tasto,
                             std::function<void()> azione, const std::function<bool()>& visibile) {
        auto* bottone = new BottoneComando(u"bottone(%1)"_s.arg(indice), testo, icona, QKeySequence(tasto));
        legami.comando(bottone, std::move(azione));
        legami.visibile(bottone, visibile);
        legami.abilitato(bottone, [&riordino] { return !riordino.inCorso(); });
        layout->addWidget(bottone);
    };
    const auto sempre = [] { return true; };
    const auto fermo = [&riordino] { return riordino.fermo(); };
    const auto scelta = [&riordino] { return riordino.scelta(); };
    const auto per = [this](TipoRiordino tipo) { return [this, tipo] { m_form.riordino(tipo); }; };
    comando(
        0, u"Esci"_s, u"esci"_s, u"Ctrl+Q"_s, [this] { m_form.esci(); }, sempre);
    comando(
        1, u"Aggiorna"_s, u"aggiorna"_s, u"F5"_s, [this] { m_form.rileggi(); }, sempre);
    comando(
        2, u"Riordina"_s, u"riordina"_s, u"F6"_s, [this] { m_form.comandoRiordino().scegli(); }, fermo);
    layout->spazio(24);
    auto* etichetta = new QLabel;
    etichetta->setObjectName(u"Label3"_s);
    legami.etichetta(etichetta, [&riordino] { return riordino.etichetta(); });
    legami.visibile(etichetta, [&riordino] { return !riordino.inCorso(); });
    layout->addWidget(etichetta);
    comando(
        3, u"Fattura"_s, u"fattura"_s, u"F2"_s, [this] { m_form.apertura().nuovo(0); }, fermo);
    comando(
        4, u"Nota di credito"_s, u"notacredito"_s, u"F3"_s, [this] { m_form.apertura().nuovo(1); }, fermo);
    layout->spazio(8);
    comando(
        8, u"Elettronica"_s, u"elettronica"_s, u"F9"_s,
        [this] { m_form.apertura().fatturaElettronica(m_elenco->currentIndex().row()); }, fermo);
    auto* prospetti = new BottoneMenu(u"prospetti"_s, u"Prospetti"_s, u"prospetti"_s, legami);
    const auto prospetto = [this](Schermo quale) {
        return [this, quale] { m_form.apertura().prospetto(quale); };
    };
    prospetti->voce(u"&Scadenzario"_s, u"Ctrl+S"_s, prospetto(Schermo::Scadenzario));
    prospetti->voce(u"&Dati mensili"_s, u"Ctrl+G"_s, prospetto(Schermo::DatiMensili));
    legami.visibile(prospetti, fermo);
    layout->addWidget(prospetti);
    comando(5, u"Per data"_s, u"perdata"_s, u"F7"_s, per(TipoRiordino::PerData), scelta);
    comando(6, u"Per protocollo"_s, u"perprotocollo"_s, u"F8"_s, per(TipoRiordino::PerProtocollo), scelta);
    comando(7, u"Per numero"_s, u"pernumero"_s, u"F9"_s, per(TipoRiordino::PerNumero), scelta);
}

void VistaBorfte::mostraInformazioni() {
    const Diagnosi diagnosi = m_form.informazioni();
    const QString documenti = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString cartella = QFileInfo(documenti).isDir() ? documenti : QDir::homePath();
    (new FinestraInformazioni(diagnosi, m_form.testoInformazioni(diagnosi), cartella, this))->open();
}

void VistaBorfte::creaScorciatoie() {
    const auto scorciatoia = [this](const QString& tasti, const QString& cosa,
                                    const std::function<void()>& azione) {
        auto* voce = new QShortcut(QKeySequence(tasti), this);
        voce->setAutoRepeat(false);
        voce->setWhatsThis(cosa);
        connect(voce, &QShortcut::activated, this, azione);
    };
    scorciatoia(u"Ctrl+F"_s, u"Cerca un documento"_s, [this] { vaiA(m_cerca); });
    scorciatoia(u"Ctrl+R"_s, u"Riapre l'ultimo documento registrato"_s,
                [this] { legami.esegui([this] { m_form.apertura().ultimo(); }); });
    const auto copia = [this](Copia come) {
        return [this, come] {
            legami.esegui([&] { m_form.apertura().copia(m_elenco->currentIndex().row(), come); });
        };
    };
    scorciatoia(u"Ctrl+F2"_s, u"Duplica il documento scelto"_s, copia(Copia::Duplicato));
    scorciatoia(u"Ctrl+F3"_s, u"Nota di credito dal documento scelto"_s, copia(Copia::NotaDiCredito));
    altriTasti = {{u"Inizio, Fine"_s, u"Al primo documento, all'ultimo"_s},
                  {u"Maiusc o Ctrl con frecce o mouse"_s, u"Sceglie più documenti"_s},
                  {u"Ctrl+A"_s, u"Sceglie tutti quelli in elenco"_s}};
}

void VistaBorfte::offri(Scelti& scelti) {
    const MenuScelti::Registro registro{.scelta = m_form.scelta(),
                                        .fermo = [this] { return m_form.comandoRiordino().fermo(); },
                                        .cambiato = [this] { legami.esegui([this] { m_form.rileggi(); }); },
                                        .apri = [this](const Identita& documento) { apri(documento); }};
    auto* menu = new MenuScelti(scelti, registro, m_elenco, this);
    auto* elettronica = findChild<QWidget*>(u"bottone(8)"_s);
    static_cast<Flusso*>(elettronica->parentWidget()->layout())->inserisciDopo(elettronica, menu->bottone());
    legami.visibile(menu->bottone(), [this] { return m_form.comandoRiordino().fermo(); });
}

/// From a window that stays open beside the screens: another document may be in hand.
void VistaBorfte::apri(const Identita& documento) {
    if (isVisible()) {
        legami.esegui([&] { m_form.apertura().documento(documento); });
        window()->activateWindow();
    } else {
        m_form.apertura().avvisaInMano();
    }
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
    if (std::exchange(m_edizione, m_form.edizione()) == m_form.edizione())
        return;
    const std::optional<int> prima = m_form.primaRigaVisibile();
    const int vista = m_elenco->verticalScrollBar()->value();
    const int corrente = m_form.rigaCorrente();
    m_modello->rinnova();
    const QString scelti = m_form.opzioni().vista().documenti.descrizione();
    mostraIntero(m_mostrati, (scelti.isEmpty() ? QString() : u"Vista: %1   "_s.arg(scelti)) +
                                 m_form.totali(m_form.elenco().somma()));
    const QModelIndex cella = m_modello->index(corrente, m_colonne->cursore());
    m_scelta->rimetti(cella, m_form.scelta().ritrova());
    m_elenco->verticalScrollBar()->setValue(prima.value_or(vista));
    if (!prima)
        m_elenco->scrollTo(cella);
    else if (m_form.opzioni().scelte().visua == Visua::DallUltima)
        mostraUltima();
}

/// A list that opens at its end shows its last row, however few rows there is room for.
void VistaBorfte::mostraUltima() {
    m_elenco->scrollTo(m_modello->index(std::max(m_form.elenco().quante() - 1, 0), 0));
}

void VistaBorfte::keyPressEvent(QKeyEvent* evento) {
    const bool inCerca = m_cerca->hasFocus();
    const bool esce = evento->key() == Qt::Key_Escape && evento->modifiers() == Qt::NoModifier;
    if (inCerca && evento->key() == Qt::Key_Down) {
        vaiA(m_elenco);
    } else if (esce && (inCerca || !m_form.opzioni().scelte().cercato.isEmpty())) {
        m_cerca->clear();
        legami.esegui([this] { m_form.opzioni().cerca({}); });
        vaiA(m_elenco);
    } else {
        Vista::keyPressEvent(evento);
    }
}

} // namespace bor
