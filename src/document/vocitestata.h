// The items of the lists of the head form, from the company's tables.
#pragma once

#include <QStringList>

namespace bor {

struct Tabelle;

/// Items count from 0.
struct VociTestata {
    explicit VociTestata(const Tabelle& tabelle);

    QStringList pagamenti;
    QStringList causali; ///< of transport
    QStringList aspetti; ///< of the goods
    QStringList vettori;
    QStringList regimi; ///< the twelve VAT regimes of a fee bill, with their withholding and contributions
};

} // namespace bor
