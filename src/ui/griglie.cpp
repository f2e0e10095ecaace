#include "ui/griglie.h"

#include <QHeaderView>
#include <QTableView>

namespace bor {

QColor coloreArchivio(int bgr) {
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

void preparaElenco(QTableView* elenco, std::span<const int> larghezze, int elastica) {
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
    constexpr double ingrandimento = 1.2;
    for (std::size_t i = 0; i < larghezze.size(); ++i)
        testata->resizeSection(static_cast<int>(i),
                               static_cast<int>(larghezze[i] * ingrandimento * elenco->logicalDpiX() / 1440));
    testata->setSectionResizeMode(elastica, QHeaderView::Stretch);
    testata->setHighlightSections(false);
}

} // namespace bor
