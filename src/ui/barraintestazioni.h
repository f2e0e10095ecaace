// The labels over the columns of a list that sort it by a click.
#pragma once

#include <QToolButton>

#include <functional>
#include <vector>

class QTableView;

namespace bor {

/// Lies above the grid and keeps one button over each of its columns that sorts; `srx(i)` is their control
/// name.
class BarraIntestazioni : public QWidget {
public:
    struct Comando {
        int colonna;
        QString didascalia;
        QKeySequence tasto; ///< may be empty
    };

    BarraIntestazioni(QTableView* griglia, const std::vector<Comando>& comandi,
                      const std::function<void(int)>& ordina);

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    void disponi();

    QTableView* m_griglia;
    std::vector<std::pair<int, QToolButton*>> m_bottoni;
};

} // namespace bor
