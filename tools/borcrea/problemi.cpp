#include "borcrea/problemi.h"

namespace bor::crea {

QString Problema::testo() const {
    const QString posto = riga > 0 ? QStringLiteral("%1, riga %2").arg(file).arg(riga) : file;
    return posto + QStringLiteral(": ") + motivo;
}

} // namespace bor::crea
