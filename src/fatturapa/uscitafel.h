// An electronic invoice as a screen shows it before it goes out: texts for its fields and tables.
#pragma once

#include "fatturapa/fattura.h"
#include "fatturapa/postifel.h"

#include <QStringList>

namespace bor {

struct UscitaFel {
    PerPosto<QString> nelFile;     ///< what goes out for the field; empty for nothing
    QList<QStringList> righe;      ///< number, description, quantity, unit, price, discounts, total, VAT
    QList<QStringList> riepiloghi; ///< VAT, reference, taxable, tax, rounding, when it is due
    QList<QStringList> rate;       ///< due date, amount, account
    QList<QStringList> altro;      ///< caption and value: total, funds, withholding, references, reasons
};

UscitaFel uscita(const FatturaElettronica& fattura);

} // namespace bor
