// Check digits of the codes that Italian books carry.
#pragma once

#include <QString>

namespace bor {

/// Eleven digits, the last of which agrees with the others.
bool partitaIvaValida(QStringView codice);

/// The tax code has the length of a person's.
bool diPersona(QStringView codiceFiscale);

/// Sixteen characters of a person or eleven digits of a company, the last of which agrees with the others.
bool codiceFiscaleValido(QStringView codice);

/// IBAN whose two check digits agree with the rest; length and country are not looked at.
bool ibanValido(QStringView iban);

/// A barcode of thirteen digits of which the last agrees with the others.
bool ean13Valido(QStringView barcode);

} // namespace bor
