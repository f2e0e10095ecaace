// A row of values counted as the archive counts them, from 1 or from 0, or one for each enumerator: the VAT
// rows, the tables of a company, the boxes of a line on screen.
#pragma once

#include "common/posti.h"

#include <QtGlobal>

#include <array>

namespace bor {

/// The values `Primo` to `Ultimo`, two numbers or two enumerators. Reading outside of them gives an empty
/// value, as the suite's own tables do; writing there is a fault of the program and ends it.
template <class T, auto Primo, decltype(Primo) Ultimo>
class Serie {
    static_assert(Primo <= Ultimo);
    static constexpr std::size_t quantiValori = postoDaZero(ordinale(Ultimo) - ordinale(Primo) + 1);

public:
    using Posto = decltype(Primo);
    static constexpr Posto primo = Primo;
    static constexpr Posto ultimo = Ultimo;

    constexpr Serie() = default;
    constexpr explicit Serie(const std::array<T, quantiValori>& valori) : m_valori(valori) {}

    static constexpr bool contiene(Posto i) { return i >= Primo && i <= Ultimo; }

    const T& operator[](Posto i) const {
        static const T nessuno{};
        return contiene(i) ? m_valori[dove(i)] : nessuno;
    }
    T& operator[](Posto i) {
        if (!contiene(i))
            qFatal("row %d is outside %d to %d", ordinale(i), ordinale(Primo), ordinale(Ultimo));
        return m_valori[dove(i)];
    }

    auto begin() const { return m_valori.begin(); }
    auto end() const { return m_valori.end(); }

    friend bool operator==(const Serie&, const Serie&) = default;

private:
    static constexpr std::size_t dove(Posto i) { return postoDaZero(ordinale(i) - ordinale(Primo)); }

    std::array<T, quantiValori> m_valori{};
};

} // namespace bor
