// Stretches of rows of the register's list, and what rows come to.
#pragma once

namespace bor {

/// Rows one below the other, counted from 0; both ends belong to it.
struct TrattoRighe {
    int prima = 0;
    int ultima = 0;
};

/// Of some rows: how many documents, and what they come to, credit notes subtracted, deleted ones left out.
struct SommeElenco {
    int documenti = 0; ///< deleted ones included
    int eliminati = 0;
    double imponibile = 0;
    double imposta = 0;
    double esente = 0;
    double ritenuta = 0;
    double totale = 0;
};

} // namespace bor
