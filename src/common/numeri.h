// Numbers as text and back, with no currency in them: what a typed or stored text is worth, and how a number
// is written. Amounts of money are in common/valuta.h.
#pragma once

#include <QString>

namespace bor {

/// Numeric value of a text: leading blanks skipped, then the leading number with a decimal point; 0 when
/// there is none. An exponent counts only in the form that `testoDecimale` writes ("1E+15"), so that the
/// document number "12E3" is worth 12.
double valore(QStringView testo);

/// `valore` without its fraction, held within the range of an int.
int valoreIntero(QStringView testo);

/// Value of Italian number text with thousands points: points go out, the comma is the decimal sign.
double valoretesto(QStringView testo);

/// Value of text typed with a decimal comma and no thousands points.
double valorevirgola(QStringView testo);

/// Plain decimal text: at most 15 significant digits, a decimal point, "0.5" with its zero, zero as "0", and
/// an exponent only from 1E15 up.
QString testoDecimale(double x);

/// `testoDecimale`, but empty for 0, as boxes of the screens show amounts.
QString testoCasella(double x);

/// The number as the suite prints it into its text files: a leading blank where it has no sign, a trailing
/// blank.
QString testoStampa(double x);

/// The number with exactly `decimali` places, its 15-digit decimal form rounded half away from zero, with a
/// decimal point and no grouping.
QString testoFisso(double x, int decimali);

/// As `testoFisso`, written the Italian way: comma for decimals, points for thousands.
QString testoItaliano(double x, int decimali);

/// Number text for print: Italian form, two decimals only where there is a fraction; empty for 0.
QString numerotesto(QStringView testo);

/// Integer part towards the lower integer: -1.2 gives -2. Negative amounts therefore round differently from
/// positive ones, which the suite's books rely on.
double parteIntera(double x);

/// Cut to two decimals without rounding.
double tronca(double x);

} // namespace bor
