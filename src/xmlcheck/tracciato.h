// The layout of an electronic invoice, one table for each version of the format: which elements in which
// order, how often, what each may hold, and where its contents are entered. One checker reads both.
#pragma once

#include <QString>

#include <span>
#include <vector>

namespace bor {

enum class Versione {
    V10,  ///< of 2014, to public administrations
    V123, ///< of today
};

/// How often an element stands in its parent.
enum class Volte {
    Una,
    AlPiuUna,
    UnaOPiu,
    Libere,
    Prima,   ///< with its neighbours `Prima` the one way of two...
    Seconda, ///< ...and these the other: all of one, none of the other
};

/// What an element holds. `minimo` and `massimo` are counts of characters unless said otherwise.
enum class Forma {
    Gruppo,    ///< other elements
    Libero,    ///< not looked at
    Scelta,    ///< one of the words of `scelte`
    Latino,    ///< characters up to U+00FF
    Ascii,     ///< characters up to U+007F
    Testo,     ///< any characters
    Codice,    ///< any characters, blanks around them count
    Titolo,    ///< like `Ascii`, blanks around them do not count
    Lettere,   ///< capital letters
    Cifre,     ///< digits
    Maiuscole, ///< capital letters and digits
    Iban,      ///< two letters, two digits, letters and digits
    Bic,       ///< code of a bank
    Email,     ///< something, "@", something with a point
    Pec,       ///< an address in the strict form of mail
    Importo,   ///< a number, perhaps below 0; the limits are its decimals
    Quantita,  ///< a number not below 0; the limits are its decimals
    Percento,  ///< 0.00 to 100.00
    Peso,      ///< four digits before the point; the limits are its decimals
    Intero,    ///< the limits are its values
    Data,      ///< `minimo`: the first year allowed, 0 any
    DataOra,
    Base64,
};

struct RigaTracciato {
    int livello; ///< 1: child of the root
    const char16_t* elemento;
    Volte volte;
    Forma forma;
    int minimo = 0;
    int massimo = 0;
    const char16_t* dove = nullptr;   ///< where its contents are entered; null: as its parent's. "@Campo": in
                                      ///< that field of the form
    const char16_t* scelte = nullptr; ///< words apart by blanks
};

std::span<const RigaTracciato> righeTracciato10();
std::span<const RigaTracciato> righeTracciato123();

/// A row of the table with the rows below it.
struct Elemento {
    RigaTracciato riga;
    QString nome;
    QString dove;  ///< never empty
    QString campo; ///< caption of the form's field that `dove` speaks of; empty for another place
    std::vector<Elemento> figli;
};

/// The root element of an invoice.
const Elemento& tracciato(Versione versione);
QStringView spazioNomi(Versione versione);

/// Where the element of that path is entered; for an element that no layout knows, where its parent is.
QString doveSiCompila(Versione versione, const QString& percorso);
/// Caption of the field in the program's form for that version; empty for what is entered elsewhere.
QString campoDiMaschera(Versione versione, const QString& percorso);

/// The value, as it stands in the file with its blanks, has the form that the row asks.
bool haForma(const RigaTracciato& riga, const QString& valore);
/// What the row asks, in words: "ci vogliono 5 cifre".
QString formaAttesa(const RigaTracciato& riga);

} // namespace bor
