#include "archive/disco.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace bor {

Q_LOGGING_CATEGORY(logArchivio, "bor.archive", QtInfoMsg)

Disco::~Disco() = default;

qint64 Disco::leggi(int descrittore, qint64 posizione, std::span<std::byte> bytes, const QString& percorso) {
    const qint64 letti = leggiBytes(descrittore, posizione, bytes, percorso);
    if (letti < 0) {
        const int errore = errno;
        qCWarning(logArchivio, "cannot read %s: %s", qPrintable(percorso), std::strerror(errore));
        segnaNonLetto(percorso);
        errno = errore;
    }
    return letti;
}

bool Disco::scrivi(int descrittore, qint64 posizione, QByteArrayView bytes, const QString& percorso) {
    return esito(scriviBytes(descrittore, posizione, bytes, percorso), "write", percorso);
}

bool Disco::scarica(int descrittore, const QString& percorso) {
    return esito(scaricaBytes(descrittore, percorso), "flush", percorso);
}

void Disco::scaricaCartella(const QString& cartella) {
    const int descrittore =
        ::open(QFile::encodeName(cartella).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descrittore < 0)
        return;
    scaricaBytes(descrittore, cartella);
    ::close(descrittore);
}

void Disco::segnaNonLetto(const QString& percorso) {
    if (m_nonLetto.isEmpty())
        m_nonLetto = percorso;
}

void Disco::dimentica() {
    m_nonScritto.clear();
    m_nonLetto.clear();
}

bool Disco::scriviFile(const QString& percorso, QByteArrayView contenuto) {
    if (!esito(sostituisci(percorso, contenuto), "replace", percorso))
        return false;
    scaricaCartella(QFileInfo(percorso).path());
    return true;
}

bool Disco::elimina(const QString& percorso) {
    return esito(rimuovi(percorso), "remove", percorso);
}

bool Disco::copia(const QString& da, const QString& a) {
    return esito(duplica(da, a), "copy to", a);
}

qint64 Disco::leggiBytes(int descrittore, qint64 posizione, std::span<std::byte> bytes, const QString&) {
    std::size_t letti = 0;
    while (letti < bytes.size()) {
        const ssize_t n = ::pread(descrittore, bytes.data() + letti, bytes.size() - letti,
                                  posizione + static_cast<qint64>(letti));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return -1;
        if (n == 0)
            break;
        letti += static_cast<std::size_t>(n);
    }
    return static_cast<qint64>(letti);
}

bool Disco::scriviBytes(int descrittore, qint64 posizione, QByteArrayView bytes, const QString&) {
    while (!bytes.isEmpty()) {
        const ssize_t scritti =
            ::pwrite(descrittore, bytes.data(), static_cast<std::size_t>(bytes.size()), posizione);
        if (scritti < 0 && errno == EINTR)
            continue;
        if (scritti <= 0)
            return false;
        bytes = bytes.sliced(scritti);
        posizione += scritti;
    }
    return true;
}

bool Disco::scaricaBytes(int descrittore, const QString&) {
    // Some network file systems know no flush of their own: there is nothing more that could be asked for.
    return ::fdatasync(descrittore) == 0 || errno == EINVAL || errno == ENOSYS;
}

bool Disco::sostituisci(const QString& percorso, QByteArrayView contenuto) {
    QSaveFile file(percorso);
    // A commit reports success even after a flush that failed, so the flush is asked for and looked at first.
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           file.write(contenuto.data(), contenuto.size()) == contenuto.size() && file.flush() &&
           file.commit();
}

bool Disco::rimuovi(const QString& percorso) {
    return !QFileInfo::exists(percorso) || QFile::remove(percorso);
}

bool Disco::duplica(const QString& da, const QString& a) {
    if (QFileInfo::exists(a) && !QFile::remove(a))
        return false;
    return QFile::copy(da, a);
}

bool Disco::esito(bool riuscito, const char* operazione, const QString& percorso) {
    if (!riuscito) {
        const int errore = errno;
        qCWarning(logArchivio, "cannot %s %s: %s", operazione, qPrintable(percorso), std::strerror(errore));
        if (m_nonScritto.isEmpty())
            m_nonScritto = percorso;
        errno = errore;
    }
    return riuscito;
}

} // namespace bor
