// Today's electronic invoice put into XML: FatturaPA 1.2.3, FPA12 to a public administration, FPR12 to
// anybody else.
#pragma once

#include "fatturapa/fattura.h"

namespace bor {

/// The bytes of the file: true UTF-8, escaped.
QByteArray scriviFattura(const FatturaElettronica& fattura);

/// A number with `minimi` decimals at least and `massimi` at the most, rounded.
QString testoDecimali(double x, int minimi, int massimi);

} // namespace bor
