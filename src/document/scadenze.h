// The payment schedule of a document: due dates from the coded payment type, amounts by an even split.
#pragma once

#include "document/documento.h"

namespace bor {

struct Contesto;

/// The code of a payment type, read by position.
struct CodicePagamento {
    std::array<int, 6> mesi{}; ///< months from the document date to each instalment
    bool finemese = false;
    int giorno = 0; ///< day of the following month for an end-of-month type; 0 none

    /// Instalments that the code makes: the first always, each other one when its months are above 0.
    int quante() const;
};

/// The two rules for unwelcome due dates; they ride on the codes of the first two payment types and hold for
/// all.
struct RegoleScadenza {
    int settembre = 0; ///< a due date in August moves to this day of September; 0 off
    int gennaio = 0;   ///< 31 December moves to this day of January; 0 off
    bool agosto = false;
    bool dicembre = false;
};

/// Code of the payment type at a list position; an empty one where the list has none.
CodicePagamento codicePagamento(const Contesto& contesto, int posizione);
RegoleScadenza regoleScadenza(const Contesto& contesto);

/// Due date, "dd/mm/yyyy". Every year divisible by 4 counts as a leap year, as in the books of the suite.
QString calcscad(QDate data, int mesi, bool finemese, int giorno, const RegoleScadenza& regole);

/// Due dates of the document from its payment type and date of issue (today when that is no date).
/// Instalments that the type does not have are emptied.
void calcolascadenze(Documento& documento, const Contesto& contesto);

/// Splits the net of the document into the instalments; the rounding difference falls on the first.
void calcolarate(Documento& documento, const Contesto& contesto);

} // namespace bor
