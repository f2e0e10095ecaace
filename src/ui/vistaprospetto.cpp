#include "ui/vistaprospetto.h"

#include "prospetti/prospetto.h"
#include "ui/barracomandi.h"

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int fondoTotali = 0xF5ECE3; ///< as the archive names colours: blue, green, red

QLabel* riga(const QString& nome, const QString& accessibile) {
    auto* etichetta = new QLabel;
    etichetta->setObjectName(nome);
    etichetta->setAccessibleName(accessibile);
    etichetta->setTextFormat(Qt::PlainText);
    etichetta->setWordWrap(true);
    return etichetta;
}

} // namespace

VistaProspetto::VistaProspetto(Prospetto& prospetto, const QString& titolo, const QString& file,
                               std::span<const ColonnaGriglia> colonne,
                               std::function<QString(int, int)> testo)
    : m_prospetto(prospetto), m_titolo(titolo), m_file(file),
      m_modello(new ModelloGriglia(colonne,
                                   {.righe = [&prospetto] { return prospetto.righe(); },
                                    .testo = std::move(testo),
                                    .colore =
                                        [&prospetto](int r, int) {
                                            return prospetto.totale(r) ? std::optional(fondoTotali)
                                                                       : std::nullopt;
                                        },
                                    .grassetto = [&prospetto](int r) { return prospetto.totale(r); }},
                                   this)),
      m_elenco(new QTableView) {
    m_elenco->setObjectName(u"elenco"_s);
    m_elenco->setAccessibleName(titolo);
    m_elenco->setModel(m_modello);
    preparaElenco(m_elenco, colonne, [&prospetto] { return prospetto.righe(); });
    disponiColonne(m_elenco, colonne, true);
    m_lettura.setInterval(0);
    connect(&m_lettura, &QTimer::timeout, this, [this] { leggi(); });
}

void VistaProspetto::componi(QWidget* sopra, const QString& spiegazione, int parti) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(4);
    layout->addWidget(sopra, parti);
    layout->addWidget(m_elenco, 2);
    layout->addWidget(creaPiede(spiegazione));
    layout->addWidget(creaComandi());
    legami.altro([this] { aggiornaElenco(); });
}

QComboBox* VistaProspetto::lista(const QString& nome, const QString& didascalia,
                                 std::function<QStringList()> voci, const Legame<int>& dato) {
    auto* scelta = new QComboBox;
    scelta->setObjectName(nome);
    scelta->setAccessibleName(didascalia);
    scelta->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    scelta->setMaxVisibleItems(20);
    legami.altro([scelta, voci = std::move(voci), prima = QStringList()]() mutable {
        const QStringList nuove = voci();
        if (std::exchange(prima, nuove) == nuove)
            return;
        const QSignalBlocker zitta(scelta);
        scelta->clear();
        scelta->addItems(nuove);
    });
    legami.lista(scelta, dato.leggi, dato.scrivi);
    return scelta;
}

QWidget* VistaProspetto::creaPiede(const QString& spiegazione) {
    auto* piede = new QWidget;
    auto* layout = new QVBoxLayout(piede);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    auto* avanzamento = new QProgressBar;
    avanzamento->setObjectName(u"avanzamento"_s);
    avanzamento->setAccessibleName(u"Lettura dei documenti"_s);
    const LetturaDocumenti& lettura = m_prospetto.lettura();
    legami.visibile(avanzamento, [&lettura] { return lettura.inCorso(); });
    legami.altro([&lettura, avanzamento] {
        avanzamento->setRange(0, std::max(lettura.quanti(), 1));
        avanzamento->setValue(lettura.letti());
    });
    layout->addWidget(avanzamento);
    auto* difetto = riga(u"difetto"_s, u"Che cosa manca"_s);
    difetto->setProperty("avviso", true);
    legami.etichetta(difetto, [&lettura] { return lettura.difetto(); });
    legami.visibile(difetto, [&lettura] { return !lettura.difetto().isEmpty(); });
    layout->addWidget(difetto);
    auto* totali = riga(u"riepilogo"_s, u"Totali"_s);
    totali->setStyleSheet(u"font-weight: bold;"_s);
    legami.etichetta(totali, [this] { return riepilogo(); });
    legami.visibile(totali, [this] { return !riepilogo().isEmpty(); });
    layout->addWidget(totali);
    auto* nota = riga(u"spiegazione"_s, u"Come si legge"_s);
    nota->setText(spiegazione);
    layout->addWidget(nota);
    return piede;
}

QWidget* VistaProspetto::creaComandi() {
    auto* comandi = new BarraComandi(legami);
    comandi->comando(u"indietro"_s, u"Torna al registro"_s, u"indietro"_s, u"Ctrl+Q"_s,
                     [this] { m_prospetto.esci(); });
    comandi->comando(u"aggiorna"_s, u"Aggiorna"_s, u"aggiorna"_s, u"F5"_s, [this] { attiva(); });
    comandi->spazio();
    const auto pronto = [this] { return !m_prospetto.lettura().inCorso(); };
    auto* stampa = comandi->comando(u"stampa"_s, u"Stampa"_s, u"stampa"_s, u"Ctrl+P"_s,
                                    [this] { stampaTabella(m_prospetto.tabella(), this, figura()); });
    legami.abilitato(stampa, pronto);
    auto* esporta = comandi->comando(u"esporta"_s, u"Esporta"_s, u"esporta"_s, u"Ctrl+T"_s, [this] {
        esportaTabella(m_prospetto.tabella(), m_file, this, figura());
    });
    esporta->setToolTip(u"Foglio di calcolo (CSV), PDF o JSON (Ctrl+T)"_s);
    legami.abilitato(esporta, pronto);
    return comandi;
}

void VistaProspetto::attiva() {
    m_prospetto.attiva();
    legami.aggiorna();
    if (m_prospetto.lettura().inCorso())
        m_lettura.start();
    vaiA(m_elenco);
}

void VistaProspetto::leggi() {
    constexpr std::chrono::milliseconds fetta(30);
    if (m_prospetto.lettura().inCorso())
        m_prospetto.prosegui(fetta);
    if (!m_prospetto.lettura().inCorso())
        m_lettura.stop();
    legami.aggiorna();
}

void VistaProspetto::lascia() {
    legami.esegui([this] { m_prospetto.esci(); });
}

void VistaProspetto::aggiornaElenco() {
    if (std::exchange(m_edizione, m_prospetto.edizione()) == m_prospetto.edizione())
        return;
    const int corrente = rigaCorrente();
    m_modello->rinnova();
    const QModelIndex cella = m_modello->index(corrente, 0);
    m_elenco->setCurrentIndex(cella);
    m_elenco->scrollTo(cella, QAbstractItemView::PositionAtCenter);
}

} // namespace bor
