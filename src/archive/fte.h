// The head record of an issued document. Its other half is in archive/f2e.h.
#pragma once

#include "archive/campi.h"

namespace bor {

struct Fte {
    Intero cliente;              ///< `cli` record
    Text<10> numero;             ///< as typed
    Intero voce1;                ///< main revenue item, counted from 1
    Text<8> datareg;             ///< `yyyymmdd`
    Text<8> datadoc;             ///< `yyyymmdd`
    std::array<Text<8>, 4> scad; ///< due dates of instalments 1 to 4, `ddmmyyyy`
    std::array<Text<8>, 4> datx; ///< reserved, blank at creation
    std::array<Reale, 8> impon;  ///< taxable amount of VAT rows 1 to 8
    std::array<Reale, 8> iva;    ///< their tax
    std::array<Reale, 8> esen;   ///< their exempt amount
    std::array<Reale, 4> rata;   ///< instalments 1 to 4
    std::array<Reale, 4> impx;   ///< reserved, 0 at creation
    Intero tipo;                 ///< 0 invoice, 1 credit note
    Intero riba;                 ///< 1: bank receipt (Ri.Ba.) to be issued
    Intero flagx1;               ///< reserved, 0 at creation
    Text<40> pagamento;          ///< payment type as text, counted from 1
    Intero parcella;             ///< 0 goods invoice, otherwise fee bill
    Intero flagx2;               ///< reserved, 0 at creation
    Text<2> vuoto2;              ///< blanked at every save
    Text<4> provaliq;            ///< agent's commission rate as typed
    Reale provimp;               ///< agent's commission
    Intero voce2;                ///< second revenue item, counted from 1
    Intero voce3;                ///< third revenue item, counted from 1
    Reale quota2;                ///< amount split off to `voce2`
    Reale quota3;                ///< amount split off to `voce3`
    Reale protocollo;            ///< custom protocol number; 0 none
    Intero registro;             ///< VAT register 0 to 9; above 9 is read as 0
    Reale stamp;                 ///< moment of creation, the link to `mag` and `gio`; 0: from before the link
    Text<1> spesom;              ///< "1": goes into the yearly communication of invoices
    Text<1> ivanonesp;           ///< "1": VAT not shown on the document
    Text<1> riepil;              ///< "1": summary document
    Singolo nfile;               ///< detail-lines file: 0 none, -1 to be allocated at the next save
    Text<1> esigdiff;            ///< "1": deferred VAT
    Text<1> resx1;               ///< reserved, untouched
    Text<1> noleggio;            ///< "0", or the digit of the vehicle class let or leased
    Text<1> autofatt;            ///< "1": self-billed
    Text<33> resx2;              ///< reserved, untouched
    std::array<Reale, 3> resx;   ///< reserved (3 to 5), untouched
    Intero annullata;            ///< 1: deleted; the place stays until a reorder drops it
};
static_assert(sizeof(Fte) == 522 && disposizioneDiFile<Fte>);
BOR_POSTO(Fte, datareg, 14);
BOR_POSTO(Fte, impon, 94);
BOR_POSTO(Fte, rata, 286);
BOR_POSTO(Fte, tipo, 350);
BOR_POSTO(Fte, parcella, 396);
BOR_POSTO(Fte, provimp, 406);
BOR_POSTO(Fte, protocollo, 434);
BOR_POSTO(Fte, stamp, 444);
BOR_POSTO(Fte, nfile, 455);
BOR_POSTO(Fte, autofatt, 462);
BOR_POSTO(Fte, annullata, 520);

} // namespace bor
