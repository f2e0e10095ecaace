// The recovery log on disk, and how what it names is brought to one side: completed after a crash, put back
// after a write that failed.
#pragma once

#include "archive/diario.h"
#include "archive/filecasuale.h"

#include <QStringList>

namespace bor {

class Archivio;

/// Why a burst, or the completion of one, wrote nothing more.
enum class EsitoRaffica {
    Riuscita,
    Occupata,   ///< another program kept the lock
    NonLetta,   ///< a record or counter could not be read
    NonScritta, ///< a file could not be written
    Piena,      ///< a file has reached the last record number
};

/// A burst of an earlier run that was found unfinished and is completed now.
struct Recupero {
    QString documento;    ///< as the burst named it
    QStringList lasciati; ///< records that hold something else by now, and were left alone
};

/// The records of a log that hold neither their bytes before nor those after the burst, nor a mixture of them
/// as a torn write leaves: another program changed them meanwhile. As "borlano.con n. 3"; one that cannot be
/// read is not among them.
QStringList recordEstranei(const Archivio& archivio, const Diario& diario);

/// The company's log file, made when it is missing. Whoever has it holds the lock of the company.
class FileDiario {
public:
    explicit FileDiario(Archivio& archivio);

    bool apri();
    /// Puts the log on disk; false when that is not sure.
    bool scrivi(const Diario& diario);
    bool svuota();

    /// Brings every record of the log to its bytes after the burst and empties the log. A record that holds
    /// neither the bytes before nor those after, nor a mixture of them as a torn write leaves, goes to
    /// `lasciati` and stays. On a failure the log stays too.
    EsitoRaffica completa(const Diario& diario, QStringList& lasciati);
    /// The same back to the bytes before. What a file has grown by keeps zero bytes.
    EsitoRaffica annulla(const Diario& diario);
    /// Deals with a log that is found in the file. One that this program could not put back is put back now;
    /// one of another run is completed and noted in the archive, for the operator.
    EsitoRaffica recupera();

private:
    enum class Verso { Dopo, Prima };
    EsitoRaffica porta(const Diario& diario, Verso verso, QStringList& lasciati);
    EsitoRaffica portaVoce(const VoceDiario& voce, Verso verso, QStringList& lasciati);

    Archivio& m_archivio;
    FileCasuale m_file;
};

/// Completes what another run left unfinished, if anything; to be called at start.
EsitoRaffica recupera(Archivio& archivio);

} // namespace bor
