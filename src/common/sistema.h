// What the program asks of the desktop: opening a file, starting another program.
#pragma once

#include <QStringList>

namespace bor {

class Sistema {
public:
    virtual ~Sistema();

    /// Opens a file of this machine with the desktop's own program for it. 33 means success; below that the
    /// result is the reason: 2 no such file, 3 no such folder, 5 access denied, 31 no program for it.
    virtual int apri(const QString& percorso) = 0;

    /// Starts a program and does not wait for it; false when it cannot be started. There is no shell in
    /// between.
    virtual bool avvia(const QString& programma, const QStringList& argomenti) = 0;
};

} // namespace bor
