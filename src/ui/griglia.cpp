#include "ui/griglia.h"

#include "common/posti.h"
#include "ui/icona.h"
#include "ui/tinte.h"

#include <QEvent>
#include <QFont>
#include <QGuiApplication>
#include <QHeaderView>
#include <QShortcut>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace bor {

namespace {

/// Colours of the archive are 0x00BBGGRR.
QColor coloreQt(int bgr) {
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

void vaiARiga(QTableView* elenco, int riga) {
    elenco->setCurrentIndex(elenco->model()->index(riga, std::max(elenco->currentIndex().column(), 0)));
}

constexpr int caratteriData = 12;
constexpr auto proprietaScorre = "scorre";

bool scorre(const QTableView* elenco) {
    return elenco->property(proprietaScorre).toBool();
}

/// Of a stated width in pixels: a thousand has room for a date.
int puntiDi(const QTableView* elenco, int larghezza) {
    return larghezza * elenco->fontMetrics().horizontalAdvance(QStringLiteral("00/00/000000")) / 1000;
}

bool diTesto(const ColonnaGriglia& colonna) {
    constexpr int larga = 2000;
    return colonna.larghezza >= larga && colonna.caratteri == 0;
}

/// Width of a column that takes no part in what the others leave.
int puntiFissi(const QTableView* elenco, const ColonnaGriglia& colonna, int sezione) {
    if (colonna.larghezza == ColonnaGriglia::nascosta)
        return 0;
    if (colonna.caratteri > 0)
        return puntiDi(elenco, colonna.caratteri * 1000 / caratteriData);
    if (colonna.larghezza != ColonnaGriglia::elastica)
        return puntiDi(elenco, colonna.larghezza);
    return std::max(elenco->horizontalHeader()->sectionSizeHint(sezione), puntiDi(elenco, colonna.minima));
}

/// Shares the width of a grid: texts take what the narrow columns leave, each by its stated width, and the
/// elastic column at least what its content needs.
void adattaColonne(QTableView* elenco, std::span<const ColonnaGriglia> colonne) {
    QHeaderView* testata = elenco->horizontalHeader();
    int tutte = 0;
    int libera = elenco->viewport()->width();
    int parti = 0;
    for (int i = 0; i < std::ssize(colonne); ++i) {
        const ColonnaGriglia& colonna = elemento(colonne, i);
        if (diTesto(colonna))
            parti += colonna.larghezza;
        else
            libera -= puntiFissi(elenco, colonna, i);
    }
    for (int i = 0; i < std::ssize(colonne); ++i) {
        const ColonnaGriglia& colonna = elemento(colonne, i);
        if (testata->sectionResizeMode(i) == QHeaderView::Stretch || testata->isSectionHidden(i))
            continue;
        const int suoi = diTesto(colonna)
                             ? std::max({testata->sectionSizeHint(i), libera * colonna.larghezza / parti,
                                         scorre(elenco) ? puntiDi(elenco, colonna.minima) : 0})
                             : puntiFissi(elenco, colonna, i);
        testata->resizeSection(i, suoi);
        tutte += suoi;
    }
    const bool nonCiStanno = scorre(elenco) && tutte > elenco->viewport()->width();
    elenco->setHorizontalScrollBarPolicy(nonCiStanno ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

/// Keeps the columns to the width of their grid.
class ColonneDaTesto : public QObject {
public:
    ColonneDaTesto(QTableView* elenco, std::span<const ColonnaGriglia> colonne)
        : QObject(elenco), m_elenco(elenco), m_colonne(colonne) {
        elenco->viewport()->installEventFilter(this);
        elenco->horizontalHeader()->setMinimumSectionSize(1);
    }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() == QEvent::Resize || evento->type() == QEvent::FontChange)
            adattaColonne(m_elenco, m_colonne);
        return QObject::eventFilter(oggetto, evento);
    }

private:
    QTableView* m_elenco;
    std::span<const ColonnaGriglia> m_colonne;
};

} // namespace

ModelloGriglia::ModelloGriglia(std::span<const ColonnaGriglia> colonne, CelleGriglia celle, QObject* parent)
    : QAbstractTableModel(parent), m_colonne(colonne), m_celle(std::move(celle)) {}

void ModelloGriglia::rinnova() {
    beginResetModel();
    m_righe = m_celle.righe();
    endResetModel();
}

int ModelloGriglia::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : m_righe;
}

int ModelloGriglia::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : quantiIn(m_colonne);
}

Qt::ItemFlags ModelloGriglia::flags(const QModelIndex& indice) const {
    const bool riempitiva = m_celle.scegliibili && indice.row() >= m_celle.scegliibili();
    return riempitiva ? Qt::ItemFlags(Qt::ItemIsEnabled) : QAbstractTableModel::flags(indice);
}

QVariant ModelloGriglia::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid())
        return {};
    switch (ruolo) {
    case Qt::DisplayRole:
        return m_celle.testo(indice.row(), indice.column());
    case Qt::TextAlignmentRole:
        return headerData(indice.column(), Qt::Horizontal, ruolo);
    case Qt::BackgroundRole:
        if (const auto fondo = fondoDi(indice))
            return *fondo;
        return {};
    case Qt::ForegroundRole:
        if (const auto fondo = fondoDi(indice))
            return testoSu(*fondo);
        return {};
    case Qt::FontRole: {
        if (!m_celle.grassetto || !m_celle.grassetto(indice.row()))
            return {};
        QFont carattere; // all but its weight comes from the grid
        carattere.setBold(true);
        return carattere;
    }
    case Qt::DecorationRole: {
        static const QIcon segno = icona(QStringLiteral("nota"));
        return indice.column() == m_celle.segnata && !nota(indice.row()).isEmpty() ? QVariant(segno)
                                                                                   : QVariant();
    }
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return nota(indice.row());
    default:
        return {};
    }
}

QString ModelloGriglia::nota(int riga) const {
    return m_celle.nota ? m_celle.nota(riga) : QString();
}

std::optional<QColor> ModelloGriglia::fondoDi(const QModelIndex& indice) const {
    const std::optional<int> colore = m_celle.colore(indice.row(), indice.column());
    if (!colore)
        return std::nullopt;
    return fondoIn(tonoDi(QGuiApplication::palette()), coloreQt(*colore));
}

QVariant ModelloGriglia::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
    if (orientamento != Qt::Horizontal || sezione < 0 || sezione >= columnCount())
        return {};
    const ColonnaGriglia& colonna = elemento(m_colonne, sezione);
    if (ruolo == Qt::DisplayRole)
        return colonna.intestazione.toString();
    if (ruolo == Qt::TextAlignmentRole)
        return QVariant(colonna.allineamento | Qt::AlignVCenter);
    return {};
}

void preparaElenco(QTableView* elenco, std::span<const ColonnaGriglia> colonne,
                   const std::function<int()>& righe) {
    const auto tasto = [elenco](Qt::Key quale, const std::function<void()>& azione) {
        auto* scorciatoia = new QShortcut(QKeySequence(quale), elenco);
        scorciatoia->setContext(Qt::WidgetShortcut);
        QObject::connect(scorciatoia, &QShortcut::activated, elenco, azione);
    };
    tasto(Qt::Key_Home, [elenco] { vaiARiga(elenco, 0); });
    tasto(Qt::Key_End, [elenco, righe] { vaiARiga(elenco, std::max(righe() - 1, 0)); });
    elenco->setSelectionMode(QAbstractItemView::SingleSelection);
    elenco->setSelectionBehavior(QAbstractItemView::SelectRows);
    elenco->setEditTriggers(QAbstractItemView::NoEditTriggers);
    elenco->setTabKeyNavigation(false);
    elenco->setWordWrap(false);
    elenco->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    elenco->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    elenco->verticalHeader()->hide();
    elenco->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    elenco->verticalHeader()->setDefaultSectionSize(elenco->fontMetrics().height() + 5);
    QHeaderView* testata = elenco->horizontalHeader();
    testata->setHighlightSections(false);
    disponiColonne(elenco, colonne, false);
    new ColonneDaTesto(elenco, colonne);
}

void disponiColonne(QTableView* elenco, std::span<const ColonnaGriglia> colonne, bool scorrevole) {
    elenco->setProperty(proprietaScorre, scorrevole);
    QHeaderView* testata = elenco->horizontalHeader();
    for (int i = 0; i < std::ssize(colonne); ++i) {
        const ColonnaGriglia& colonna = elemento(colonne, i);
        const bool elastica =
            colonna.larghezza == ColonnaGriglia::elastica && colonna.caratteri == 0 && !scorrevole;
        elenco->setColumnHidden(i, colonna.larghezza == ColonnaGriglia::nascosta);
        testata->setSectionResizeMode(i, elastica ? QHeaderView::Stretch : QHeaderView::Interactive);
    }
    adattaColonne(elenco, colonne);
}

int caratteriIn(const QTableView* elenco, int punti) {
    const int data = elenco->fontMetrics().horizontalAdvance(QStringLiteral("00/00/000000"));
    return (punti * caratteriData + data / 2) / data;
}

} // namespace bor
