// The values by which the screens of one run tell each other which document they work on.
#pragma once

#include <QString>

namespace bor {

struct Sessione {
    double codiceazienda = 0;
    int recordfattura = 0;          ///< `fte` record of the open document; 0 for a new one
    int recordcliente = 0;          ///< `cli` record of the document's customer; 0 for none yet
    int tipodocumento = 0;          ///< 0 invoice or fee bill, 1 credit note
    int tipoparcella = 0;           ///< non-zero for a fee bill
    int tipodocumentoletto = 0;     ///< kind stored in the document just read; the posting tests it
    bool testataletta = false;      ///< the head form has its data
    bool documentoletto = false;    ///< the document form has its data
    bool righelette = false;        ///< the line forms have their data
    bool listadaaggiornare = false; ///< the register fills itself again when it is shown next
    bool modificamovimento = false; ///< the movement editor replaces the document's movement
    int righelista = 0;             ///< rows of the list in view, header row included
    int modoselezione = 0;          ///< 7: the picker works for the head form; 99: it was closed by a choice
    double recordfpa = 0;           ///< number of the electronic invoice data file; 0 for none
    bool ripristino = false;        ///< options are being restored: their changes and saves do nothing
};

} // namespace bor
