// Check digits of the codes that an electronic invoice carries.
#pragma once

#include <QString>

namespace bor {

/// Eleven digits, the last of which agrees with the others.
bool partitaIvaValida(QStringView codice);

/// Sixteen characters of a person or eleven digits of a company, the last of which agrees with the others.
bool codiceFiscaleValido(QStringView codice);

/// IBAN whose two check digits agree with the rest; length and country are not looked at.
bool ibanValido(QStringView iban);

} // namespace bor
