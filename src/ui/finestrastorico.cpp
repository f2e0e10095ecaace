#include "ui/finestrastorico.h"

#include "common/date.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "common/valuta.h"
#include "document/righe.h"
#include "document/testorighe.h"
#include "ui/griglia.h"
#include "ui/vista.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

enum class ColonnaDocumento { Data, Genere, Numero, Imponibile, Imposta, Totale };
constexpr std::array<ColonnaGriglia, 6> colonneDocumenti = {{
    {u"Data", 1000},
    {u"Documento", 2500, Qt::AlignLeft, 1200},
    {u"Numero", 1200},
    {u"Imponibile ed esente", 1900, Qt::AlignRight},
    {u"Imposta", 1300, Qt::AlignRight},
    {u"Totale", 1500, Qt::AlignRight},
}};

enum class ColonnaVendita { Data, Numero, Quantita, Prezzo, Sconto1, Sconto2, Nota };
constexpr std::array<ColonnaGriglia, 7> colonneVendite = {{
    {u"Data", 1000},
    {u"Fattura", 1200},
    {u"Quantità", 1200, Qt::AlignRight},
    {u"Prezzo", 1400, Qt::AlignRight},
    {u"Sc. 1", 600, Qt::AlignRight},
    {u"Sc. 2", 600, Qt::AlignRight},
    {u"Note", 2500, Qt::AlignLeft, 1200},
}};

QString testoGiorno(QDate giorno) {
    return giorno.isValid() ? testoData(giorno) : QString();
}

QString genere(const DocumentoStorico& d) {
    if (d.notaCredito)
        return u"Nota di credito"_s;
    return d.parcella ? u"Parcella"_s : u"Fattura"_s;
}

template <std::size_t N>
QTableView* elenco(const QString& nome, const QString& titolo, ModelloGriglia* modello,
                   const std::array<ColonnaGriglia, N>& colonne) {
    auto* vista = new QTableView;
    vista->setObjectName(nome);
    vista->setAccessibleName(titolo);
    vista->setModel(modello);
    preparaElenco(vista, colonne, [modello] { return modello->rowCount(); });
    disponiColonne(vista, colonne, true);
    return vista;
}

QLabel* titoletto(const QString& testo) {
    auto* etichetta = new QLabel(testo);
    etichetta->setTextFormat(Qt::PlainText);
    etichetta->setStyleSheet(u"font-weight: bold;"_s);
    return etichetta;
}

} // namespace

FinestraStorico::FinestraStorico(Storico& storico, const DomandaStorico& domanda, Prendi prendi,
                                 QWidget* parent)
    : QDialog(parent), m_storico(storico), m_prendi(std::move(prendi)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"storico"_s);
    setWindowTitle(u"Storico del cliente"_s);
    offriGuida(this, u"righe"_s);
    m_storico.apri(domanda);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(creaDocumenti(), 1);
    if (domanda.recart > 0)
        layout->addWidget(creaVendite(), 1);
    else if (m_prendi)
        layout->addWidget(new QLabel(
            u"La riga non ha un articolo: le ultime vendite si vedono da una riga che ne ha uno."_s));
    layout->addWidget(creaBottoni());
    resize(parent->size().boundedTo(QSize(860, 600)));
    QTableView* prima = m_vendite ? m_vendite : m_documenti;
    prima->setFocus();
    connect(&m_timer, &QTimer::timeout, this, [this] { avanza(); });
    m_timer.start(0);
    avanza();
}

FinestraStorico::~FinestraStorico() {
    m_storico.interrompi();
}

QWidget* FinestraStorico::creaDocumenti() {
    auto* modello =
        new ModelloGriglia(colonneDocumenti,
                           {.righe = [this] { return quantiIn(m_storico.documenti()); },
                            .testo = [this](int riga, int colonna) { return testoDocumento(riga, colonna); },
                            .colore = [](int, int) { return std::nullopt; }},
                           this);
    modello->rinnova();
    m_documenti = elenco(u"documentiCliente"_s, u"Documenti del cliente"_s, modello, colonneDocumenti);
    m_documenti->setCurrentIndex(modello->index(0, 0));
    const auto importo = [this](int anno) {
        const QString testo = m_storico.valuta().importotesto(m_storico.totale(anno));
        return testo.isEmpty() ? u"0"_s : testo;
    };
    const auto& documenti = m_storico.documenti();
    QString conto = u"Documenti: %1, totale %2"_s.arg(documenti.size()).arg(importo(0));
    if (!documenti.empty() && documenti.front().data.isValid()) {
        const int anno = documenti.front().data.year();
        conto += u", del %1 %2"_s.arg(anno).arg(importo(anno));
    }
    auto* riquadro = new QWidget;
    auto* colonna = new QVBoxLayout(riquadro);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(titoletto(m_storico.nomeCliente()));
    auto* totali = new QLabel(conto + u" (note di credito sottratte)"_s);
    totali->setObjectName(u"totaliCliente"_s);
    colonna->addWidget(totali);
    colonna->addWidget(m_documenti, 1);
    return riquadro;
}

QWidget* FinestraStorico::creaVendite() {
    m_modelloVendite =
        new ModelloGriglia(colonneVendite,
                           {.righe = [this] { return quantiIn(m_storico.vendite()); },
                            .testo = [this](int riga, int colonna) { return testoVendita(riga, colonna); },
                            .colore = [](int, int) { return std::nullopt; }},
                           this);
    m_vendite =
        elenco(u"venditeArticolo"_s, u"Ultime vendite dell'articolo"_s, m_modelloVendite, colonneVendite);
    connect(m_vendite, &QTableView::doubleClicked, this, [this] { prendiScelta(); });
    m_stato = new QLabel;
    m_stato->setObjectName(u"statoStorico"_s);
    m_avanzamento = new QProgressBar;
    m_avanzamento->setObjectName(u"avanzamentoStorico"_s);
    m_avanzamento->setAccessibleName(u"Lettura delle righe"_s);
    auto* riquadro = new QWidget;
    auto* colonna = new QVBoxLayout(riquadro);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(titoletto(m_storico.nomeArticolo()));
    colonna->addWidget(m_stato);
    colonna->addWidget(m_avanzamento);
    colonna->addWidget(m_vendite, 1);
    return riquadro;
}

QWidget* FinestraStorico::creaBottoni() {
    auto* bottoni = new QDialogButtonBox;
    if (m_vendite && m_prendi) {
        m_bottone = bottoni->addButton(u"&Prendi prezzo e sconti"_s, QDialogButtonBox::AcceptRole);
        m_bottone->setObjectName(u"prendi"_s);
        m_bottone->setDefault(true);
        m_bottone->setToolTip(u"Li mette nella riga da cui si è venuti (Invio)"_s);
        connect(m_bottone, &QPushButton::clicked, this, [this] { prendiScelta(); });
    }
    QPushButton* chiudi = bottoni->addButton(u"&Chiudi"_s, QDialogButtonBox::RejectRole);
    chiudi->setToolTip(u"Chiudi (Esc)"_s);
    connect(bottoni, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return bottoni;
}

QString FinestraStorico::testoDocumento(int riga, int colonna) const {
    const DocumentoStorico& d = elemento(m_storico.documenti(), riga);
    const Valuta& valuta = m_storico.valuta();
    switch (enumeratore<ColonnaDocumento>(colonna)) {
    case ColonnaDocumento::Data:
        return testoGiorno(d.data);
    case ColonnaDocumento::Genere:
        return genere(d);
    case ColonnaDocumento::Numero:
        return d.numero;
    case ColonnaDocumento::Imponibile:
        return valuta.importotesto(d.imponibile);
    case ColonnaDocumento::Imposta:
        return valuta.importotesto(d.imposta);
    case ColonnaDocumento::Totale:
        return valuta.importotesto(d.totale);
    }
    return {};
}

QString FinestraStorico::testoVendita(int riga, int colonna) const {
    const VenditaStorica& v = elemento(m_storico.vendite(), riga);
    switch (enumeratore<ColonnaVendita>(colonna)) {
    case ColonnaVendita::Data:
        return testoGiorno(v.data);
    case ColonnaVendita::Numero:
        return v.numero;
    case ColonnaVendita::Quantita:
        return v.riga.quantita == Riga::soloPrezzo ? QString() : numeroPerTabella(v.riga.quantita);
    case ColonnaVendita::Prezzo:
        return m_storico.valuta().prezzotesto(v.riga.prezzo);
    case ColonnaVendita::Sconto1:
        return testoCasella(v.riga.sconto1);
    case ColonnaVendita::Sconto2:
        return testoCasella(v.riga.sconto2);
    case ColonnaVendita::Nota:
        return v.conIva ? u"prezzo con iva"_s : QString();
    }
    return {};
}

/// Looks at some more lines files; what comes in shows at once, the newest first.
void FinestraStorico::avanza() {
    constexpr int fetta = 40; // milliseconds, after which the window answers
    const bool finito = m_storico.avanza(fetta);
    if (finito)
        m_timer.stop();
    if (!m_vendite)
        return;
    const int vendite = quantiIn(m_storico.vendite());
    if (vendite != m_modelloVendite->rowCount()) {
        const int scelta = std::max(m_vendite->currentIndex().row(), 0);
        m_modelloVendite->rinnova();
        m_vendite->setCurrentIndex(m_modelloVendite->index(scelta, 0));
    }
    m_avanzamento->setVisible(!finito);
    m_avanzamento->setRange(0, m_storico.daGuardare());
    m_avanzamento->setValue(m_storico.guardati());
    m_stato->setText(!finito        ? u"Lettura delle righe; Esc chiude."_s
                     : vendite == 0 ? u"Nessuna vendita di questo articolo al cliente."_s
                                    : u"Ultime vendite dell'articolo al cliente: %1"_s.arg(vendite));
    if (m_bottone)
        m_bottone->setEnabled(vendite > 0);
}

void FinestraStorico::prendiScelta() {
    const int riga = m_vendite->currentIndex().row();
    if (!m_prendi || riga < 0 || riga >= quantiIn(m_storico.vendite()))
        return;
    const VenditaStorica scelta = elemento(m_storico.vendite(), riga);
    accept();
    m_prendi(scelta);
}

void offriStorico(Vista& vista, const std::function<void()>& apri) {
    auto* tasto = new QShortcut(QKeySequence(u"Ctrl+H"_s), &vista);
    tasto->setAutoRepeat(false);
    tasto->setWhatsThis(u"Storico del cliente"_s);
    QObject::connect(tasto, &QShortcut::activated, &vista, apri);
}

} // namespace bor
