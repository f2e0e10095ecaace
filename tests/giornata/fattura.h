// One invoice of the typing day and what it comes to, reckoned in whole cents by the test alone.
#pragma once

#include <QDate>
#include <QString>

#include <array>
#include <random>
#include <vector>

namespace bor {

/// How a line comes into the document.
enum class Genere {
    Articolo,    ///< by its code
    Descrizione, ///< by its description and F1
    Libera,      ///< description, unit, quantity and price of its own
    SoloPrezzo,  ///< description and price
    Commento
};

struct RigaScritta {
    Genere genere = Genere::Commento;
    int articolo = -1; ///< place in `articoliNoti`
    QString testo;
    int quantita = 0; ///< hundredths; always whole halves, so that no rounding is in doubt
    int prezzo = -1;  ///< cents; -1 leaves the list price
    int sconto1 = -1; ///< percent; -1 leaves the customer's
    int sconto2 = -1;
    int giuNellIva = 0; ///< steps down in the list of VAT codes
};

/// Amounts by VAT row, in cents.
struct Somme {
    std::array<long long, 4> imponibili{};
    std::array<long long, 4> imposte{};
    std::array<long long, 4> esenti{};

    long long ricavi() const;
    long long imposta() const;
    long long esente() const;
    long long totale() const { return ricavi() + imposta() + esente(); }
};

struct FatturaScritta {
    int cliente = 0; ///< place in `clientiNoti`
    bool nota = false;
    QDate data;
    std::vector<RigaScritta> righe;
    long long diversi = 0; ///< cents of the revenue that the movement has on another account

    int prezzo(const RigaScritta& riga) const; ///< cents
    int sconto1(const RigaScritta& riga) const;
    int sconto2(const RigaScritta& riga) const;
    Somme somme() const;
    /// Cents at which the warehouse has the pieces of a line, below 0 where they came back: the net unit
    /// price, rounded, by the quantity.
    long long valore(const RigaScritta& riga) const;
    std::vector<QDate> scadenze() const;
};

/// Ten rows of every kind, the first of them of an article.
FatturaScritta inventa(std::mt19937& caso, int numero);

/// Cents as a person writes them: "1.250,00", "1250,00", "12,5", "40".
QString aMano(long long centesimi, std::mt19937& caso);

} // namespace bor
