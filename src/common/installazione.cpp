#include "common/installazione.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace bor {

using namespace Qt::StringLiterals;

namespace {

/// The first of the folders, each told from `cartella`, in which the name exists; the name in `cartella`
/// itself when it is in none.
QString trova(const QString& cartella, const QString& cartelle, QStringView nome) {
    const QDir qui(cartella);
    for (const QString& altra : cartelle.split(u':')) {
        const QString posto = QDir::cleanPath(qui.filePath(altra) + u"/%1"_s.arg(nome));
        if (QFileInfo::exists(posto))
            return posto;
    }
    return qui.filePath(nome.toString());
}

} // namespace

QString programma(const QString& cartella, QStringView nome) {
    return trova(cartella, QStringLiteral(BOR_PROGRAMMI), nome);
}

QString installato(QStringView nome) {
    return trova(QCoreApplication::applicationDirPath(), QStringLiteral(BOR_DATI), nome);
}

} // namespace bor
