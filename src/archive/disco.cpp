#include "archive/disco.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace bor {

Q_LOGGING_CATEGORY(logArchivio, "bor.archive", QtInfoMsg)

Disco::~Disco() = default;

bool Disco::scrivi(int descrittore, qint64 posizione, QByteArrayView bytes, const QString& percorso) {
    return esito(scriviBytes(descrittore, posizione, bytes), "write", percorso);
}

bool Disco::scriviFile(const QString& percorso, QByteArrayView contenuto) {
    return esito(sostituisci(percorso, contenuto), "replace", percorso);
}

bool Disco::elimina(const QString& percorso) {
    return esito(rimuovi(percorso), "remove", percorso);
}

bool Disco::copia(const QString& da, const QString& a) {
    return esito(duplica(da, a), "copy to", a);
}

bool Disco::scriviBytes(int descrittore, qint64 posizione, QByteArrayView bytes) {
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
        m_nonScritto = percorso;
        errno = errore;
    }
    return riuscito;
}

} // namespace bor
