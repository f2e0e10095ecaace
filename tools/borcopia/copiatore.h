// Makes a copy of a company while others work on it. Lines files and the like, nearly all the bytes, are read
// without a lock; what bursts change is read under theirs, together with whatever was changed meanwhile: the
// copy is the company as it was in that moment, which takes a tenth of a second.
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
    qint64 blocco = 0;  ///< milliseconds for which nobody else could register
};

/// Writes a copy of the company into a folder of this machine, which is made when it is missing. The copy has
/// its name only when it is whole and on the disk.
EsitoCopia creaCopia(const Percorsi& percorsi, int codice, const QString& cartella,
                     const Avanzamento& avanzamento);

} // namespace bor::copia
