// The file that a copy is: a tar archive packed with Zstandard, which any desktop opens too. Written and read
// an entry at a time, from its beginning to its end.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>
#include <span>

struct archive;

namespace bor::copia {

/// A regular file in the archive; there is nothing else in it.
struct Voce {
    QString nome; ///< from the root of the drive, parts separated by '/'
    qint64 lunghezza = 0;
    qint64 quando = 0; ///< last change, in seconds since 1970
};

/// Writes to an open file, which stays open. The first failure stays, and is in `errore`.
class NastroScritto {
public:
    explicit NastroScritto(int descrittore);

    bool inizia(const Voce& voce);
    /// The bytes of the entry that was begun, at most as many as it announced; what is left out becomes
    /// zeros.
    bool scrivi(QByteArrayView bytes);
    /// Ends the archive; without it the file is not whole.
    bool chiudi();
    /// In the operator's words; empty while nothing has failed.
    const QString& errore() const { return m_errore; }

private:
    bool esito(int codice);

    std::unique_ptr<archive, int (*)(archive*)> m_archivio;
    QString m_errore;
};

class NastroLetto {
public:
    NastroLetto();

    bool apri(const QString& percorso);
    /// The next entry; false at the end of the archive, and where it is damaged, which `errore` tells.
    bool prossima(Voce& voce);
    /// Bytes of the entry, 0 at its end; -1 where the archive is damaged.
    qint64 leggi(std::span<char> bytes);
    /// How much of the file has been read, from 0 to 100.
    int percento() const;
    const QString& errore() const { return m_errore; }

private:
    void guasta();

    std::unique_ptr<archive, int (*)(archive*)> m_archivio;
    QString m_percorso;
    QString m_errore;
};

/// What went wrong with a file, by the system's error number: "il disco è pieno", ...
QString motivoErrore(int errore);

} // namespace bor::copia
