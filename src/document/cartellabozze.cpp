#include "document/cartellabozze.h"

#include <QDir>
#include <QFile>

namespace bor {

namespace {

constexpr qint64 massimo = qint64{16} * 1024 * 1024;
constexpr QFileDevice::Permissions cartellaMia =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
constexpr QFileDevice::Permissions fileMio = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

} // namespace

bool CartellaBozze::prepara() {
    if (!tiene())
        return false;
    if (QFileInfo::exists(m_percorso))
        return true;
    const QString sopra = QFileInfo(m_percorso).path();
    return QDir().mkpath(m_percorso) && QFile::setPermissions(sopra, cartellaMia) &&
           QFile::setPermissions(m_percorso, cartellaMia);
}

bool CartellaBozze::scrivi(const QString& nome, QByteArrayView bytes) {
    return prepara() && m_disco.scriviFile(file(nome), bytes) && QFile::setPermissions(file(nome), fileMio);
}

std::optional<QByteArray> CartellaBozze::leggi(const QString& nome) const {
    QFile lettura(file(nome));
    if (!tiene() || !lettura.open(QIODevice::ReadOnly) || lettura.size() > massimo)
        return std::nullopt;
    return lettura.read(massimo);
}

void CartellaBozze::elimina(const QString& nome) {
    if (tiene())
        m_disco.elimina(file(nome));
}

bool CartellaBozze::esiste(const QString& nome) const {
    return tiene() && QFileInfo::exists(file(nome));
}

QStringList CartellaBozze::nomi(const QString& finale) const {
    return tiene() ? QDir(m_percorso).entryList({u'*' + finale}, QDir::Files, QDir::Name) : QStringList();
}

std::unique_ptr<FileCasuale> CartellaBozze::prendi(const QString& nome) {
    // The lock has a file of its own: the other one is replaced at every write.
    auto blocco = std::make_unique<FileCasuale>(m_disco);
    const bool preso = prepara() && blocco->apri(file(nome) + QStringLiteral(".lock"), Apertura::Esclusiva);
    return preso ? std::move(blocco) : nullptr;
}

} // namespace bor
