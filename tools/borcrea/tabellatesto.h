// A table as text: a line of headings, then one line a row, values divided by semicolons. Lines that begin
// with '#' are remarks.
#pragma once

#include "borcrea/problemi.h"

#include <QDate>
#include <QHash>
#include <QStringList>

#include <limits>

namespace bor::crea {

/// Length of a text that fills no field.
inline constexpr int senzaLimite = std::numeric_limits<int>::max();

/// The lines of a text file in UTF-8. A character that the archive's code page lacks is a problem.
QStringList leggiLinee(const QString& percorso, const QString& nome, Problemi& problemi);

class TabellaTesto;

/// A row; reading a value checks it, and what is wrong with it goes to the problems.
class RigaTabella {
public:
    RigaTabella(TabellaTesto& tabella, int numero, QStringList valori);

    /// Trimmed text, empty where the table lacks the column; not longer than the field that it is for.
    QString testo(QStringView colonna, int larghezza) const;
    QString obbligatorio(QStringView colonna, int larghezza) const;
    int intero(QStringView colonna, int minimo, int massimo, int predefinito = 0) const;
    /// A number with decimal comma or point and no thousands points.
    double numero(QStringView colonna, double predefinito = 0) const;
    bool segno(QStringView colonna) const; ///< "1" for yes; "0" or nothing for no
    /// "dd/mm/yyyy".
    QDate data(QStringView colonna) const;
    bool vuoto(QStringView colonna) const;

    void problema(const QString& motivo) const;

private:
    TabellaTesto* m_tabella;
    int m_numero;
    QStringList m_valori;
};

class TabellaTesto {
public:
    /// Reads the table `nome` of the folder. A missing file has no rows, and is a problem only when
    /// `necessario`.
    TabellaTesto(const QString& cartella, const QString& nome, const QStringList& colonne, Problemi& problemi,
                 bool necessario = false);

    const QList<RigaTabella>& righe() const { return m_righe; }

private:
    friend class RigaTabella;

    void leggiIntestazione(int numero, const QString& linea, const QStringList& colonne);
    bool dividi(int numero, const QString& linea, QStringList& valori);

    QString m_nome;
    Problemi& m_problemi;
    QHash<QString, int> m_posti; ///< place of each column
    int m_colonne = 0;
    QList<RigaTabella> m_righe;
};

} // namespace bor::crea
