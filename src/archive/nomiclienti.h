// The names of the customers as lists of documents show them.
#pragma once

#include <QString>

#include <vector>

namespace bor {

class Archivio;

/// First name line of the customers by record number, from 0 (nobody) to `ultimo`; empty where there is no
/// such record, or where it cannot be read.
std::vector<QString> nomiClienti(const Archivio& archivio, int ultimo);

} // namespace bor
