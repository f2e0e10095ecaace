// Makes a copy of a company while others work on it. Nearly all is read without a lock; the lock of the
// bursts tells whether anybody has registered meanwhile, and only then is what they changed read under it:
// the copy is the company as it was in that moment, for which others wait a thousandth of a second, and two
// seconds at the most.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace bor {
class Percorsi;
}

namespace bor::copia {

/// Told how far the work is, from 0 to 100; false gives it up.
using Avanzamento = std::function<bool(int percento)>;

struct EsitoCopia {
    QString errore;     ///< in the operator's words; empty when the copy is made
    QString percorso;   ///< of the copy
    int file = 0;       ///< how many are in it
    qint64 byte = 0;    ///< how many they have
    QStringList avvisi; ///< registrations of others that were completed first
    qint64 blocco = 0;  ///< milliseconds at a stretch for which nobody else could register, at the most
};

/// Writes a copy of the company into a folder of this machine, which is made when it is missing. The copy has
/// its name only when it is whole and on the disk.
EsitoCopia creaCopia(const Percorsi& percorsi, int codice, const QString& cartella,
                     const Avanzamento& avanzamento);

} // namespace bor::copia
