// The counters record: one for each counted file of a company, all in the file `tot`.
#pragma once

#include "archive/campi.h"

namespace bor {

/// The place of each counter in `tot`. These numbers are on file and can never change.
enum class Conta : int { Cli = 1, Art = 3, Fpa = 5, Con = 6, Fte = 7, Mag = 11, Gio = 13, Age = 16 };

struct Tot {
    Intero numero;       ///< highest record in use; for `Conta::Fpa` the last number given
    Intero modificato;   ///< 1 after any change of the file: a message to the suite's maintenance programs
    Intero cancellato;   ///< 1 after a record was marked deleted
    Intero ultimonumero; ///< only for documents: number of the document saved last
    Singolo progressivo; ///< only for documents: number of the detail-lines file given last
};
static_assert(sizeof(Tot) == 12 && disposizioneDiFile<Tot>);
BOR_POSTO(Tot, progressivo, 8);

} // namespace bor
