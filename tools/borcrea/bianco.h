// A record of blanks, as the suite's other programs leave the fields that they do not fill.
#pragma once

#include "archive/campi.h"

#include <span>

namespace bor::crea {

/// Only for records whose numbers are all set afterwards: blanks are no number.
template <class R>
R bianco() {
    static_assert(disposizioneDiFile<R>);
    R record;
    std::ranges::fill(std::as_writable_bytes(std::span(&record, 1)), std::byte{' '});
    return record;
}

} // namespace bor::crea
