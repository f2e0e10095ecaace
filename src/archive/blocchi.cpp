#include "archive/blocchi.h"

#include "archive/filecasuale.h"

#include <QFile>
#include <QStorageInfo>
#include <QStringList>

#include <cerrno>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

class Aperto {
public:
    explicit Aperto(const QString& percorso)
        : m_descrittore(::open(QFile::encodeName(percorso).constData(), O_RDWR | O_CLOEXEC)) {}
    ~Aperto() {
        if (m_descrittore >= 0)
            ::close(m_descrittore);
    }
    Aperto(const Aperto&) = delete;
    Aperto& operator=(const Aperto&) = delete;

    bool valido() const { return m_descrittore >= 0; }
    EsitoBlocco prendi() const { return blocca(m_descrittore, F_WRLCK, byteContatori + 1); }

private:
    int m_descrittore;
};

/// The mount that a folder is on: its type and options, the last one counting.
bool montatoSoloQui(const QString& percorso) {
    const QString radice = QStorageInfo(percorso).rootPath();
    QFile montaggi(u"/proc/self/mounts"_s);
    if (!montaggi.open(QIODevice::ReadOnly))
        return false;
    bool soloQui = false;
    const QStringList linee = QString::fromUtf8(montaggi.readAll()).split(u'\n');
    for (const QString& linea : linee) {
        const QStringList parti = linea.split(u' ');
        if (parti.size() >= 4 && QString(parti[1]).replace(u"\\040"_s, u" "_s) == radice)
            soloQui = blocchiSoloQui(parti[2], parti[3]);
    }
    return soloQui;
}

} // namespace

EsitoBlocco blocca(int descrittore, short tipo, qint64 posizione) {
    struct flock richiesta {};
    richiesta.l_type = tipo;
    richiesta.l_whence = SEEK_SET;
    richiesta.l_start = posizione;
    richiesta.l_len = 1;
    if (::fcntl(descrittore, F_OFD_SETLK, &richiesta) == 0)
        return EsitoBlocco::Preso;
    return errno == EACCES || errno == EAGAIN ? EsitoBlocco::Occupato : EsitoBlocco::Impossibile;
}

BloccoDiLettura::BloccoDiLettura(const FileCasuale& tot, Orario::time_point fine)
    : m_descrittore(tot.descrittore()), m_esito(blocca(m_descrittore, F_RDLCK, byteContatori)) {
    while (occupato() && Orario::now() < fine) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        m_esito = blocca(m_descrittore, F_RDLCK, byteContatori);
    }
}

BloccoDiLettura::~BloccoDiLettura() {
    if (m_esito == EsitoBlocco::Preso)
        blocca(m_descrittore, F_UNLCK, byteContatori);
}

bool blocchiSoloQui(const QString& tipo, const QString& opzioni) {
    const QStringList voci = opzioni.split(u',');
    if (tipo.startsWith(u"nfs"_s))
        return voci.contains(u"nolock"_s) || voci.contains(u"local_lock=all"_s) ||
               voci.contains(u"local_lock=posix"_s);
    return (tipo == u"cifs" || tipo == u"smb3") && voci.contains(u"nobrl"_s);
}

TenutaBlocchi provaBlocchi(const QString& percorso) {
    const Aperto primo(percorso);
    const Aperto secondo(percorso);
    if (!primo.valido() || !secondo.valido())
        return TenutaBlocchi::NonProvati;
    const EsitoBlocco uno = primo.prendi();
    if (uno == EsitoBlocco::Impossibile)
        return TenutaBlocchi::NonCiSono;
    // Where the first one met a lock, another program was trying the same.
    if (uno == EsitoBlocco::Preso && secondo.prendi() != EsitoBlocco::Occupato)
        return TenutaBlocchi::NonTengono;
    return montatoSoloQui(percorso) ? TenutaBlocchi::SoloQui : TenutaBlocchi::Tengono;
}

} // namespace bor
