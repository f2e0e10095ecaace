// The customer picker: lists the customers whose name holds a piece of text and hands the chosen name back to
// the head form, which looks it up again.
#pragma once

#include "archive/contesto.h"
#include "common/posti.h"

#include <optional>
#include <vector>

namespace bor {

class Borftem;

/// Columns of the picker, by their number on screen.
enum class ColonnaCliente { Nominativo, Nominativo2, Indirizzo, Citta, PartitaIva };
inline constexpr int colonneCliente = 5;

class Borsel {
public:
    Borsel(Contesto& contesto, Borftem& chiamante);

    /// Takes the search text from the head form and fills the list.
    void attiva();
    /// The operator types: leaves in the list the customers whose name holds the text, accents and case
    /// alike.
    void cambiaNome(const QString& testo);
    /// Reads the customers anew, those not deleted, and lists those that answer to the search text.
    void caricaclienti();
    void ordina(ColonnaCliente colonna);
    /// Double click or Enter on a row, counted from 0: back to the head form with its name. A blank row does
    /// nothing.
    void scegli(int riga);
    /// Back to the head form without a choice, and with its search text emptied.
    void esci();

    const QString& nome() const { return m_selnome; } ///< `selnome`
    int quanti() const { return quantiIn(m_mostrate); }
    /// Rows on screen, blank filler rows included.
    int righeGriglia() const;
    /// Text of a cell; a row that does not exist is blank.
    QString testo(int riga, ColonnaCliente colonna) const;
    /// `cli` record of a row; 0 for a row that does not exist.
    int record(int riga) const;
    /// Background of a row as 0x00BBGGRR; nothing for the grid's own.
    std::optional<int> colore(int riga) const;
    /// Grows with every fill and sort.
    int edizione() const { return m_edizione; }

private:
    /// What the list shows of a customer.
    struct Riga {
        Text<40> ragione1 = vuoto<Text<40>>();
        Text<40> ragione2 = vuoto<Text<40>>();
        Text<40> indirizzo = vuoto<Text<40>>();
        Text<40> citta = vuoto<Text<40>>();
        Text<11> partitaiva = vuoto<Text<11>>();
        std::int16_t record = 0;
        bool eliminato = false;
        QString cercato; ///< the name as `piega` makes it
    };

    std::vector<Riga> leggiClienti(int ultimo) const;
    void filtra();
    bool esiste(int riga) const { return riga >= 0 && riga < quanti(); }
    const Riga& mostrata(int riga) const { return m_righe[elemento(m_mostrate, riga)]; }
    static QString testo(const Riga& riga, ColonnaCliente colonna);

    Contesto& m_contesto;
    Borftem& m_chiamante;
    QString m_selnome;
    std::vector<Riga> m_righe;           ///< all customers
    std::vector<std::size_t> m_mostrate; ///< indices of those that answer
    int m_edizione = 0;
};

} // namespace bor
