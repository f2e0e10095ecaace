// The arithmetic of a fee bill: contributions, VAT, withholding. The lines form confirms it into the
// document; posting and print work it out again.
#pragma once

#include "common/valuta.h"
#include "document/righe.h"
#include "document/testata.h"
#include "document/totaliriga.h"

namespace bor {

struct TotaliParcella {
    double totanticipazioni = 0; ///< outside VAT
    double totspese = 0;
    double totonorari = 0;
    double ivaspese = 0;
    double ivaonorari = 0;
    double contributoci = 0; ///< bears no VAT
    double contributocp = 0;
    double ivacp = 0;
    double ritenuta = 0;
    double baseritenuta = 0;
    double totaledocumento = 0;
    double nettodocumento = 0;
    double imponibile = 0;
    double imposta = 0;
    TabellaIva iva; ///< advances stand in no row
};

/// Only the sums of the three columns.
TotaliParcella sommaParcella(const TabellaRighep& righe);

/// The whole bill. The regimes of fees and expenses are rows of the VAT table; that of the advances plays no
/// part.
TotaliParcella totaliParcella(const TabellaRighep& righe, const Pratica& pratica, const Tabelle& tabelle,
                              const Valuta& valuta);

} // namespace bor
