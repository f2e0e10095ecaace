// The boxes of the electronic invoice form: their names, the record's field behind each, and where Enter
// leads.
#pragma once

#include "archive/fpa.h"
#include "common/posti.h"

#include <span>
#include <variant>

namespace bor {

/// The text boxes, `Text2(0)` to `Text2(16)`.
enum class TestoFpa {
    Numero,
    NumeroDdt,
    OrdineNumero,
    OrdineItem,
    OrdineCommessa,
    ContrattoNumero,
    ContrattoItem,
    ContrattoCommessa,
    ConvenzioneNumero,
    ConvenzioneItem,
    ConvenzioneCommessa,
    RicezioneNumero,
    RicezioneItem,
    RicezioneCommessa,
    CodiceCup,
    CodiceCig,
    Progressivo
};

/// The date boxes, `dsca(0)` to `dsca(5)`.
enum class DataFpa { Documento, Ddt, Ordine, Contratto, Convenzione, Ricezione };

using PostoFpa = std::variant<TestoFpa, DataFpa>;

inline constexpr std::size_t numeroTestiFpa = 17;
inline constexpr std::size_t numeroPostiFpa = numeroTestiFpa + 6;

/// Place of a box among all, from 0: the texts, then the dates.
constexpr std::size_t indiceFpa(PostoFpa posto) {
    if (const TestoFpa* testo = std::get_if<TestoFpa>(&posto))
        return postoDaZero(ordinale(*testo));
    return numeroTestiFpa + postoDaZero(ordinale(std::get<DataFpa>(posto)));
}

struct CasellaFpa {
    PostoFpa posto;
    QString (*leggi)(const Fpa& fpa); ///< trimmed
    void (*scrivi)(Fpa& fpa, QStringView testo);
    PostoFpa dopo; ///< where Enter leads; to itself where it stays
};

std::span<const CasellaFpa> caselleFpa();
const CasellaFpa& casellaFpa(PostoFpa posto);

} // namespace bor
