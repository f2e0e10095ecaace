#include "archive/filecasuale.h"

#include "archive/blocchi.h"
#include "archive/disco.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace bor {

namespace {

constexpr auto attesaMassima = std::chrono::seconds(5);
constexpr auto passo = std::chrono::milliseconds(5);

int apriDescrittore(const QByteArray& nome, Apertura apertura) {
    if (apertura == Apertura::SolaLettura)
        return ::open(nome.constData(), O_RDONLY | O_CLOEXEC);
    const int scrivibile = ::open(nome.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    const bool soloLetta = errno == EACCES || errno == EROFS;
    if (scrivibile >= 0 || !soloLetta || apertura == Apertura::Esclusiva)
        return scrivibile;
    return ::open(nome.constData(), O_RDONLY | O_CLOEXEC);
}

} // namespace

bool FileCasuale::apri(const QString& percorso, Apertura apertura) {
    chiudi();
    m_percorso = percorso;
    m_descrittore = apriDescrittore(QFile::encodeName(percorso), apertura);
    if (m_descrittore < 0) {
        const int errore = errno;
        qCWarning(logArchivio, "cannot open %s: %s", qPrintable(percorso), std::strerror(errore));
        errno = errore;
        return false;
    }
    const short tipo = apertura == Apertura::Esclusiva ? F_WRLCK : F_RDLCK;
    if (blocca(m_descrittore, tipo, byteCondivisione) == EsitoBlocco::Occupato) {
        qCWarning(logArchivio, "%s is in use by another program", qPrintable(percorso));
        chiudi();
        errno = EAGAIN;
        return false;
    }
    return true;
}

void FileCasuale::chiudi() {
    if (m_descrittore >= 0)
        ::close(m_descrittore);
    m_descrittore = -1;
}

qint64 FileCasuale::lunghezza() const {
    struct stat stato {};
    return aperto() && ::fstat(m_descrittore, &stato) == 0 ? qint64{stato.st_size} : 0;
}

qint64 FileCasuale::leggiBytes(qint64 posizione, std::span<std::byte> bytes) const {
    const qint64 letti = m_disco.leggi(m_descrittore, posizione, bytes, m_percorso);
    std::ranges::fill(bytes.subspan(static_cast<std::size_t>(std::max<qint64>(letti, 0))), std::byte{0});
    return letti;
}

bool FileCasuale::scriviBytes(qint64 posizione, std::span<const std::byte> bytes) {
    return m_disco.scrivi(m_descrittore, posizione,
                          {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())},
                          m_percorso);
}

bool FileCasuale::scarica() {
    return m_disco.scarica(m_descrittore, m_percorso);
}

void FileCasuale::accorcia(qint64 lunghezza) {
    if (aperto() && ::ftruncate(m_descrittore, lunghezza) != 0)
        qCWarning(logArchivio, "cannot shorten %s: %s", qPrintable(m_percorso), std::strerror(errno));
}

BloccoByte::BloccoByte(const FileCasuale& file, qint64 posizione) : m_posizione(posizione) {
    if (!file.aperto())
        return;
    const auto limite = std::chrono::steady_clock::now() + attesaMassima;
    EsitoBlocco esito = blocca(file.descrittore(), F_WRLCK, posizione);
    while (esito == EsitoBlocco::Occupato && std::chrono::steady_clock::now() < limite) {
        std::this_thread::sleep_for(passo);
        esito = blocca(file.descrittore(), F_WRLCK, posizione);
    }
    m_occupato = esito == EsitoBlocco::Occupato;
    if (esito == EsitoBlocco::Preso)
        m_descrittore = file.descrittore();
    else if (m_occupato)
        qCWarning(logArchivio, "gave up waiting for the lock on %s", qPrintable(file.percorso()));
}

BloccoByte::~BloccoByte() {
    if (m_descrittore >= 0)
        blocca(m_descrittore, F_UNLCK, m_posizione);
}

} // namespace bor
