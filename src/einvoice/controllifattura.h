// The checks on the tree of an electronic invoice, each adding its findings; the file itself was read before.
#pragma once

#include "einvoice/letturaxml.h"

namespace bor {

/// Elements missing, unknown, repeated or out of order, and values that have not the form the layout asks.
void controllaTracciato(const Nodo& radice, std::vector<Rilievo>& rilievi);

/// What elements owe each other in the header: names, identities, check digits of VAT numbers.
void controllaSoggetti(const Nodo& testata, std::vector<Rilievo>& rilievi);

/// Amounts of one invoice body: lines, summary against lines, withholding, instalments.
void controllaConti(const Nodo& corpo, std::vector<Rilievo>& rilievi);

/// A finding at an element, with the screen where the element is entered behind `azione`.
Rilievo rilievoA(const QString& percorso, const Nodo& nodo, const QString& motivo, const QString& azione);

} // namespace bor
