// What a kept member of a document may hold: numbers with their limits, tables with their length. For the
// reader and the writer of drafts.
#pragma once

#include "document/codiceiva.h"

namespace bor {

/// A number with the values it may have: outside them it is read as `altrimenti`.
template <class N>
struct Limitato {
    N& numero;
    int minimo;
    int massimo;
    int altrimenti;
};

int intero(auto numero) {
    return static_cast<int>(numero);
}
inline int intero(CodiceIva codice) {
    return codice.numero();
}

template <class N>
Limitato<N> limitato(N& numero, int minimo, int massimo, int altrimenti) {
    return {numero, minimo, massimo, altrimenti};
}

/// A position in a list of so many items, which counts from 0; -1 is no selection.
template <class N>
Limitato<N> posizione(N& numero, int voci) {
    return {numero, -1, voci - 1, -1};
}

/// A table that always has so many lines; only those in use are kept.
template <class V>
struct TabellaFissa {
    V& righe;
    int quante;
};

template <class V>
TabellaFissa<V> tabellaFissa(V& righe, int quante) {
    return {righe, quante};
}

} // namespace bor
