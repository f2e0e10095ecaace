// What the program asks of the desktop: opening a file, starting another program.
#pragma once

#include <QStringList>

namespace bor {

/// How the opening of a file ended; the operator is told the number of a failure.
enum class EsitoApri {
    FileMancante = 2,
    CartellaMancante = 3,
    Vietato = 5,
    SenzaMemoria = 8,
    SenzaProgramma = 31,
    SenzaDll = 32,
    Riuscito = 33
};

class Sistema {
public:
    virtual ~Sistema();

    /// Opens a file of this machine with the desktop's own program for it.
    virtual EsitoApri apri(const QString& percorso) = 0;

    /// Starts a program and does not wait for it; false when it cannot be started. There is no shell in
    /// between.
    virtual bool avvia(const QString& programma, const QStringList& argomenti) = 0;
};

} // namespace bor
