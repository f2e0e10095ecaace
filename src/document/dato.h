// How a box on screen names its value in the document: by the members that lead to it, never by an address.
#pragma once

#include "common/posti.h"
#include "document/documento.h"

#include <cstddef>
#include <type_traits>

namespace bor {

/// The struct of the document that a group of boxes edits.
template <class Parte>
Parte& parteDi(Documento& documento) {
    if constexpr (std::is_same_v<Parte, Estremi>)
        return documento.estremi;
    else if constexpr (std::is_same_v<Parte, Scadenze>)
        return documento.scadenze;
    else if constexpr (std::is_same_v<Parte, Prospetti>)
        return documento.prospetti;
    else if constexpr (std::is_same_v<Parte, DatiCliente>)
        return documento.testata.cliente;
    else if constexpr (std::is_same_v<Parte, Trasporto>)
        return documento.testata.trasporto;
    else if constexpr (std::is_same_v<Parte, Pratica>)
        return documento.testata.pratica;
}

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
        return datoIn(elemento(qui, passo), altri...);
}

/// The same from a document; the first member is one of a part.
template <class T, class Parte, class... Altri>
auto& datoIn(Documento& documento, T Parte::*primo, Altri... altri) {
    return datoIn(parteDi<Parte>(documento), primo, altri...);
}

} // namespace bor
