// The lines of a document: up to 500 of a goods invoice, up to 200 of a fee bill.
#pragma once

#include "document/codiceiva.h"

#include <QString>

#include <vector>

namespace bor {

/// A line of a goods invoice. With no article, quantity and price it is a comment line: only its text prints.
struct Riga {
    int recart = 0;      ///< `art` record; 0 for a free line or a comment
    QString codice2;     ///< second code, carried; a line that has one moves no stock
    QString codice;      ///< article code
    QString descrizione; ///< up to 60 characters
    QString um;          ///< unit of measure
    int sconto1 = 0;     ///< discounts, whole percent
    int sconto2 = 0;
    CodiceIva iva;
    double quantita = 0; ///< `soloPrezzo`: the amount is the price alone
    double prezzo = 0;   ///< of one unit
    double peso = 0;     ///< of one unit; not on file

    static constexpr double soloPrezzo = -9999;

    friend bool operator==(const Riga&, const Riga&) = default;
};

/// A line of a fee bill.
struct Rigap {
    QString data;             ///< as typed, up to 10 characters
    QString descrizione;      ///< up to 50 characters
    double spese = 0;         ///< expenses, taxed at the regime of the expenses
    double anticipazioni = 0; ///< advances, outside VAT
    double onorari = 0;       ///< fees, taxed at the regime of the fees

    friend bool operator==(const Rigap&, const Rigap&) = default;
};

inline constexpr int righeMerce = 500;
inline constexpr int righeParcella = 200;

/// The table `ddd` of the goods lines. Line n stands at index n - 1; there are always 500.
using TabellaRighe = std::vector<Riga>;
/// The table `ddd` of the fee lines. Line n stands at index n - 1; there are always 200.
using TabellaRighep = std::vector<Rigap>;

} // namespace bor
