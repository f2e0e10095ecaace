// A row of values counted as the archive counts them, from 1 or from 0: the VAT rows, the tables of a
// company.
#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

namespace bor {

/// The values `Primo` to `Ultimo`. Reading outside of them gives an empty value, as the suite's own tables
/// do; writing there is a fault of the program and ends it.
template <class T, int Primo, int Ultimo>
class Serie {
    static_assert(Primo <= Ultimo);

public:
    static constexpr int primo = Primo;
    static constexpr int ultimo = Ultimo;

    static constexpr bool contiene(int i) { return i >= Primo && i <= Ultimo; }

    const T& operator[](int i) const {
        static const T nessuno{};
        return contiene(i) ? m_valori[posto(i)] : nessuno;
    }
    T& operator[](int i) {
        if (!contiene(i))
            qFatal("row %d is outside %d to %d", i, Primo, Ultimo);
        return m_valori[posto(i)];
    }

    auto begin() const { return m_valori.begin(); }
    auto end() const { return m_valori.end(); }

private:
    static constexpr std::size_t posto(int i) { return static_cast<std::size_t>(i - Primo); }

    std::array<T, static_cast<std::size_t>(Ultimo - Primo + 1)> m_valori{};
};

} // namespace bor
