// The parts of today's electronic invoice, as plain values. Texts are within the characters and lengths of
// their elements, numbers as computed.
#pragma once

#include "fatturapa/soggettifattura.h"

#include <QByteArray>
#include <QDate>

#include <optional>
#include <vector>

namespace bor {

struct RitenutaFel {
    QString tipo;
    double importo = 0;
    double aliquota = 0;
    QString causale;
};

struct CassaFel {
    QString tipo;
    double aliquota = 0;
    double importo = 0;
    double imponibile = 0;
    double aliquotaiva = 0;
    bool ritenuta = false;
    QString natura;
};

/// A reference to another document: order, contract, agreement, reception, linked invoice.
struct RiferimentoFel {
    QString numero;
    QDate data; ///< invalid: left out
    QString item;
    QString commessa;
    QString cup;
    QString cig;
};

struct DdtFel {
    QString numero;
    QDate data;
};

struct TrasportoFel {
    SoggettoFel vettore; ///< without a VAT number there is no carrier
    QString causale;
    int colli = 0; ///< 0: left out
    QString descrizione;
    double peso = 0; ///< gross, kg; 0: left out
    QDate inizio;
};

struct LineaFel {
    QString codice;  ///< article
    QString codice2; ///< second code
    QString descrizione;
    std::optional<double> quantita;
    QString um;
    double prezzo = 0;
    std::vector<double> sconti; ///< percent, one after the other; below 0 a surcharge
    double totale = 0;          ///< up to 8 decimals
    double aliquota = 0;
    bool ritenuta = false;
    QString natura;
    QString intento; ///< declaration of intent of a line N3.5
    QDate intentodata;
};

struct RiepilogoFel {
    double aliquota = 0;
    QString natura;
    double arrotondamento = 0; ///< 0: left out
    double imponibile = 0;
    double imposta = 0;
    QString esigibilita; ///< "I", "D", "S"; empty for an exempt one
    QString riferimento; ///< legal reference
};

struct RataFel {
    QDate scadenza; ///< invalid: left out
    double importo = 0;
};

struct PagamentoFel {
    QString condizioni;
    QString modalita;
    QString iban; ///< of the seller
    QString istituto;
    QString abi;
    QString cab;
    std::vector<RataFel> rate; ///< none: the file says nothing of payment
};

struct AllegatoFel {
    QString nome;
    QByteArray contenuto;
};

} // namespace bor
