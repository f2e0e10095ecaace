// Places and counts as `int`, as rows of a screen, items of a list and records of a file are, in containers
// that count with other types.
#pragma once

#include <QtGlobal>

#include <concepts>
#include <cstddef>
#include <iterator>
#include <type_traits>

namespace bor {

template <std::signed_integral N>
constexpr N ordinale(N numero) {
    return numero;
}
/// The number behind an enumerator: its place in a list, a column of a table, a digit on file.
template <class E>
requires std::is_enum_v<E>
constexpr int ordinale(E valore) {
    return static_cast<int>(valore);
}

/// The enumerator with this number.
template <class E>
constexpr E enumeratore(int numero) {
    return static_cast<E>(numero);
}
template <class E>
constexpr E prossimo(E valore) {
    return enumeratore<E>(ordinale(valore) + 1);
}

/// A place that is not below 0, as the standard containers want it.
constexpr std::size_t postoDaZero(qint64 posto) {
    return static_cast<std::size_t>(posto);
}

/// How many a container holds.
constexpr int quantiIn(const auto& contenitore) {
    return static_cast<int>(std::size(contenitore));
}

/// The value at a place counted from 0. A place outside is a fault of the program and ends it.
constexpr decltype(auto) elemento(auto& contenitore, auto quale) {
    const qint64 posto = ordinale(quale);
    if (posto < 0 || posto >= std::ssize(contenitore))
        qFatal("place %lld is not among %lld", posto, qint64{std::ssize(contenitore)});
    return contenitore[postoDaZero(posto)];
}

/// The place, counted from 0, of what a search found in a container; -1 where it found nothing.
constexpr int postoDi(const auto& contenitore, auto trovato) {
    return trovato == std::end(contenitore) ? -1 : static_cast<int>(trovato - std::begin(contenitore));
}

} // namespace bor
