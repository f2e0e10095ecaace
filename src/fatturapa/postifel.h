// The places of the screen of today's electronic invoice that findings speak of: its fields and, for what is
// entered elsewhere, the parts of the screen that show it.
#pragma once

#include "xmlcheck/rilievo.h"

#include <array>

namespace bor {

enum class PostoFel {
    // Fields, by the captions that the findings name.
    CodiceDestinatario,
    Pec,
    Scissione,
    Intento,
    Tipo,
    Bollo,
    Collegata,
    Ordine,
    Contratto,
    Cup,
    Cig,
    Ddt,
    TipoRitenuta,
    CausaleRitenuta,
    Modalita,
    Iban,
    Pdf,
    Cassa,
    NaturaCi,
    Nature,
    // Parts that only show.
    Destinatario,
    Documento,
    Righe,
    Riepilogo,
    Pagamento,
    Azienda,
    File
};

/// The panels of the screen, which share one place.
enum class ProspettoFel { Documento, Righe, Azienda };

inline constexpr std::size_t numeroPostiFel = static_cast<std::size_t>(PostoFel::File) + 1;

/// Something for each place.
template <class T>
struct PerPosto {
    std::array<T, numeroPostiFel> tutti{};

    T& operator[](PostoFel posto) { return tutti[static_cast<std::size_t>(posto)]; }
    const T& operator[](PostoFel posto) const { return tutti[static_cast<std::size_t>(posto)]; }
};

/// Caption of the place on the screen.
QString nomePosto(PostoFel posto);

/// The panel that has the place.
ProspettoFel prospettoDi(PostoFel posto);

/// Beside which place the finding stands; the whole file where no other is its own.
PostoFel postoDi(const Rilievo& rilievo);

/// The finding in a line: its line of the document, code, reason, remedy.
QString rilievoInBreve(const Rilievo& rilievo);

} // namespace bor
