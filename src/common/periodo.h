// A span of days as an operator asks for it: a month, a quarter, a year, or from one day to another.
#pragma once

#include <QDate>
#include <QStringList>

namespace bor {

/// Both ends belong to it; an invalid one is open.
struct Giorni {
    QDate dal;
    QDate al;

    bool tutti() const { return !dal.isValid() && !al.isValid(); }
    friend bool operator==(const Giorni&, const Giorni&) = default;
};

struct Periodo {
    enum class Genere { Tutto, Mese, Trimestre, Anno, DalAl };

    Genere genere = Genere::Tutto;
    int anno = 0;
    int quale = 1; ///< month 1 to 12, or quarter 1 to 4
    Giorni dalAl;  ///< of `Genere::DalAl`

    friend bool operator==(const Periodo&, const Periodo&) = default;
};

/// The days of the period; of a month, quarter or year that does not exist, all of them.
Giorni giorniDi(const Periodo& periodo);

/// "marzo 2015", "1º trimestre 2015", "anno 2015", "dal 01/03/2015 al 15/03/2015"; empty for all days.
QString descrizione(const Periodo& periodo);

/// The months by name, January first.
QStringList nomiMesi();

} // namespace bor
