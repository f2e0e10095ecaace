// The tables of a company that the document screens read: `borlano.tab`, `borlano.tpr` and `borlano.trb`.
#pragma once

#include <QString>
#include <QStringList>

#include <array>

namespace bor {

class Archivio;

template <std::size_t Righe, std::size_t Colonne>
using TabellaTesti = std::array<std::array<QString, Colonne>, Righe>;

/// `borlano.tab`, read once for everybody. Rows are indexed by their own numbers: 1 to the last, and 0 where
/// the file has a row 0. Rows that the file lacks are empty.
struct Tabelle {
    TabellaTesti<17, 4> aliquote; ///< VAT code 1 to 16: rate, "R.A.", "C.I.", "C.P." in percent
    TabellaTesti<17, 3> blocco2;  ///< of other modules
    TabellaTesti<17, 2>
        esenzioni;               ///< exempt code 1 to 16: legal reference, description; row 0 see `regimeiva`
    TabellaTesti<17, 2> tipiiva; ///< VAT kinds, rows 0 to 16: the integrated invoice reads column 1
    TabellaTesti<61, 2> tipopagamenti; ///< payment types 1 to 60: description, code by position
    TabellaTesti<21, 2> contabili;     ///< accounting settings 1 to 20
    std::array<QString, 101> ricavi;   ///< revenue items 1 to 100
    std::array<QString, 41> blocco8;   ///< of other modules
    TabellaTesti<31, 5> blocco9;       ///< of other modules
    TabellaTesti<41, 6> vettori; ///< transport rows 1 to 40: cause, appearance, carrier's three lines, codes

    /// VAT rate of a code from 1 to 16; 0 for any other.
    double aliquota(int codice) const;
    /// Withholding rate bound to a VAT code from 1 to 16; 0 for any other.
    double ritenuta(int codice) const;
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
