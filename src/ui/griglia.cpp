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

/// Shares the width of a grid: texts take what the narrow columns leave, each by its stated width, and the
/// elastic column at least what its content needs.
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
            adatta();
        return QObject::eventFilter(oggetto, evento);
    }

private:
    /// Of a stated width in pixels: a thousand has room for a date.
    int punti(int larghezza) const {
        return larghezza * m_elenco->fontMetrics().horizontalAdvance(QStringLiteral("00/00/000000")) / 1000;
    }
    static bool diTesto(const ColonnaGriglia& colonna) {
        constexpr int larga = 2000;
        return colonna.larghezza >= larga;
    }
    void adatta() {
        QHeaderView* testata = m_elenco->horizontalHeader();
        int libera = m_elenco->viewport()->width();
        int parti = 0;
        for (int i = 0; i < std::ssize(m_colonne); ++i) {
            const ColonnaGriglia& colonna = elemento(m_colonne, i);
            if (diTesto(colonna))
                parti += colonna.larghezza;
            else if (colonna.larghezza == ColonnaGriglia::elastica)
                libera -= std::max(testata->sectionSizeHint(i), punti(colonna.minima));
            else
                libera -= punti(colonna.larghezza);
        }
        for (int i = 0; i < std::ssize(m_colonne); ++i) {
            const ColonnaGriglia& colonna = elemento(m_colonne, i);
            if (diTesto(colonna))
                testata->resizeSection(
                    i, std::max(testata->sectionSizeHint(i), libera * colonna.larghezza / parti));
            else if (colonna.larghezza > 0)
                testata->resizeSection(i, punti(colonna.larghezza));
        }
    }

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
    elenco->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    elenco->verticalHeader()->hide();
    elenco->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    elenco->verticalHeader()->setDefaultSectionSize(elenco->fontMetrics().height() + 5);
    QHeaderView* testata = elenco->horizontalHeader();
    testata->setHighlightSections(false);
    for (int i = 0; i < std::ssize(colonne); ++i) {
        const int larghezza = elemento(colonne, i).larghezza;
        if (larghezza == ColonnaGriglia::nascosta)
            elenco->hideColumn(i);
        else if (larghezza == ColonnaGriglia::elastica)
            testata->setSectionResizeMode(i, QHeaderView::Stretch);
    }
    new ColonneDaTesto(elenco, colonne);
}

} // namespace bor
