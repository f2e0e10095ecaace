// A text that is cut for want of room is shown whole where the pointer rests on it.
#pragma once

#include <QObject>

namespace bor {

/// Watches the whole program, on every field, list, caption and button that has no tooltip of its own.
class TestiInteri : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
};

} // namespace bor
