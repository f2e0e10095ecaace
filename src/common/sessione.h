// What one screen leaves for the next. Facts about the open document are in the document itself.
#pragma once

namespace bor {

struct Sessione {
    double codiceazienda = 0;
    bool testataletta = false;      ///< the head form has its data
    bool documentoletto = false;    ///< the document form has its data
    bool righelette = false;        ///< the line forms have their data
    bool listadaaggiornare = false; ///< the register fills itself again when it is shown next
    bool modificamovimento = false; ///< the movement editor replaces the document's movement
    int modoselezione = 0;          ///< 7: the picker works for the head form; 99: it was closed by a choice
};

} // namespace bor
