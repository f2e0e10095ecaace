#include "ui/sceltarighe.h"

#include <QItemSelection>
#include <QShortcut>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace bor {

namespace {

constexpr auto sceglie = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;

bool unaSola(const std::vector<TrattoRighe>& righe) {
    return righe.empty() || (righe.size() == 1 && righe.front().prima == righe.front().ultima);
}

} // namespace

SceltaRighe::SceltaRighe(QTableView* elenco, std::function<int()> righe, Scelte scelte)
    : QObject(elenco), m_elenco(elenco), m_righe(std::move(righe)), m_scelte(std::move(scelte)) {
    elenco->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(elenco->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { racconta(); });
    const auto tasto = [this](int quale, const std::function<void()>& azione) {
        auto* scorciatoia = new QShortcut(QKeySequence(quale), m_elenco);
        scorciatoia->setContext(Qt::WidgetShortcut);
        connect(scorciatoia, &QShortcut::activated, this, azione);
    };
    tasto(QKeyCombination(Qt::ShiftModifier, Qt::Key_Home).toCombined(), [this] { estendi(0); });
    tasto(QKeyCombination(Qt::ShiftModifier, Qt::Key_End).toCombined(),
          [this] { estendi(std::max(m_righe() - 1, 0)); });
}

/// Everything from the row of the cursor to this one, which gets the cursor.
void SceltaRighe::estendi(int riga) {
    const QModelIndex cursore = m_elenco->currentIndex();
    const QModelIndex meta = cursore.siblingAtRow(riga);
    if (!meta.isValid())
        return;
    QItemSelectionModel* scelta = m_elenco->selectionModel();
    scelta->select(riga < cursore.row() ? QItemSelection(meta, cursore) : QItemSelection(cursore, meta),
                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
    scelta->setCurrentIndex(meta, QItemSelectionModel::NoUpdate);
    m_elenco->scrollTo(meta);
}

void SceltaRighe::racconta() {
    std::vector<TrattoRighe> righe;
    const int ultima = m_righe() - 1;
    for (const QItemSelectionRange& tratto : m_elenco->selectionModel()->selection())
        if (tratto.top() <= ultima)
            righe.push_back({tratto.top(), std::min(tratto.bottom(), ultima)});
    std::ranges::sort(righe, {}, &TrattoRighe::prima);
    m_scelte(righe);
}

void SceltaRighe::rimetti(const QModelIndex& cursore, const std::vector<TrattoRighe>& righe) {
    QItemSelectionModel* scelta = m_elenco->selectionModel();
    // The keys that are down must not turn the cursor's row over, as they would in the view's own call.
    scelta->setCurrentIndex(cursore, unaSola(righe) ? sceglie : QItemSelectionModel::NoUpdate);
    if (unaSola(righe))
        return racconta();
    const QAbstractItemModel* modello = m_elenco->model();
    QItemSelection tutte;
    for (const TrattoRighe& tratto : righe)
        tutte.append(QItemSelectionRange(modello->index(tratto.prima, 0),
                                         modello->index(tratto.ultima, modello->columnCount() - 1)));
    scelta->select(tutte, sceglie);
    racconta();
}

} // namespace bor
