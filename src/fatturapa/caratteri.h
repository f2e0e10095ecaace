// Texts within the characters that an electronic invoice may hold. Used by whatever puts texts into one.
#pragma once

#include <QString>

namespace bor {

/// The text within Latin-1: signs beyond it by what they stand for (€ as EUR, slanted quotes as straight
/// ones), control characters as blanks; trimmed, runs of blanks as one.
QString testoLatino(QStringView testo);

/// The same within ASCII: accents fall off, signs without a likeness too.
QString testoAscii(QStringView testo);

} // namespace bor
