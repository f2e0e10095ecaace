// How a box on screen names its value in the document: by the members that lead to it, never by an address.
#pragma once

#include <cstddef>
#include <type_traits>

namespace bor {

template <class Qui>
Qui& datoIn(Qui& qui) {
    return qui;
}

/// The value to which the members lead from here, one after the other; a number among them is a place in an
/// array, from 0.
template <class Qui, class Passo, class... Altri>
auto& datoIn(Qui& qui, Passo passo, Altri... altri) {
    if constexpr (std::is_member_pointer_v<Passo>)
        return datoIn(qui.*passo, altri...);
    else
        return datoIn(qui[static_cast<std::size_t>(passo)], altri...);
}

} // namespace bor
