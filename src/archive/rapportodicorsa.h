// Where one run of the program leaves what it prints, so that the PDF made of a print is never that of
// another program's.
#pragma once

#include "archive/disco.h"
#include "archive/filecasuale.h"

namespace bor {

class Percorsi;

/// Takes a report file for as long as it lives: `fileRapporto`, or where another program of this user has
/// that, the next name of its kind ("c:\bordoc2.rto"). Makes the folder of drive c: when it is missing.
class RapportoDiCorsa {
public:
    explicit RapportoDiCorsa(const Percorsi& percorsi);

    /// DOS path.
    const QString& nome() const { return m_nome; }

private:
    Disco m_disco;
    FileCasuale m_blocco{m_disco}; ///< beside the report file, which each print replaces
    QString m_nome;
};

} // namespace bor
