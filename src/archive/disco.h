// The few ways in which the program writes to disk. Every write of the module passes here, so that a test can
// make any of them fail, and so that whoever saves can tell the operator which file could not be written.
#pragma once

#include <QByteArrayView>
#include <QLoggingCategory>
#include <QString>

namespace bor {

Q_DECLARE_LOGGING_CATEGORY(logArchivio)

class Disco {
public:
    Disco() = default;
    virtual ~Disco();
    Disco(const Disco&) = delete;
    Disco& operator=(const Disco&) = delete;

    /// Writes all the bytes at this place of an open file, straight through; false when not all could be
    /// written.
    bool scrivi(int descrittore, qint64 posizione, QByteArrayView bytes, const QString& percorso);

    /// Replaces a whole file: the old one stays until the new one is complete on disk.
    bool scriviFile(const QString& percorso, QByteArrayView contenuto);

    /// Removes a file; a file that does not exist is no failure.
    bool elimina(const QString& percorso);

    /// Copies a file over another one.
    bool copia(const QString& da, const QString& a);

    /// The file that the last failed operation could not write; empty when none failed since `dimentica`.
    const QString& nonScritto() const { return m_nonScritto; }
    void dimentica() { m_nonScritto.clear(); }

protected:
    virtual bool scriviBytes(int descrittore, qint64 posizione, QByteArrayView bytes);
    virtual bool sostituisci(const QString& percorso, QByteArrayView contenuto);
    virtual bool rimuovi(const QString& percorso);
    virtual bool duplica(const QString& da, const QString& a);

private:
    bool esito(bool riuscito, const char* operazione, const QString& percorso);

    QString m_nonScritto;
};

} // namespace bor
