// Check digits of the codes that Italian books carry.
#pragma once

#include <QString>

namespace bor {

/// Eleven digits of which the last is right. Companies have it as tax code too.
bool partitaIvaValida(QStringView testo);

/// Sixteen characters of a person with the right last letter, or the eleven digits of a company.
bool codiceFiscaleValido(QStringView testo);

/// A barcode of thirteen digits of which the last is right.
bool ean13Valido(QStringView testo);

} // namespace bor
