// Which document a row of a list stood for: what of it must still be there when a command comes to it, for
// its record number may belong to another one by then.
#pragma once

#include "archive/fte.h"
#include "common/registroposta.h"

namespace bor {

struct Documento;

struct Identita {
    int record = 0; ///< `fte` record; 0 for none
    Text<10> numero;
    Text<8> datadoc;
    int cliente = 0; ///< `cli` record
    double stamp = 0;
    float nfile = 0;
};

Identita identitaDi(int record, const Fte& fte);

/// What is on file under the record number is the document that was meant. One without creation stamp is told
/// by its lines file, as far as it has one; a save may give it both.
bool stesso(const Identita& inteso, const Identita& suFile);

/// "n. 12/A del 15/03/2015".
QString numeroEData(const Identita& documento);

/// The document as the log of mails knows it.
DocumentoPosta perPosta(const Documento& documento);

} // namespace bor
