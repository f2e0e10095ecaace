// The numbers of the documents on file, for the warning that one is used twice.
#pragma once

#include "archive/fte.h"

#include <QString>

#include <vector>

namespace bor {

class Archivio;
struct Estremi;

/// A document's number without what makes no other number of it: leading zeros, small letters.
QString numeroRidotto(const QString& numero);

class NumeriUsati {
public:
    /// Reads those of all live documents but the one at record `escluso`.
    NumeriUsati(const Archivio& archivio, int escluso);

    /// Which other document has the number, in words: within a year of issue and a VAT register each number
    /// stands once, leading zeros and case aside. Empty for none, and without a number or a valid date.
    QString avviso(const Estremi& estremi);

private:
    struct Domanda {
        QString numero;
        int anno = 0;
        int registro = 0;
        friend bool operator==(const Domanda&, const Domanda&) = default;
    };
    struct Usato {
        Text<10> numero;
        Text<8> data;
        int registro;
    };

    QString cerca(const Domanda& domanda) const;

    std::vector<Usato> m_usati;
    Domanda m_domanda; ///< the last one, which comes back at each refresh of the screen
    QString m_risposta;
};

} // namespace bor
