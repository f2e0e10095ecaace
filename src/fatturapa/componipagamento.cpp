#include "archive/tabelle.h"
#include "common/date.h"
#include "common/numeri.h"
#include "fatturapa/caratteri.h"
#include "fatturapa/composizione.h"
#include "fatturapa/tabellefel.h"

#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr double unCentesimo = 0.01;

bool cinqueCifre(const QString& testo) {
    static const QRegularExpression forma(u"\\A[0-9]{5}\\z"_s);
    return forma.match(testo).hasMatch();
}

/// What the customer pays by this file: advances are in no VAT row and so in no instalment of the document;
/// the tax of a split payment is not his to pay to the seller.
double dovuto(const Composizione& c) {
    double somma = -c.totaleRitenute();
    for (const RiepilogoFel& r : c.fattura.riepiloghi)
        somma += r.imponibile + (r.esigibilita == u"S" ? 0 : r.imposta);
    return somma;
}

/// The amount that the document split into its instalments.
double netto(const Composizione& c) {
    double somma = -c.totaleRitenute();
    for (int riga = 1; riga <= righeIva; ++riga) {
        const auto importi = c.rigaIva(riga);
        somma += importi.imponibile + importi.imposta + importi.esente;
    }
    return somma;
}

/// Brings instalments that split the net of the document to what is due, each by its share, the rest on the
/// first. Others were made by hand and stand.
void adegua(std::vector<RataFel>& rate, double netto, double dovuto, const Valuta& valuta) {
    double somma = 0;
    for (const RataFel& rata : rate)
        somma += rata.importo;
    if (rate.empty() || netto == 0 || std::abs(somma - dovuto) < unCentesimo ||
        std::abs(somma - netto) >= unCentesimo)
        return;
    double altre = 0;
    for (std::size_t i = 1; i < rate.size(); ++i) {
        rate[i].importo = valuta.arrotonda(rate[i].importo * dovuto / netto);
        altre += rate[i].importo;
    }
    rate.front().importo = dovuto - altre;
}

QString modalita(const Composizione& c) {
    const QString& propria = c.fonti.propri.documento.modalita;
    if (!propria.isEmpty())
        return propria;
    if (c.fonti.pa && !c.fonti.pa->modalitapagamento.trimmed().isEmpty())
        return c.fonti.pa->modalitapagamento.trimmed();
    return modalitaSuite(c.fonti.tabelle, c.fonti.documento.scadenze.pagamento);
}

void mettiBanca(Composizione& c) {
    PagamentoFel& p = c.fattura.pagamento;
    if (p.modalita == u"MP05") {
        p.iban = testoAscii(c.fonti.propri.azienda.iban).remove(u' ').toUpper();
        if (p.iban.isEmpty())
            c.avvisa(u"FatturaElettronicaBody/DatiPagamento/DettaglioPagamento/IBAN"_s, {},
                     u"Il pagamento è con bonifico, ma il file non dice su quale conto."_s,
                     u"Indicare l'IBAN dell'azienda nella maschera \"Fattura elettronica\"."_s);
    } else if (p.modalita == u"MP12") {
        const Cli& cliente = c.fonti.documento.cliente;
        p.istituto = testoLatino(cliente.banca.text()).left(80);
        const QString abi = testoAscii(cliente.abi.text());
        const QString cab = testoAscii(cliente.cab.text());
        p.abi = cinqueCifre(abi) ? abi : QString();
        p.cab = cinqueCifre(cab) ? cab : QString();
    }
}

} // namespace

void componiPagamento(Composizione& c) {
    PagamentoFel& p = c.fattura.pagamento;
    for (const Rata& rata : c.fonti.documento.scadenze.rate)
        if (const double importo = valore(rata.importo); importo != 0)
            p.rate.push_back({dataValida(rata.scadenza).value_or(QDate()), importo});
    if (p.rate.empty())
        return;
    adegua(p.rate, netto(c), dovuto(c), c.fonti.valuta);
    const Fpa* pa = c.fonti.pa;
    p.condizioni = pa ? pa->condizionipagamento.trimmed() : QString();
    if (p.condizioni.isEmpty())
        p.condizioni = p.rate.size() > 1 ? u"TP01"_s : u"TP02"_s;
    p.modalita = modalita(c);
    mettiBanca(c);
}

} // namespace bor
