// Lets the operator choose many rows of a grid: Shift and Ctrl with arrows or mouse, Ctrl+A, Shift+Home and
// Shift+End. The register uses it.
#pragma once

#include "register/sceltadocumenti.h"

#include <QObject>

#include <functional>

class QModelIndex;
class QTableView;

namespace bor {

class SceltaRighe : public QObject {
public:
    using Scelte = std::function<void(const std::vector<TrattoRighe>&)>;

    /// `righe`: those that may be chosen, the first ones; blank filler rows follow. `scelte` hears every
    /// change, the rows in their order.
    SceltaRighe(QTableView* elenco, std::function<int()> righe, Scelte scelte);

    /// After a fill or a sort: puts the cursor on the cell, and chooses these rows again. Where no more than
    /// one was chosen, that of the cursor is.
    void rimetti(const QModelIndex& cursore, const std::vector<TrattoRighe>& righe);

private:
    void racconta();
    void estendi(int riga);

    QTableView* m_elenco;
    std::function<int()> m_righe;
    Scelte m_scelte;
};

} // namespace bor
