// Locks of an open file on one byte, by which programs on one or more computers keep out of each other's way.
#pragma once

#include <QString>

#include <chrono>

namespace bor {

class FileCasuale;

enum class EsitoBlocco { Preso, Occupato, Impossibile };

/// Takes a lock (`F_RDLCK`, `F_WRLCK`) or gives it back (`F_UNLCK`), without waiting.
EsitoBlocco blocca(int descrittore, short tipo, qint64 posizione);

/// The lock of the company, shared with other readers: what is read under it, no burst of writes changes
/// meanwhile. Where the file system knows no locks, the read goes on without.
class BloccoDiLettura {
public:
    using Orario = std::chrono::steady_clock;

    /// `tot` is the open file of the counters. Waits for another program that writes until `fine`.
    explicit BloccoDiLettura(const FileCasuale& tot, Orario::time_point fine = {});
    ~BloccoDiLettura();
    BloccoDiLettura(const BloccoDiLettura&) = delete;
    BloccoDiLettura& operator=(const BloccoDiLettura&) = delete;

    /// Another program kept it.
    bool occupato() const { return m_esito == EsitoBlocco::Occupato; }

private:
    int m_descrittore;
    EsitoBlocco m_esito;
};

/// What the locks of a file system are good for.
enum class TenutaBlocchi {
    Tengono,    ///< a lock of one open file is seen by another
    SoloQui,    ///< the same, but only among the programs of this computer: so it was mounted
    NonTengono, ///< both got the lock
    NonCiSono,  ///< the file system knows no locks
    NonProvati, ///< the file cannot be opened for writing
};

/// Takes a lock of this file with one open file and tries it with another, as a second program would; on a
/// byte that no program uses.
TenutaBlocchi provaBlocchi(const QString& percorso);

/// Whether a mount with these options, as /proc/self/mounts tells them, keeps its locks to this computer.
bool blocchiSoloQui(const QString& tipo, const QString& opzioni);

} // namespace bor
