// What the document form has done elsewhere. The application plugs it in; a command that is not plugged stays
// disabled.
#pragma once

#include <functional>
#include <optional>

namespace bor {

/// A box that the operator is sent to; `indice` counts the due dates from 0.
enum class CampoTea { Numero, Data, DataReg, Scadenza };
struct PostoTea {
    CampoTea campo;
    int indice = 0;
};

/// What comes after a save: the form stays (at a box where one was refused), the register, or the editor of
/// the movement.
enum class DopoSalva { Resta, Registro, Movimento };
struct EsitoSalva {
    DopoSalva dopo = DopoSalva::Resta;
    std::optional<PostoTea> fuoco;
};

struct ComandiEsterni {
    /// Fills the document's texts from its records, and its lines from their file.
    std::function<void()> carica;
    std::function<EsitoSalva()> salva;
    /// False when the document was not deleted.
    std::function<bool()> elimina;
    /// Prints the document in the form, then makes its PDF and sends it.
    std::function<void()> stampa;
    /// Shows its pages on screen.
    std::function<void()> anteprima;
    /// Opens the data of the electronic invoice.
    std::function<void()> fatturaPa;
};

} // namespace bor
