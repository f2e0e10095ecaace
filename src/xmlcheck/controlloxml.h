// Reads a finished electronic invoice, of the format of 2014 or of today's, with the eyes of the receiving
// system and lists what it would refuse. Screens use it, and the program that checks files.
#pragma once

#include "xmlcheck/rilievo.h"

#include <QByteArray>
#include <QDate>

namespace bor {

class Doppioni;

/// Findings in the order of the file; empty when nothing speaks against sending it. `nomeFile` is the bare
/// name, checked too. `oggi`: no invoice is of a later day; an invalid date asks nothing. `doppioni`: the
/// files checked before, whose invoices may not come again. Any bytes are good input: a file too broken for a
/// check is read as far as it goes. Beyond 500 findings the rest is only counted, in a last one.
std::vector<Rilievo> controllaXml(const QByteArray& contenuto, const QString& nomeFile, QDate oggi = {},
                                  Doppioni* doppioni = nullptr);

} // namespace bor
