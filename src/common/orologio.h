// The present moment, replaceable in tests.
#pragma once

#include <QDateTime>

namespace bor {

class Orologio {
public:
    virtual ~Orologio();
    /// The present moment in local time.
    virtual QDateTime adesso() const = 0;
    QDate oggi() const { return adesso().date(); }
};

} // namespace bor
