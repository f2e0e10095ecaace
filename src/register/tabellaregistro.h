// The list of the register as a table that leaves the program, with the columns, rows and order that it
// shows.
#pragma once

#include "register/elencofatture.h"
#include "register/vistaregistro.h"

#include <QStringList>

namespace bor {

/// Refers to `elenco`, which has to stay as it is until the table is written.
Tabella tabellaRegistro(const ElencoFatture& elenco, const std::vector<ColonnaScelta>& colonne,
                        const Valuta& valuta);

/// "Registro delle fatture emesse - Rossi Srl", by the first line of the company's printed heading.
QString titoloRegistro(const Archivio& archivio);

/// The line that tells which documents are listed, made of what limits them: "Tutti i documenti", "Marzo
/// 2015, fatture".
QString filtroRegistro(const QStringList& limiti);

} // namespace bor
