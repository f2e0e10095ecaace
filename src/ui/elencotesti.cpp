#include "ui/elencotesti.h"

#include "common/posti.h"

#include <QHeaderView>

namespace bor {

QTableWidget* elencoTesti(const QString& nome, const QString& didascalia, const QStringList& intestazioni,
                          int righe) {
    auto* elenco = new QTableWidget(righe, quantiIn(intestazioni));
    elenco->setObjectName(nome);
    elenco->setAccessibleName(didascalia);
    elenco->setHorizontalHeaderLabels(intestazioni);
    elenco->setEditTriggers(QAbstractItemView::NoEditTriggers);
    elenco->setSelectionBehavior(QAbstractItemView::SelectRows);
    elenco->setTabKeyNavigation(false);
    elenco->verticalHeader()->hide();
    elenco->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    elenco->horizontalHeader()->setStretchLastSection(true);
    return elenco;
}

} // namespace bor
