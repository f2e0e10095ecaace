// The lists of codes that the screen of today's electronic invoice offers.
#pragma once

#include <QString>

#include <span>

namespace bor {

struct VoceFel {
    QStringView codice;
    QStringView testo;
};

enum class ListaFel { TipoDocumento, Bollo, Natura, Cassa, TipoRitenuta, CausaleRitenuta, Modalita };

std::span<const VoceFel> vociFel(ListaFel lista);

/// "TD24 Fattura differita"; a code that the list does not have stands alone.
QString voceFel(ListaFel lista, QStringView codice);

} // namespace bor
