// The head of a document: the customer as the head form shows him, and what belongs to the document but not
// to the customer. The head form edits it; saving, printing and posting read it.
#pragma once

#include "common/serie.h"
#include "common/testo.h"

#include <QString>

#include <array>

namespace bor {

struct Cli;

/// A name and address, trimmed.
struct SedeTesti {
    QString ragione1;
    QString ragione2;
    QString indirizzo;
    QString cap;
    QString citta;

    friend bool operator==(const SedeTesti&, const SedeTesti&) = default;
};

/// An account of the chart in its three groups: two, two and four digits.
struct ContoTesti {
    QString mastro;
    QString conto;
    QString sottoconto;

    QString unito() const { return mastro + conto + sottoconto; }
    static constexpr Tratto postoMastro{1, 2};
    static constexpr Tratto postoConto{3, 2};
    static constexpr Tratto postoSottoconto{5};
    /// Cuts an account field at these places.
    static ContoTesti da(QStringView campo);

    friend bool operator==(const ContoTesti&, const ContoTesti&) = default;
};

/// The customer's fields as texts (controls `Text2(0)` to `Text2(41)` and `Text`). What is typed over them
/// counts for this document and is never written back to the customer.
struct DatiCliente {
    SedeTesti sede;                  ///< `Text2(0)` to `(4)`
    QString codicefiscale;           ///< `Text2(5)`
    QString nazione;                 ///< `Text2(6)`
    QString partitaiva;              ///< `Text2(7)`
    SedeTesti amministrazione;       ///< `Text2(8)` to `(12)`
    std::array<QString, 3> telefono; ///< `Text2(13)` to `(15)`
    QString email;                   ///< `Text2(16)`
    std::array<QString, 3> vettore;  ///< `Text2(17)` to `(19)`
    std::array<QString, 2> nota;     ///< `Text2(20)`, `(21)`
    int pagamento = -1;              ///< `Combo1`: row of the payment table less 1
    QString banca;                   ///< `Text2(25)`
    QString coordinate;              ///< `Text`
    ContoTesti contocliente;         ///< `Text2(30)` to `(32)`
    ContoTesti contoricavi;          ///< `Text2(33)` to `(35)`
    ContoTesti contoiva;             ///< `Text2(36)` to `(38)`
    ContoTesti contoesenti;          ///< `Text2(39)` to `(41)`

    /// The fields of a customer record, trimmed; blank where nothing was ever written. A deleted customer's
    /// name comes without the mark in front of it.
    static DatiCliente da(const Cli& cliente);

    friend bool operator==(const DatiCliente&, const DatiCliente&) = default;
};

/// Who carries the goods; the detail lines file keeps the position.
enum class Mezzo { Vettore, Destinatario, Mittente };
inline constexpr Serie<QStringView, Mezzo::Vettore, Mezzo::Mittente> nomeMezzo{
    {u"Vettore", u"Destinatario", u"Mittente"}};

/// Transport of a goods invoice. List positions count from 0; -1 is no selection.
struct Trasporto {
    QString ddt;                       ///< `text3(0)`
    QString ordine;                    ///< `text3(1)`
    QString colli;                     ///< `text3(2)`
    QString peso;                      ///< `text3(3)`
    QString inizio;                    ///< `text3(4)`: "dd/mm/yyyy"
    QString ora;                       ///< `text3(5)`
    int causale = -1;                  ///< `Combo3`
    int aspetto = -1;                  ///< `Combo2`
    Mezzo spedizione = Mezzo::Vettore; ///< `sped`

    friend bool operator==(const Trasporto&, const Trasporto&) = default;
};

/// What a fee bill says of the service. List positions count from 0; regime k is row k + 1 of the VAT table.
struct Pratica {
    int ivaono = 0;                     ///< regime of the fees
    int ivaspe = 0;                     ///< regime of the expenses
    int ivaant = 0;                     ///< regime of the advances
    std::array<QString, 4> descrizione; ///< `Text4(0)` to `(3)`

    friend bool operator==(const Pratica&, const Pratica&) = default;
};

struct Testata {
    DatiCliente cliente;
    Trasporto trasporto;
    Pratica pratica;

    friend bool operator==(const Testata&, const Testata&) = default;
};

} // namespace bor
