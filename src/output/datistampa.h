// What the print of one document is made of, worked out once: totals, VAT rows, settings. The plans of the
// pages take their texts from it.
#pragma once

#include "document/documento.h"
#include "document/totali.h"
#include "document/totaliparcella.h"

#include <QStringList>

#include <vector>

namespace bor {

struct Contesto;
struct Tabelle;

/// The texts of one VAT row with an amount.
struct RigaIvaStampata {
    QString codice;
    QString descrizione;
    QString imponibile = {};
    QString aliquota = {};
    QString imposta = {};
    QString esente = {};
    QString riferimento = {}; ///< law of the exemption
};

struct DatiStampa {
    const Documento& documento;
    const Tabelle& tabelle;
    Valuta valuta;
    bool numeroConAnno; ///< "/" and the year follow the document number
    QStringList intestazione;
    std::vector<RigaIvaStampata> righeIva = {};
    Totali totali = {}; ///< of an invoice, as `pezzi`
    double pezzi = 0;
    TotaliParcella parcella = {}; ///< of a fee bill

    /// Money text; empty for 0.
    QString importo(double quanto) const { return valuta.importotesto(quanto); }
    QStringList importi(std::initializer_list<double> quanti) const;
};

DatiStampa datiStampa(const Documento& documento, const Contesto& contesto);

} // namespace bor
