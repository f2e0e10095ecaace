#include "common/versione.h"

namespace bor {

QString versione() {
    return QStringLiteral(BOR_VERSIONE);
}

} // namespace bor
