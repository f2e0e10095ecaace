// The fee bill as a printed page: what differs from an invoice.
#pragma once

#include "document/documento.h"
#include "output/pagina.h"

namespace bor {

inline constexpr Pianta piantaParcella{.voci = 79,
                                       .primaUltima = 42,
                                       .ultimaUltima = 76,
                                       .rigaSopra = 80,
                                       .colonne = 5,
                                       .righe = righeParcella,
                                       .primaRigaIva = 55};

ContenutoPagina contenutoParcella(const Documento& documento, const Contesto& contesto);

} // namespace bor
