// Makes the archive of a new company from plain text files: for the demo company, for tests and measurements,
// and for whoever starts without the suite's other programs.
#pragma once

#include "borcrea/problemi.h"

namespace bor::crea {

struct NuovaAzienda {
    QString sorgente;  ///< folder of the text files
    QString unita;     ///< folder that stands for the drive's root
    int codice = 1;    ///< 0 to 999
    int documenti = 0; ///< above 0: repeats the documents up to this number, over 1000 customers at least
};

/// Makes the company. When something is wrong, all problems are returned and nothing has been written; an
/// existing company is never touched. The suite's root settings are written only where they are missing.
Problemi creaAzienda(const NuovaAzienda& richiesta);

} // namespace bor::crea
