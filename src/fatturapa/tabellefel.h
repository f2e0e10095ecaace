// What today's electronic invoice reads out of the company's tables. Only its composition uses them.
#pragma once

#include "archive/tabelle.h"

namespace bor {

/// Contributions bound to a taxed row from 1 to 12, in percent; 0 for any other row.
double contributoCi(const Tabelle& tabelle, int riga);
double contributoCp(const Tabelle& tabelle, int riga);

/// "N1" and so on, of an exempt row from 1 to 12. It may be a code that no office knows.
QString naturaSuite(const Tabelle& tabelle, int riga);

/// "MP01" and so on, from the code of the payment type at a list position.
QString modalitaSuite(const Tabelle& tabelle, int posizione);

/// A carrier of the transport table.
struct VettoreSuite {
    QString paese;
    QString partitaiva;
    QString codicefiscale;
};

/// The codes of the carrier of that name; empty when the table has none of them.
VettoreSuite vettoreDiNome(const Tabelle& tabelle, const QString& nome);

} // namespace bor
