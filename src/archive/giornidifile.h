// The dates of records, taken from their digits without a text in between: a list of all documents asks for
// tens of thousands of them.
#pragma once

#include "archive/campi.h"

#include <QDate>

namespace bor {

/// Eight digits read by position; an invalid date when they are no day.
QDate daAnnoMeseGiorno(const Text<8>& campo);
QDate daGiornoMeseAnno(const Text<8>& campo);

} // namespace bor
