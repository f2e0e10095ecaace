// A file of this machine that is only read, with what the system says of it.
#pragma once

#include "borcopia/fonte.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace bor::copia {

class FileLetto {
public:
    explicit FileLetto(const QString& percorso)
        : m_descrittore(::open(QFile::encodeName(percorso).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)),
          m_errore(m_descrittore < 0 ? errno : 0) {}
    ~FileLetto() {
        if (m_descrittore >= 0)
            ::close(m_descrittore);
    }
    FileLetto(const FileLetto&) = delete;
    FileLetto& operator=(const FileLetto&) = delete;

    bool aperto() const { return m_descrittore >= 0; }
    int errore() const { return m_errore; }
    std::optional<Identita> chi() const { return identita(m_descrittore); }
    /// How many bytes; 0 at the end, -1 on a failure.
    qint64 leggi(QByteArray& bytes, qsizetype massimo) {
        bytes.resize(massimo);
        const ssize_t letti = ::read(m_descrittore, bytes.data(), static_cast<std::size_t>(massimo));
        m_errore = letti < 0 ? errno : 0;
        bytes.truncate(std::max<qsizetype>(letti, 0));
        return letti;
    }

private:
    int m_descrittore;
    int m_errore;
};

} // namespace bor::copia
