// The tables of a company that the document screens read: `borlano.tab`, `borlano.tpr` and `borlano.trb`.
#pragma once

#include "common/serie.h"
#include "common/testo.h"

#include <QString>
#include <QStringList>

#include <array>

namespace bor {

class Archivio;

/// A document has twelve VAT rows, taxed and exempt; the tables go on to 16.
inline constexpr int righeIva = 12;

/// What a VAT row charges, in percent, as text.
struct RigaAliquota {
    QString aliquota;
    QString ritenuta;     ///< withholding, "R.A."
    QString contributoci; ///< contribution without VAT, "C.I."
    QString contributocp; ///< contribution of the professional's fund, "C.P."
};

/// Why an exempt row bears no tax.
struct RigaEsenzione {
    QString riferimento; ///< legal reference
    QString testo;       ///< description, and behind its 100th character the digit of the nature

    /// The first 100 characters, trimmed.
    QString descrizione() const;
    /// What follows them, as a number: the nature counted from 0. 0 where nothing follows.
    double natura() const;
};

struct TipoPagamento {
    QString descrizione;
    QString codice; ///< read by position: `codicePagamento`, `regoleScadenza`

    /// How it is paid, for the electronic invoice: 0 bank receipt, 1 transfer, 2 cash, 3 debit, else cheque.
    int modalita() const;
};

/// A row of the transport lists, each of which shows one of its texts.
struct RigaTrasporto {
    QString causale;
    QString aspetto;
    std::array<QString, 3> vettore; ///< name and address of the carrier
    QString codici;                 ///< the carrier's fiscal codes by position, after an asterisk

    static constexpr Tratto paese{2, 2};
    static constexpr Tratto codice{4, 16};
    static constexpr Tratto codicefiscale{20};
};

/// `borlano.tab`, read once for everybody. Rows are indexed by their own numbers; those that the file lacks
/// are empty.
struct Tabelle {
    Serie<RigaAliquota, 1, 16> aliquote;
    Serie<RigaEsenzione, 0, 16> esenzioni; ///< row 0 see `regimeiva`
    Serie<QString, 0, 16> tipiiva; ///< VAT kinds: a mark for each VAT row, read by the integrated invoice
    Serie<TipoPagamento, 1, 60> tipopagamenti;
    Serie<QString, 1, 20> contabili; ///< accounting settings, read by position
    Serie<QString, 1, 100> ricavi;   ///< revenue items
    Serie<RigaTrasporto, 1, 40> vettori;

    /// VAT rate of a row of the table; 0 for any other.
    double aliquota(int riga) const;
    /// Withholding rate of a row of the table; 0 for any other.
    double ritenuta(int riga) const;
    /// VAT regime digit of the company: 0 when deferred VAT is not allowed.
    int regimeiva() const;
};

Tabelle leggiTabelle(const Archivio& archivio);

/// One service of the fee bills: `borlano.tpr`.
struct Prestazione {
    QString descrizione;
    double anticipazioni = 0;
    double spese = 0;
    double onorari = 0;
};

/// The services 1 to 100 at the indexes 0 to 99, empty ones included; none when the file is missing.
QList<Prestazione> leggiPrestazioni(const Archivio& archivio);

/// The tax codes of the withholding, one a line.
QStringList leggiTributi(const Archivio& archivio);

} // namespace bor
