// The copies in a folder: how they are called, which there are, and which of them may go.
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

namespace bor::copia {

/// First and last entry of a copy: its notes, and the BLAKE2b-256 of every file as `b2sum` writes it.
inline constexpr QStringView nomeAppunti = u"COPIA.txt";
inline constexpr QStringView nomeImpronte = u"IMPRONTE.b2";

struct CopiaInElenco {
    QString percorso;
    int azienda = 0;
    QDateTime quando; ///< local time, as in its name
};

/// The whole copies in a folder by their names, the newest first; of all companies, or of one.
QList<CopiaInElenco> elencaCopie(const QString& cartella, int codice = -1);

/// Deletes the oldest copies of this company of this drive beyond `quante`, which is at least 1 and counts
/// `nuova`, the name of the one just made; the names of those deleted. What is no copy, is of another drive,
/// or cannot be read stays, and so does the new one, whatever the clock said when the others were made.
QStringList sfoltisci(const QString& cartella, int codice, const QString& unita, int quante,
                      const QString& nuova);

/// A drive as the notes of a copy name it: the same folder by whatever way it was reached.
QString unitaCanonica(const QString& unita);

/// A copy in the making. Its file has a name that is none of a copy until `conferma`; without it, it goes
/// away. What a run that was killed has left is removed by the next one.
class CopiaNuova {
public:
    CopiaNuova(const QString& cartella, int codice);
    ~CopiaNuova();
    CopiaNuova(const CopiaNuova&) = delete;
    CopiaNuova& operator=(const CopiaNuova&) = delete;

    /// The file to be written to; -1 when it could not be made.
    int descrittore() const { return m_descrittore; }
    /// Puts the file on the disk and gives it the name of a copy, with today's date.
    bool conferma();
    /// Of the confirmed copy.
    const QString& percorso() const { return m_percorso; }
    const QString& errore() const { return m_errore; }

private:
    bool fallisci(int errore);

    QString m_cartella;
    int m_codice;
    QString m_provvisorio;
    QString m_percorso;
    QString m_errore;
    int m_descrittore = -1;
};

} // namespace bor::copia
