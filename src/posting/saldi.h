// The balances of the accounts, as a movement that comes or goes leaves them. Everything is read and planned
// in the burst that writes the movement.
#pragma once

#include "archive/raffica.h"

namespace bor {

/// Record number of the first account whose code has this numeric value; 0 when there is none.
int trovaconto(Raffica& raffica, QStringView codice);

/// Adds to the totals of an account.
void aggiornaconto(Raffica& raffica, int record, double dare, double avere);

/// Takes the amount of a replaced movement out of its account, on its own side. An account that is not in the
/// chart is passed over, and so is an amount that is no number.
void applicaconto(Raffica& raffica, const VoceGio& voce);

/// Takes the amount of a deleted movement out of its account, on the side across: that of a credit out of the
/// debit total. The other modules of the suite count on it. An amount of 0 or less changes nothing.
void stornaconto(Raffica& raffica, const VoceGio& voce);

/// The same for every entry of a movement that names an account.
void stornaconti(Raffica& raffica, const Gio& movimento);

} // namespace bor
