// The codes of today's electronic invoice in words: what the screens offer and a readable invoice shows.
#pragma once

#include <QString>

#include <span>

namespace bor {

struct VoceCodice {
    QStringView codice;
    QStringView testo;
};

enum class ListaCodici {
    TipoDocumento, ///< every kind, the buyer's own documents among them
    TipoEmesso,    ///< what a seller issues for his sales
    Bollo,
    Natura,
    NaturaDiPrima, ///< without subcode, in files of before 2021
    Cassa,
    TipoRitenuta,
    CausaleRitenuta,
    Modalita,
    Regime,
    Esigibilita
};

std::span<const VoceCodice> vociCodici(ListaCodici lista);

/// "Fattura differita"; empty for a code that the list does not have.
QString testoCodice(ListaCodici lista, QStringView codice);

/// "TD24 Fattura differita"; a code that the list does not have stands alone.
QString codiceInParole(ListaCodici lista, QStringView codice);

} // namespace bor
