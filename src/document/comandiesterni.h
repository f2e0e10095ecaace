// The commands of the document form, and those whose work is done in other parts of the program: the
// application plugs them in, and a command that is not plugged stays disabled.
#pragma once

#include <functional>

namespace bor {

struct Collegata;

/// The buttons of the command bar, and those of the PDF selection.
enum class ComandoTea {
    Esci,
    Salva,
    Righe,
    Pdf,
    Elimina,
    Duplica,
    NotaCredito,
    Stampa,
    Anteprima,
    Testata,
    FatturaPa,
    FatturaElettronica,
    ScegliPdf,
    ApriPdf
};

struct ComandiEsterni {
    /// Prints the document in the form, then makes its PDF and sends it; false when nothing was printed.
    std::function<bool()> stampa;
    /// Shows its pages on screen.
    std::function<void()> anteprima;
    /// Lets the operator choose the document's PDF.
    std::function<void()> scegliPdf;
    /// Opens the data of the electronic invoice.
    std::function<void()> fatturaPa;
    /// Opens today's electronic invoice of the document as it is stored.
    std::function<void()> fatturaElettronica;
    /// Keeps for the electronic invoice of the document, which is stored by now, which invoice it corrects;
    /// false when that could not be written.
    std::function<bool(const Collegata&)> registraCollegata;
};

} // namespace bor
