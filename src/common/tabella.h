// A table that leaves the program: the register, the due list, the figures of a year, on paper, for a
// spreadsheet or for another program. Its rows are asked for one at a time, so nothing of them is copied.
#pragma once

#include <QDate>
#include <QString>

#include <functional>
#include <vector>

class QIODevice;

namespace bor {

/// Takes the cells of a row from left to right. A row that gives fewer than there are columns is blank to its
/// end, what it gives beyond is left out.
class CelleRiga {
public:
    virtual ~CelleRiga();

    virtual void testo(QStringView testo) = 0;
    /// A number with the decimals that it has.
    virtual void numero(double numero) = 0;
    /// Money, with the decimals of the table.
    virtual void importo(double importo) = 0;
    /// An invalid date is an empty cell.
    virtual void data(QDate data) = 0;
    virtual void vuota() = 0;
};

enum class GenereColonna { Testo, Numero, Importo, Data };

struct ColonnaTabella {
    QString didascalia;
    GenereColonna genere = GenereColonna::Testo;
    int caratteri = 10;  ///< room on paper; columns of text share what is left by their numbers
    QString chiave = {}; ///< name of the value in JSON; the caption where it has none
};

struct Tabella {
    QString titolo;
    QString filtro; ///< one line that tells what is shown
    std::vector<ColonnaTabella> colonne;
    int righe = 0;
    /// Gives the cells of a row, which counts from 0.
    std::function<void(int riga, CelleRiga& celle)> riga;
    /// Gives the row of the totals; without it there is none.
    std::function<void(CelleRiga& celle)> totali = {};
    /// Tells the rows that add up others: bold on paper, and left out where a program reads on. Without it
    /// there are none.
    std::function<bool(int riga)> subtotale = {};
    int decimali = 2; ///< of amounts; 0 for books in lire
};

/// For spreadsheets: head and rows, neither title nor totals, so that each row below the first is one of
/// data. A text that a spreadsheet would run as a formula gets an apostrophe in front of it. False when not
/// all could be written.
bool scriviCsv(const Tabella& tabella, QIODevice& uscita);

/// For programs: one object with title, filter, totals and the rows, a line each. False when not all could be
/// written.
bool scriviJson(const Tabella& tabella, QIODevice& uscita);

/// Writes a file of this machine by `scrivi`; one that is there already stays until the new one is complete.
/// Empty, or what the operator has to know.
QString salvaFile(const QString& percorso, const std::function<bool(QIODevice& uscita)>& scrivi);

} // namespace bor
