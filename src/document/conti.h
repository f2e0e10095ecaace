// Accounts and movements as posting and deleting find them.
#pragma once

#include "archive/archivio.h"

namespace bor {

/// Record number of the first account whose code has this numeric value; 0 when there is none.
int trovaconto(const Archivio& archivio, QStringView codice);

/// Record number of the live movement that belongs to the document of this `stamp`; 0 when there is none.
/// Closing entries and deleted movements are never a document's movement.
int trovaMovimento(const Archivio& archivio, double stamp);

/// Takes the amount of a deleted movement out of its account, on the side across: that of a credit out of the
/// debit total. The other modules of the suite count on it. An account that is not in the chart is passed
/// over. False when the account could not be written.
bool stornaconto(Archivio& archivio, const VoceGio& voce);

} // namespace bor
