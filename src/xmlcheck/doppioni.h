// Invoices that the receiving system would take for one sent before. The program that checks a folder uses
// it.
#pragma once

#include <QHash>
#include <QString>

namespace bor {

struct Controllo;
struct Nodo;

/// One seller gives a number out once a year; with Art73 once a day. A credit note may repeat an invoice's.
class Doppioni {
public:
    /// Compares the invoices of one more file with all before it; the second of two gets the finding.
    void controlla(Controllo& c, const Nodo& radice, const QString& nomeFile);

private:
    QHash<QString, QString> m_file; ///< where each stood first
};

} // namespace bor
