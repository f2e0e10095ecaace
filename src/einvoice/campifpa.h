// Which field of the record stands behind which box of the electronic invoice form. Only the form uses it.
#pragma once

#include "archive/fpa.h"

namespace bor {

/// The references of the boxes, in the order of the screen.
template <class R>
auto& riferimentoFpa(R& fpa, int quale) {
    switch (quale) {
    case 0:
        return fpa.ordine;
    case 1:
        return fpa.contratto;
    case 2:
        return fpa.convenzione;
    default:
        return fpa.ricezione;
    }
}

/// Calls `f(field)` with the field of `Text2(indice)`, 0 to 16. From 2 to 13 stand three boxes of each
/// reference.
template <class R, class F>
void conCampoFpa(R& fpa, int indice, F f) {
    if (indice >= 2 && indice <= 13) {
        auto& riferimento = riferimentoFpa(fpa, (indice - 2) / 3);
        switch ((indice - 2) % 3) {
        case 0:
            return f(riferimento.numero);
        case 1:
            return f(riferimento.item);
        default:
            return f(riferimento.commessa);
        }
    }
    switch (indice) {
    case 0:
        return f(fpa.numerodoc);
    case 1:
        return f(fpa.numeroddt);
    case 14:
        return f(fpa.codicecup);
    case 15:
        return f(fpa.codicecig);
    default:
        return f(fpa.progressivoinvio);
    }
}

/// The field of `dsca(indice)`, 0 to 5.
template <class R>
auto& campoDataFpa(R& fpa, int indice) {
    switch (indice) {
    case 0:
        return fpa.datadoc;
    case 1:
        return fpa.dataddt;
    default:
        return riferimentoFpa(fpa, indice - 2).data;
    }
}

} // namespace bor
