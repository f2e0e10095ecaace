// The parts of a screen beside each other, or below each other where the window is too narrow for that.
#pragma once

#include <QBoxLayout>
#include <QWidget>

namespace bor {

class Affiancati : public QWidget {
public:
    Affiancati();

    /// `parte`: share of the width that is left, as in a box layout.
    void aggiungi(QWidget* widget, int parte);
    /// Where the layout fills an area, its margins are taken away.
    void aggiungi(QLayout* layout, int parte);
    /// Chooses the direction for this width.
    void adatta(int larghezza);

private:
    QBoxLayout* m_layout;
};

} // namespace bor
