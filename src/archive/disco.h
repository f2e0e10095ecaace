// The few ways in which the program reads records from disk and writes to it. All of them pass here, so that
// a test can make any of them fail, and so that whoever saves can tell the operator which file it was.
#pragma once

#include <QByteArrayView>
#include <QLoggingCategory>
#include <QString>

#include <cstddef>
#include <span>

namespace bor {

Q_DECLARE_LOGGING_CATEGORY(logArchivio)

class Disco {
public:
    Disco() = default;
    virtual ~Disco();
    Disco(const Disco&) = delete;
    Disco& operator=(const Disco&) = delete;

    /// How many bytes of an open file could be read at this place, fewer than asked only at its end; -1 when
    /// the read failed.
    qint64 leggi(int descrittore, qint64 posizione, std::span<std::byte> bytes, const QString& percorso);

    /// Writes all the bytes at this place of an open file, straight through; false when not all could be
    /// written.
    bool scrivi(int descrittore, qint64 posizione, QByteArrayView bytes, const QString& percorso);

    /// Waits until what was written to an open file is on the disk itself; false when that is not sure.
    bool scarica(int descrittore, const QString& percorso);

    /// The same for the names of the files in a folder, where the file system can do it.
    void scaricaCartella(const QString& cartella);

    /// Replaces a whole file: the old one stays until the new one is complete on disk. What is written
    /// afterwards is never on disk without it.
    bool scriviFile(const QString& percorso, QByteArrayView contenuto);

    /// Removes a file; a file that does not exist is no failure.
    bool elimina(const QString& percorso);

    /// Copies a file over another one.
    bool copia(const QString& da, const QString& a);

    /// The first file that could not be written since `dimentica`; empty when none.
    const QString& nonScritto() const { return m_nonScritto; }
    /// The first file that could not be read since `dimentica`; empty when none.
    const QString& nonLetto() const { return m_nonLetto; }
    void dimentica();
    /// Notes a file that could not be read by other means.
    void segnaNonLetto(const QString& percorso);

protected:
    virtual qint64 leggiBytes(int descrittore, qint64 posizione, std::span<std::byte> bytes,
                              const QString& percorso);
    virtual bool scriviBytes(int descrittore, qint64 posizione, QByteArrayView bytes,
                             const QString& percorso);
    virtual bool scaricaBytes(int descrittore, const QString& percorso);
    virtual bool sostituisci(const QString& percorso, QByteArrayView contenuto);
    virtual bool rimuovi(const QString& percorso);
    virtual bool duplica(const QString& da, const QString& a);

private:
    bool esito(bool riuscito, const char* operazione, const QString& percorso);

    QString m_nonScritto;
    QString m_nonLetto;
};

} // namespace bor
