// The steps of the composition of today's electronic invoice, in their order. Only fatturapa/componi.cpp
// calls them.
#pragma once

#include "fatturapa/componi.h"

namespace bor {

/// What a VAT code of the document means in the file.
struct IvaFel {
    double aliquota = 0;
    QString natura;
    QString riferimento;
    double ritenuta = 0; ///< withholding bound to the code, in percent
};

struct Composizione {
    const FontiFel& fonti;
    FatturaElettronica& fattura;
    std::vector<Rilievo>& rilievi;

    /// Taxable amount, tax and exempt amount of VAT row 1 to 12, as stored.
    struct RigaIva {
        double imponibile;
        double imposta;
        double esente;
    };
    RigaIva rigaIva(int riga) const;

    /// Code 1 to 24. A code that has no meaning today is refused, once.
    IvaFel iva(int codice);
    /// The sum of the document's four withholding amounts.
    double totaleRitenute() const;
    QString esigibilita() const;
    /// A date that was typed for the element; none where it is empty. A text that is no date is refused,
    /// once.
    QDate dataPropria(const QString& testo, const QString& elemento);

    void rifiuta(const QString& elemento, const QString& valore, const QString& motivo,
                 const QString& rimedio);
    void avvisa(const QString& elemento, const QString& valore, const QString& motivo,
                const QString& rimedio);
};

void componiTrasmissione(Composizione& c);
void componiCedente(Composizione& c);
void componiCessionario(Composizione& c);
/// Lines and summaries, of goods or of a fee bill.
void componiRighe(Composizione& c);
void componiParcella(Composizione& c);
/// Withholding by rate, from what lines and funds give for each.
struct QuotaRitenuta {
    double aliquota;
    double importo;
};
void componiRitenute(Composizione& c, const std::vector<QuotaRitenuta>& quote);
/// Orders, contracts, transport document, carrier.
void componiRiferimenti(Composizione& c);
/// Needs the summaries.
void componiPagamento(Composizione& c);

/// Percentages of the discounts of a line of goods, and the amount that they leave.
double scontato(double importo, const std::vector<double>& sconti);

/// The number with at most eight decimals, as a file can say it.
double ottoDecimali(double x);

inline const QString elementoLinee = QStringLiteral("FatturaElettronicaBody/DatiBeniServizi/DettaglioLinee");
inline const QString elementoDocumento =
    QStringLiteral("FatturaElettronicaBody/DatiGenerali/DatiGeneraliDocumento");

} // namespace bor
