#include "document/indicestorico.h"

#include "archive/archivio.h"
#include "document/righe.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QSaveFile>

#include <algorithm>
#include <cmath>
#include <limits>

namespace bor {

namespace {

// The last two digits are the version.
constexpr QByteArrayView marca = "BORSTO01";
constexpr auto algoritmo = QCryptographicHash::Blake2b_256;
constexpr qsizetype lunghezzaImpronta = 32;
constexpr qsizetype lunghezzaTesta = 8 + lunghezzaImpronta;
/// Of a whole archive of full documents, unpacked.
constexpr quint32 corpoMassimo = 512U * 1024 * 1024;
constexpr qint64 fileMassimo = qint64{256} * 1024 * 1024;
constexpr qsizetype nomeMassimo = 32;
constexpr int compressione = 1;

double finito(double x) {
    return std::isfinite(x) ? x : 0;
}

void metti(QDataStream& flusso, const QByteArray& nome, const VenditeFile& vendite) {
    flusso << nome << vendite.tempi.scritto << vendite.tempi.lunghezza << vendite.conIva
           << static_cast<quint16>(vendite.righe.size());
    for (const RigaVenduta& r : vendite.righe)
        flusso << static_cast<qint16>(r.recart) << static_cast<qint16>(r.sconto1)
               << static_cast<qint16>(r.sconto2) << r.quantita << r.prezzo;
}

/// False when the rest of the stream is no such entry.
bool prendi(QDataStream& flusso, IndiceStorico& indice) {
    QByteArray nome;
    VenditeFile vendite;
    quint16 righe = 0;
    flusso >> nome >> vendite.tempi.scritto >> vendite.tempi.lunghezza >> vendite.conIva >> righe;
    if (flusso.status() != QDataStream::Ok || nome.isEmpty() || nome.size() > nomeMassimo ||
        righe > righeMerce)
        return false;
    vendite.righe.reserve(righe);
    for (quint16 i = 0; i < righe; ++i) {
        qint16 recart = 0;
        qint16 sconto1 = 0;
        qint16 sconto2 = 0;
        RigaVenduta r;
        flusso >> recart >> sconto1 >> sconto2 >> r.quantita >> r.prezzo;
        r.recart = std::max<int>(recart, 0);
        r.sconto1 = sconto1;
        r.sconto2 = sconto2;
        r.quantita = finito(r.quantita);
        r.prezzo = finito(r.prezzo);
        vendite.righe.push_back(r);
    }
    indice.emplace(nome, std::move(vendite));
    return flusso.status() == QDataStream::Ok;
}

/// The length that packed bytes say they have, in their first four.
quint32 lunghezzaDetta(QByteArrayView compresso) {
    quint32 lunghezza = 0;
    for (qsizetype i = 0; i < 4 && i < compresso.size(); ++i)
        lunghezza = lunghezza << 8U | static_cast<unsigned char>(compresso[i]);
    return lunghezza;
}

} // namespace

QByteArray codifica(const IndiceStorico& indice) {
    QByteArray corpo;
    QDataStream flusso(&corpo, QIODevice::WriteOnly);
    flusso.setVersion(QDataStream::Qt_6_0);
    flusso << static_cast<quint32>(indice.size());
    for (auto voce = indice.cbegin(); voce != indice.cend(); ++voce)
        metti(flusso, voce.key(), voce.value());
    const QByteArray compresso = qCompress(corpo, compressione);
    return marca.toByteArray() + QCryptographicHash::hash(compresso, algoritmo) + compresso;
}

std::optional<IndiceStorico> decodificaIndice(QByteArrayView bytes) {
    if (bytes.size() < lunghezzaTesta || !bytes.startsWith(marca))
        return std::nullopt;
    const QByteArray compresso = bytes.sliced(lunghezzaTesta).toByteArray();
    if (QCryptographicHash::hash(compresso, algoritmo) != bytes.sliced(marca.size(), lunghezzaImpronta) ||
        lunghezzaDetta(compresso) > corpoMassimo)
        return std::nullopt;
    const QByteArray corpo = qUncompress(compresso);
    QDataStream flusso(corpo);
    flusso.setVersion(QDataStream::Qt_6_0);
    quint32 quante = 0;
    flusso >> quante;
    IndiceStorico indice;
    for (quint32 i = 0; i < quante; ++i) {
        if (!prendi(flusso, indice))
            return std::nullopt;
    }
    return flusso.status() == QDataStream::Ok && flusso.atEnd() ? std::optional(std::move(indice))
                                                                : std::nullopt;
}

IndiceStorico leggiIndice(const QString& percorso) {
    QFile file(percorso);
    if (percorso.isEmpty() || !file.open(QIODevice::ReadOnly) || file.size() > fileMassimo)
        return {};
    auto indice = decodificaIndice(file.read(fileMassimo));
    if (!indice)
        qCWarning(logArchivio, "%s is no index of this version: it is made anew", qPrintable(percorso));
    return indice ? *std::move(indice) : IndiceStorico();
}

bool scriviIndice(const QString& percorso, const IndiceStorico& indice) {
    const QString cartella = QFileInfo(percorso).path();
    if (percorso.isEmpty() || !QDir().mkpath(cartella))
        return false;
    QFile::setPermissions(cartella, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QSaveFile file(percorso);
    const QByteArray bytes = codifica(indice);
    const bool scritto = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                         file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
                         file.write(bytes) == bytes.size() && file.commit();
    if (!scritto)
        qCWarning(logArchivio, "cannot write %s: %s", qPrintable(percorso), qPrintable(file.errorString()));
    return scritto;
}

} // namespace bor
