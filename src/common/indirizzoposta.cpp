#include "common/indirizzoposta.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace bor {

bool indirizzoValido(QStringView indirizzo) {
    constexpr qsizetype massimo = 254;
    static const QRegularExpression forma(QRegularExpression::anchoredPattern(
        u"[A-Za-z0-9!#$%&'*+/=?^_`{|}~-]+(\\.[A-Za-z0-9!#$%&'*+/=?^_`{|}~-]+)*"
        u"@[A-Za-z0-9]([A-Za-z0-9-]*[A-Za-z0-9])?"
        u"(\\.[A-Za-z0-9]([A-Za-z0-9-]*[A-Za-z0-9])?)*"_s));
    return indirizzo.size() <= massimo && forma.match(indirizzo.toString()).hasMatch();
}

} // namespace bor
