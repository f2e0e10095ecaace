// The balances of the accounts, as a movement that goes leaves them.
#pragma once

#include "archive/archivio.h"

namespace bor {

/// Record number of the first account whose code has this numeric value; 0 when there is none.
int trovaconto(const Archivio& archivio, QStringView codice);

/// Takes the amount of a replaced movement out of its account, on its own side. False when the account could
/// not be written; one that is not in the chart is passed over.
bool applicaconto(Archivio& archivio, const VoceGio& voce);

/// Takes the amount of a deleted movement out of its account, on the side across: that of a credit out of the
/// debit total. The other modules of the suite count on it. An amount of 0 or less changes nothing; the
/// result as above.
bool stornaconto(Archivio& archivio, const VoceGio& voce);

/// The same for every entry of a movement that names an account; it ends at the first that could not be
/// written.
bool stornaconti(Archivio& archivio, const Gio& movimento);

} // namespace bor
