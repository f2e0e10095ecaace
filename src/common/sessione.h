// What one screen leaves for the next. Facts about the open document are in the document itself.
#pragma once

#include <QString>

#include <optional>

namespace bor {

/// What the customer picker was opened for, and how it ended.
enum class ModoSelezione { Nessuno, PerTestata, Scelto };

/// What a new document is made from another one for.
enum class Copia { Duplicato, NotaDiCredito };

struct Sessione {
    double codiceazienda = 0;
    bool testataletta = false;      ///< the head form has its data
    bool documentoletto = false;    ///< the document form has its data
    bool righelette = false;        ///< the line forms have their data
    bool listadaaggiornare = false; ///< the register fills itself again when it is shown next
    bool modificamovimento = false; ///< the movement editor replaces the document's movement
    int ultimosalvato = 0;          ///< `fte` record of the document saved last in this run; 0 for none
    bool regimicambiati = false; ///< the VAT regimes of the fee lines are not those they were confirmed with
    /// The document form makes this of the document that was chosen, in place of opening it.
    std::optional<Copia> copia;
    ModoSelezione modoselezione = ModoSelezione::Nessuno;
    QString datadialogo; ///< the date that `bordata` starts from
    QString datariserva; ///< the one it starts from when that is no date
    QString datascelta;  ///< the date chosen in it
};

} // namespace bor
