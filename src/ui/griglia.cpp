#include "ui/griglia.h"

#include <QColor>
#include <QHeaderView>
#include <QTableView>

#include <utility>

namespace bor {

namespace {

/// Colours of the archive are 0x00BBGGRR.
QColor coloreQt(int bgr) {
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

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
    return padre.isValid() ? 0 : static_cast<int>(m_colonne.size());
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
        if (const auto colore = m_celle.colore(indice.row(), indice.column()))
            return coloreQt(*colore);
        return {};
    default:
        return {};
    }
}

QVariant ModelloGriglia::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
    if (orientamento != Qt::Horizontal || sezione < 0 || sezione >= columnCount())
        return {};
    const ColonnaGriglia& colonna = m_colonne[static_cast<std::size_t>(sezione)];
    if (ruolo == Qt::DisplayRole)
        return colonna.intestazione.toString();
    if (ruolo == Qt::TextAlignmentRole)
        return QVariant(colonna.allineamento | Qt::AlignVCenter);
    return {};
}

void preparaElenco(QTableView* elenco, std::span<const ColonnaGriglia> colonne) {
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
    constexpr double ingrandimento = 1.2;
    for (int i = 0; i < std::ssize(colonne); ++i) {
        const int larghezza = colonne[static_cast<std::size_t>(i)].larghezza;
        if (larghezza == ColonnaGriglia::nascosta)
            elenco->hideColumn(i);
        else if (larghezza == ColonnaGriglia::elastica)
            testata->setSectionResizeMode(i, QHeaderView::Stretch);
        else
            testata->resizeSection(
                i, static_cast<int>(larghezza * ingrandimento * elenco->logicalDpiX() / 1440));
    }
}

} // namespace bor
