// The second half of an issued document: what no longer fitted into the head record.
#pragma once

#include "archive/campi.h"

namespace bor {

struct F2e {
    Intero marca;                  ///< `marcaValida`, or the record was never written
    std::array<Reale, 4> impon;    ///< taxable amount of VAT rows 9 to 12
    std::array<Reale, 4> iva;      ///< their tax
    std::array<Reale, 4> esen;     ///< their exempt amount
    std::array<Text<8>, 2> scad;   ///< due dates of instalments 5 and 6, `ddmmyyyy`
    std::array<Text<8>, 2> datx;   ///< reserved
    std::array<Reale, 2> rata;     ///< instalments 5 and 6
    std::array<Reale, 2> impx;     ///< reserved
    std::array<Reale, 8> dimp;     ///< deferred VAT: amount paid
    std::array<Reale, 8> diva;     ///< deferred VAT: tax that became due with it
    std::array<Text<6>, 8> dper;   ///< deferred VAT: period, `mmyyyy`
    Text<60> pdf;                  ///< name of the document's PDF
    std::array<Reale, 4> raimp;    ///< withholding amount
    std::array<Text<8>, 4> rascad; ///< withholding: to be paid by, `ddmmyyyy`
    std::array<Text<8>, 4> ravers; ///< withholding: paid on, `ddmmyyyy`
    std::array<Reale, 4> raimpo;   ///< withholding base
    Intero tributo;                ///< tax code, counted from 1
    Text<36> resy1;                ///< reserved, untouched
    Reale resy2;                   ///< kind of integrated invoice; 0 none
    Text<6> dtermine;              ///< deferred VAT: last term, `mmyyyy`
    Text<1> resy3;                 ///< reserved, untouched
    Reale fpa;                     ///< number of the electronic invoice data file; 0 none
    Text<251> resy4;               ///< reserved, blanked by `inizializza2`

    static constexpr int marcaValida = 999;

    /// A reference to electronic invoice data outside 0 to 9999999999 is garbage.
    bool fpaGuasto() const { return !(fpa >= 0.0 && fpa <= 9999999999.0); }
    /// The document is an electronic invoice to a public administration.
    bool fatturaPa() const { return fpa >= 1.0; }
};
static_assert(sizeof(F2e) == 838 && disposizioneDiFile<F2e>);
BOR_POSTO(F2e, esen, 66);
BOR_POSTO(F2e, scad, 98);
BOR_POSTO(F2e, rata, 130);
BOR_POSTO(F2e, dimp, 162);
BOR_POSTO(F2e, dper, 290);
BOR_POSTO(F2e, pdf, 338);
BOR_POSTO(F2e, raimp, 398);
BOR_POSTO(F2e, raimpo, 494);
BOR_POSTO(F2e, tributo, 526);
BOR_POSTO(F2e, resy2, 564);
BOR_POSTO(F2e, dtermine, 572);
BOR_POSTO(F2e, fpa, 579);
BOR_POSTO(F2e, resy4, 587);

/// Sets the record to its empty state. The PDF name, the term of deferred VAT, the electronic invoice number
/// and the reserved `resy1` and `resy3` stay as they are.
void inizializza2(F2e& f2e);

/// A record without anything in it: the marker, zeros and blanks in all its bytes.
F2e f2eVuoto();

} // namespace bor
