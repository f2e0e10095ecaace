#include "borcopia/elencocopie.h"

#include "archive/disco.h"
#include "borcopia/nastro.h"
#include "borcopia/ripristino.h"
#include "common/testo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace bor::copia {

namespace {

constexpr QStringView formatoData = u"yyyy-MM-dd_HHmmss";

/// What a copy of the company made at this moment is called, without ending.
QString nomeBase(int codice, const QDateTime& quando) {
    return u"boraz0.%1_%2"_s.arg(codice, 3, 10, QChar(u'0')).arg(quando.toString(formatoData));
}

/// A partial copy that no running program holds belongs to one that was killed.
void togliAbbandonate(const QString& cartella, int codice) {
    const QString modello = u"boraz0.%1_*.parziale"_s.arg(codice, 3, 10, QChar(u'0'));
    for (const QString& nome : QDir(cartella).entryList({modello}, QDir::Files)) {
        const QByteArray percorso = QFile::encodeName(cartella + u'/' + nome);
        const int descrittore = ::open(percorso.constData(), O_RDWR | O_CLOEXEC);
        if (descrittore < 0)
            continue;
        if (::flock(descrittore, LOCK_EX | LOCK_NB) == 0)
            ::unlink(percorso.constData());
        ::close(descrittore);
    }
}

/// Makes a file that this program holds; -1 when it cannot be made. Between its making and its lock another
/// program may take it for an abandoned one.
int creaPreso(const QByteArray& percorso) {
    constexpr int volte = 20;
    for (int volta = 0; volta < volte; ++volta) {
        const int descrittore = ::open(percorso.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (descrittore < 0)
            return -1;
        (void)::flock(descrittore, LOCK_EX);
        if (::access(percorso.constData(), F_OK) == 0)
            return descrittore;
        ::close(descrittore);
    }
    errno = EBUSY;
    return -1;
}

/// The error number; 0 when the file has its new name. Another copy that has just taken the name stays as it
/// is, where QFile::rename would write over it.
int rinominaSenzaCoprire(const QString& da, const QString& a) {
    const QByteArray vecchio = QFile::encodeName(da);
    const QByteArray nuovo = QFile::encodeName(a);
    if (::renameat2(AT_FDCWD, vecchio.constData(), AT_FDCWD, nuovo.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // Some network and removable drives do not know that way, and of these some know no links.
    if (::link(vecchio.constData(), nuovo.constData()) == 0) {
        ::unlink(vecchio.constData());
        return 0;
    }
    if (errno == EEXIST || ::access(nuovo.constData(), F_OK) == 0)
        return EEXIST;
    return ::rename(vecchio.constData(), nuovo.constData()) == 0 ? 0 : errno;
}

} // namespace

QString unitaCanonica(const QString& unita) {
    const QString canonica = QFileInfo(unita).canonicalFilePath();
    return canonica.isEmpty() ? QDir::cleanPath(unita) : canonica;
}

QList<CopiaInElenco> elencaCopie(const QString& cartella, int codice) {
    static const QRegularExpression forma(
        u"^boraz0\\.([0-9]{3})_([0-9]{4}-[0-9]{2}-[0-9]{2}_[0-9]{6})(_[0-9]{2})?\\.tar\\.zst$"_s);
    QList<CopiaInElenco> copie;
    const QDir::Filters filtri = QDir::Files | QDir::NoSymLinks;
    for (const QString& nome : QDir(cartella).entryList(filtri, QDir::Name | QDir::Reversed)) {
        const auto trovato = forma.match(nome);
        const QDateTime quando = QDateTime::fromString(trovato.captured(2), formatoData.toString());
        const int azienda = trovato.captured(1).toInt();
        if (trovato.hasMatch() && quando.isValid() && (codice < 0 || codice == azienda))
            copie.append({cartella + u'/' + nome, azienda, quando});
    }
    return copie;
}

QStringList sfoltisci(const QString& cartella, int codice, const QString& unita, int quante,
                      const QString& nuova) {
    QStringList tolte;
    int sue = 1;
    for (const CopiaInElenco& copia : elencaCopie(cartella, codice)) {
        if (QFileInfo(copia.percorso).fileName() == nuova)
            continue;
        const auto appunti = leggiAppunti(copia.percorso);
        if (!appunti || appunti->azienda != codice || appunti->unita != unitaCanonica(unita))
            continue;
        if (++sue > quante && QFile::remove(copia.percorso))
            tolte.append(QFileInfo(copia.percorso).fileName());
    }
    return tolte;
}

CopiaNuova::CopiaNuova(const QString& cartella, int codice)
    : m_cartella(QDir(cartella).absolutePath()), m_codice(codice) {
    QDir().mkpath(m_cartella);
    togliAbbandonate(m_cartella, codice);
    m_provvisorio = u"%1/%2.%3.parziale"_s.arg(m_cartella, nomeBase(codice, QDateTime::currentDateTime()))
                        .arg(::getpid());
    m_descrittore = creaPreso(QFile::encodeName(m_provvisorio));
    if (m_descrittore < 0)
        fallisci(errno);
}

CopiaNuova::~CopiaNuova() {
    if (m_descrittore < 0)
        return;
    if (m_percorso.isEmpty())
        ::unlink(QFile::encodeName(m_provvisorio).constData());
    ::close(m_descrittore);
}

bool CopiaNuova::conferma() {
    if (::fsync(m_descrittore) != 0)
        return fallisci(errno);
    const QString base = m_cartella + u'/' + nomeBase(m_codice, QDateTime::currentDateTime());
    for (int volta = 0; volta < 100; ++volta) {
        const QString seguito = volta == 0 ? QString() : u"_%1"_s.arg(volta, 2, 10, QChar(u'0'));
        const QString percorso = base + seguito + u".tar.zst"_s;
        const int errore = rinominaSenzaCoprire(m_provvisorio, percorso);
        if (errore == 0) {
            Disco().scaricaCartella(m_cartella);
            m_percorso = percorso;
            return true;
        }
        if (errore != EEXIST)
            return fallisci(errore);
    }
    return fallisci(EEXIST);
}

bool CopiaNuova::fallisci(int errore) {
    m_errore = motivoErrore(errore);
    return false;
}

} // namespace bor::copia
