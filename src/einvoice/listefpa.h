// The fixed lists of the electronic invoice form. The codes in front of the texts go into the invoice.
#pragma once

#include <QStringList>

#include <array>

namespace bor {

/// The lists `Combo7(0)` to `Combo7(4)`.
enum class ListaFpa { TipoDocumento, Causale, TipoRitenuta, Condizioni, Modalita };

const QStringList& vociFpa(ListaFpa lista);

/// Position of the first row that begins with the text, from 0; -1 for none.
int posizioneFpa(ListaFpa lista, QStringView inizio);

} // namespace bor
