// Short notes about a copy, "name=value" a line: what it is of and when it was made. One lies in the copy
// itself, one in the company's folder, where every computer reads when its last copy was made.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>

#include <optional>

namespace bor::copia {

struct Appunti {
    int azienda = -1;
    QString nome;     ///< of the company; may be empty
    QString unita;    ///< folder of the drive it was taken from
    QString computer; ///< where it was made
    QString file;     ///< the copy, with its folder; empty in the copy itself
    QDateTime quando;
    int errori = 0; ///< that the checker found in the copy; 0 in the copy itself

    QByteArray testo() const;
    /// Nothing when the text has neither a company nor a date.
    static std::optional<Appunti> daTesto(QByteArrayView testo);
};

/// In the company's folder.
inline constexpr QStringView nomeUltimaCopia = u"borlano.cop";

/// The last copy of the company in this folder of this machine; nothing when none is noted.
std::optional<Appunti> ultimaCopia(const QString& cartellaAzienda);
/// False when it could not be written.
bool segnaUltimaCopia(const QString& cartellaAzienda, const Appunti& appunti);

} // namespace bor::copia
