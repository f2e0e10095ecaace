// Sums as the lists of this folder show them.
#pragma once

#include "common/valuta.h"

namespace bor {

/// Money text like `Valuta::importotesto`, but "0,00" for a sum of 0, what rounds to it among them.
QString totaletesto(const Valuta& valuta, double x);

} // namespace bor
