// Findings about a file in the words of one row of a report.
#pragma once

#include "xmlcheck/rilievo.h"

namespace bor {

/// The first finding that is more than a hint, else the first one, with its remedy; empty for none.
QString primoRilievo(const std::vector<Rilievo>& rilievi);

/// "2 rilievi, 1 avviso: " and the first of them.
QString riassunto(const std::vector<Rilievo>& rilievi);

} // namespace bor
