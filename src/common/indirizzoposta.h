// What counts as a mail address, for the module that hands one on and for the PDF tool that sends to it.
#pragma once

#include <QStringView>

namespace bor {

/// One plain address: no line end, blank, comma, semicolon, quote or bracket, one "@", a domain name.
bool indirizzoValido(QStringView indirizzo);

} // namespace bor
