// A line of text that a screen has no room for: what is left out shows as dots, and no figure loses a digit
// unseen.
#pragma once

#include <QLabel>

namespace bor {

class RigaElisa : public QLabel {
public:
    /// `dove` tells where the dots stand.
    explicit RigaElisa(Qt::TextElideMode dove, QWidget* parent = nullptr);

    /// The text as it is drawn.
    QString mostrata() const;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    Qt::TextElideMode m_dove;
};

} // namespace bor
