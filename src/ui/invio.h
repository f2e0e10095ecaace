// Enter walks the fields of a screen in its stated order, and is eaten.
#pragma once

#include <QObject>

#include <functional>
#include <unordered_map>
#include <vector>

class QWidget;

namespace bor {

class PercorsoInvio : public QObject {
public:
    /// Installs itself on the view: Enter on a button that has no step of its own presses it. Held, it
    /// presses no button and chooses nothing from a list.
    explicit PercorsoInvio(QWidget* vista);

    /// Enter in `da` moves the focus to `a`.
    void passo(QWidget* da, QWidget* a);
    /// Enter in `da` runs the action.
    void passo(QWidget* da, std::function<void()> azione);
    /// Each widget to the one after it; the last one has no step.
    void catena(const std::vector<QWidget*>& widgets);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    std::unordered_map<QObject*, std::function<void()>> m_passi;
};

/// Moves the focus as the Tab key would, with the content selected.
void vaiA(QWidget* widget);

} // namespace bor
