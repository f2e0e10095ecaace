// Watches over what the operator does in any window of the program: soon after it, what was typed is kept.
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace bor {

class GuardiaBozze : public QObject {
public:
    /// `conserva` runs one second after a key or a click, and once a second while they go on.
    explicit GuardiaBozze(std::function<void()> conserva);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QTimer m_attesa;
};

} // namespace bor
