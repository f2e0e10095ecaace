// The accounting movement as the editor shows it: ten lines of account and amounts, as text.
#pragma once

#include "archive/gio.h"
#include "document/testata.h"

#include <array>

namespace bor {

struct RigaMovimento {
    ContoTesti conto; ///< `cn1`, `cn2`, `cn3`
    QString dare;     ///< debit, plain decimal text
    QString avere;    ///< credit

    bool senzaImporti() const;
};

struct Movimento {
    QString descrizione;
    QString data; ///< "dd/mm/yyyy"
    QString riferimento;
    std::array<RigaMovimento, 10> righe;

    /// The lines and head texts of a stored movement.
    static Movimento da(const Gio& gio);
    /// Puts them into a record; the fields of other modules stay as they are.
    void riempi(Gio& gio) const;
};

} // namespace bor
