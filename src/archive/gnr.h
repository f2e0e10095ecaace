// The general settings record of a company, the one settings file that this module writes.
#pragma once

#include "archive/campi.h"

namespace bor {

struct Gnr {
    Intero vistalista; ///< view preference of the register: 0, 1, 2, 10, 11, 12
    std::array<Intero, 8> flaggnr;
    Text<165> datignr;
    Text<1> marcagnr;      ///< "9": the fields from here on are there
    Text<1> aggiornalista; ///< "1": the register fills itself again after a save
    Reale colorelista1;    ///< colour of the even rows, 0x00BBGGRR
    Reale colorelista2;    ///< colour of the odd rows
    Text<1> listacolorata; ///< "1": lists are coloured
    Text<1> opzionegnr;
    Text<1> opzione2gnr;
    Text<38> testognr;
    Intero gnrx1;
    Intero barcode; ///< not 0: the goods lines start in barcode mode
    Intero gnrx2;
    Text<2> righemodulo;   ///< default VAT code of a line, "01" to "24"
    Intero pesoautomatico; ///< 1: the weight of the goods goes into the document head
    Text<1> annonumero;    ///< "1": the document number is printed with "/" and its year
    Text<3> gnrx3;
    Text<90> riservagnr;

    bool riempiDopoSalvataggio() const { return aggiornalista.text() == u"1"; }
    bool colora() const { return listacolorata.text() == u"1"; }
    bool annoNelNumero() const { return annonumero.text() == u"1"; }
    bool pesoInTestata() const { return pesoautomatico == 1; }
    int codiceIvaRighe() const; ///< of `righemodulo`

    static constexpr double colorePari = 16579315;
    static constexpr double coloreDispari = 16777215;
};
static_assert(sizeof(Gnr) == 346 && disposizioneDiFile<Gnr>);
BOR_POSTO(Gnr, datignr, 18);
BOR_POSTO(Gnr, marcagnr, 183);
BOR_POSTO(Gnr, colorelista1, 185);
BOR_POSTO(Gnr, listacolorata, 201);
BOR_POSTO(Gnr, barcode, 244);
BOR_POSTO(Gnr, righemodulo, 248);
BOR_POSTO(Gnr, annonumero, 252);
BOR_POSTO(Gnr, riservagnr, 256);

/// The record of a company that has none yet.
Gnr gnrPredefinito();

/// Gives an older record the fields that it lacks; true when it had to.
bool migraGnr(Gnr& gnr);

/// Sets an impossible default VAT code to "01"; true when it had to.
bool riparaRighemodulo(Gnr& gnr);

} // namespace bor
