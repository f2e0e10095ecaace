// The records of the electronic invoice of 2014 on disk, each in a file of its own in the company's folder.
// The form reads and writes them.
#pragma once

#include "archive/fpa.h"

#include <QStringView>

namespace bor {

class Archivio;

/// The company's file; a document's is `fpa` and its number.
inline constexpr QStringView fileAzienda = u"borlano.fpa";

enum class LetturaFpa {
    Letta,
    Assente,     ///< there is no such file
    Illeggibile, ///< there is one, but what is in it is not known: nothing may be written over it
};

/// Reads the file's one record; bytes that the file does not have are zero.
LetturaFpa leggiFpa(const Archivio& archivio, QStringView nome, Fpa& fpa);

/// Makes the file hold this record and nothing else, whole or not at all; false when it could not.
bool scriviFpa(const Archivio& archivio, QStringView nome, const Fpa& fpa);

/// Writes the file's record back as it stands there now; false when it could not be read or written.
bool riscriviFpa(const Archivio& archivio, QStringView nome);

} // namespace bor
