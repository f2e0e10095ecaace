// The scrolling area of a screen, for windows that are smaller than the screen's content.
#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace bor {

class AreaScorrevole : public QScrollArea {
public:
    /// Takes over all that stands in `layout` above its last widget, the command bar, which stays in sight.
    /// Keys and the wheel are the screen's, and the field that gets the focus comes into view.
    explicit AreaScorrevole(QVBoxLayout* layout);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    /// Parts that no longer fit beside each other go below each other.
    void adatta();
    void mostra(const QWidget* campo);
};

} // namespace bor
