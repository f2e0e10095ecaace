// The register of a company as a table for other programs, read without writing anything into its archive.
#pragma once

#include "register/vistaregistro.h"

#include <QStringList>

class QIODevice;

namespace bor::elenca {

enum class Formato { Csv, Json };

struct Richiesta {
    QString unita;       ///< folder that stands for the drive's root
    int azienda = 1;     ///< 0 to 999
    VistaRegistro vista; ///< which documents, which columns
    Formato formato = Formato::Csv;
};

struct Esito {
    QString errore;     ///< why nothing was written, or not all; empty when all was
    QStringList avvisi; ///< which documents the list lacks, and why
};

/// Writes the same table that the register exports, by record number.
Esito elenca(const Richiesta& richiesta, QIODevice& uscita);

} // namespace bor::elenca
