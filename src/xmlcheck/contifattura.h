// Sums by VAT rate that the checks of amounts share.
#pragma once

#include "xmlcheck/controllifattura.h"

#include <map>

namespace bor {

/// Lines or funds of one rate, and of one nature where the rate is 0.
struct Somma {
    double imponibile = 0;
    int voci = 0;

    void aggiungi(double importo) {
        imponibile += importo;
        ++voci;
    }
};
using Somme = std::map<QString, Somma>;

double numero(const Nodo& nodo, QStringView nome);

/// What lines and summary are matched by: rate, and nature where the rate is 0.
QString chiaveIva(const Nodo& nodo);

/// Rate 0 and nature go together; the codes are those of an element without nature and of one with a
/// nature too many.
struct CodiciNatura {
    QString manca;
    QString avanza;
};
void controllaNatura(Controllo& c, const Nodo& nodo, const CodiciNatura& codici);

/// Summaries against lines and funds, whose sums they are.
void controllaRiepiloghi(Controllo& c, const Nodo& beni, const Somme& somme);

} // namespace bor
