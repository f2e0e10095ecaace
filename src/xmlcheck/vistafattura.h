// Any electronic invoice of either version, ours or a supplier's, as a page that a person can read. A window
// shows it, a program prints it.
#pragma once

#include <QByteArray>
#include <QString>

namespace bor {

/// The page as HTML of its own, without pictures or links: title, parties, documents, lines, summaries,
/// payment. Whatever the file holds is text in it, never markup. A file that is no invoice gives a page that
/// says so.
QString vistaFattura(const QByteArray& contenuto);

} // namespace bor
