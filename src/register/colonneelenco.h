// The columns that the register can show, and what each is called in choices, on paper and in files.
#pragma once

#include "common/serie.h"
#include "common/tabella.h"

#include <optional>

namespace bor {

/// The first ten by their number on screen; the others are shown where the operator chooses them.
enum class Colonna {
    Registrazione,
    DataRegistrazione,
    Numero,
    DataDocumento,
    Cliente,
    Importo,
    Pa,
    Pdf,
    NomePdf,
    Chiave,
    Imponibile,
    Imposta,
    Esente,
    Ritenuta,
    PrimaScadenza,
    Pagamento
};
inline constexpr int colonneElenco = ordinale(Colonna::Pagamento) + 1;

struct DatiColonna {
    QStringView nome;   ///< no two are alike
    QStringView chiave; ///< in JSON, and where a choice of columns is kept
    GenereColonna genere = GenereColonna::Testo;
    int caratteri = 10; ///< its width where none is chosen
};

const DatiColonna& datiColonna(Colonna colonna);
/// The column of this key; nothing for none of them.
std::optional<Colonna> colonnaDi(QStringView chiave);

} // namespace bor
