// A table of a few texts that is only read: a window that tells something has one.
#pragma once

#include <QTableWidget>

namespace bor {

/// Empty rows under the headings; the columns are as wide as their texts, the last one takes what is left.
QTableWidget* elencoTesti(const QString& nome, const QString& didascalia, const QStringList& intestazioni,
                          int righe);

} // namespace bor
