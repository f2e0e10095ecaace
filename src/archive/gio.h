// The chart of accounts, the journal and the warehouse movements.
#pragma once

#include "archive/campi.h"

namespace bor {

/// An account of the chart.
struct Con {
    Text<10> codice; ///< digits, compared by value: "0000000012" and "12" are one account
    Text<40> descrizione;
    Reale conx1;            ///< `conx…`: of other modules
    Reale progressivodare;  ///< running debit total
    Reale progressivoavere; ///< running credit total
    std::array<Reale, 4> conx2;
    std::array<Intero, 3> conx3;
    Text<36> conx4;
    Intero conx5;
};
static_assert(sizeof(Con) == 150 && disposizioneDiFile<Con>);
BOR_POSTO(Con, progressivodare, 58);
BOR_POSTO(Con, conx4, 112);

/// One of the ten account slots of a movement.
struct VoceGio {
    Intero segno; ///< 0 debit, 1 credit
    Text<8> conto;
    Reale importo;
};
static_assert(sizeof(VoceGio) == 18);

/// An accounting movement.
struct Gio {
    Text<8> data; ///< `yyyymmdd`
    Text<40> descrizione;
    Intero tipomovimento; ///< 99: closing entry, never taken for a document's movement
    Text<20> riferimento;
    std::array<VoceGio, 10> voce;
    Intero giox1; ///< `giox…`: of other modules
    Intero giox2;
    Reale riferimentofattura; ///< `stamp` of the document; 0 for a free movement
    Text<1> statogio;         ///< "1": saved by the movement editor
    Text<31> giox3;
    Intero cancellato; ///< 1: deleted

    static constexpr int chiusura = 99;
};
static_assert(sizeof(Gio) == 296 && disposizioneDiFile<Gio>);
BOR_POSTO(Gio, voce, 70);
BOR_POSTO(Gio, riferimentofattura, 254);
BOR_POSTO(Gio, cancellato, 294);

/// A warehouse movement.
struct Mag {
    Text<8> data; ///< `yyyymmdd`
    Text<40> descrizione;
    Intero causale;
    Text<12> riferimento; ///< "FT " or "NC " and the document number
    Reale stampmag;       ///< `stamp` of the document
    Intero articolo;      ///< `art` record
    Intero clientemag;    ///< `cli` record
    Reale quantita;       ///< negative on a credit note
    Reale valore;         ///< net unit price
    Intero segnomag;      ///< `uscita`; any other adds to the stock
    Intero cancellato;    ///< 1: deleted

    static constexpr int uscita = 1;
};
static_assert(sizeof(Mag) == 94 && disposizioneDiFile<Mag>);
BOR_POSTO(Mag, stampmag, 62);
BOR_POSTO(Mag, quantita, 74);
BOR_POSTO(Mag, cancellato, 92);

} // namespace bor
