// An article, its extra text, and the article indexes. Kept by the warehouse module; this one updates the
// stock.
#pragma once

#include "archive/campi.h"

namespace bor {

struct Art {
    Text<15> codice;
    Text<40> descrizione;
    Text<13> barcode;
    Text<2> um;     ///< unit of measure
    Text<3> artx1;  ///< `artx…`, `artr…`, `artt…`: of other modules
    Intero iva;     ///< default VAT code, 1 to 24
    Reale listino1; ///< unit price, list 1
    Reale listino2; ///< unit price, list 2
    std::array<Reale, 4> artr1;
    Reale giacenza; ///< stock on hand
    Reale artr5;
    Reale impegnato; ///< quantity committed
    std::array<Reale, 4> artr6;
    Reale venduto; ///< quantity sold
    Reale artr10;
    Reale venduto2; ///< value sold
    std::array<Text<4>, 6> artt1;
    Reale artr11;
    Text<40> artt7;
    Text<20> artt8;
    Reale peso; ///< weight of one unit
    Text<20> artt9;
    Intero artx2;
    Intero eliminato; ///< not 0: deleted
};
static_assert(sizeof(Art) == 327 && disposizioneDiFile<Art>);
BOR_POSTO(Art, iva, 73);
BOR_POSTO(Art, giacenza, 123);
BOR_POSTO(Art, venduto, 179);
BOR_POSTO(Art, venduto2, 195);
BOR_POSTO(Art, artt1, 203);
BOR_POSTO(Art, peso, 295);
BOR_POSTO(Art, eliminato, 325);

/// Twenty articles read at once: block b holds the records 20(b-1)+1 to 20b.
struct BloccoArt {
    std::array<Art, 20> articoli;
};
static_assert(sizeof(BloccoArt) == 6540);

/// Extra text of the article of the same record number: up to ten lines below its own.
struct Prx {
    std::array<Text<50>, 10> riga;
    Intero marca; ///< `marcaValida`, or there is no extra text

    static constexpr int marcaValida = 123;
};
static_assert(sizeof(Prx) == 502 && disposizioneDiFile<Prx>);

/// Index of article codes. Nothing here reads it; its file is opened with the others.
struct Sra {
    Text<15> codice;
    Intero recordart;
};
static_assert(sizeof(Sra) == 17 && disposizioneDiFile<Sra>);

/// Index of barcodes, sorted by the upper-case key.
struct Srb {
    Text<13> barcode;
    Intero recordart; ///< `art` record
};
static_assert(sizeof(Srb) == 15 && disposizioneDiFile<Srb>);

} // namespace bor
