// The command line by which the suite's launcher starts the module.
#pragma once

#include <QString>

namespace bor {

enum class EsitoAvvio {
    Valido,
    SuiteVecchia, ///< the launcher of an older suite: the operator is told, and the run ends
    Rifiutato,    ///< not started by the launcher: the run ends without a word
};

struct Avvio {
    EsitoAvvio esito = EsitoAvvio::Rifiutato;
    double codiceazienda = 0;
};

/// Reads the process's arguments joined by one blank: the launch token, three digits of the company code, and
/// a digit that has no effect.
Avvio controllaAvvio(QStringView rigaComando);

/// The command line that starts the module on a company.
QString rigaAvvio(int codiceazienda);

} // namespace bor
