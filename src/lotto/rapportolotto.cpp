#include "lotto/rapportolotto.h"

#include "common/posti.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

int RapportoLotto::quante(EsitoRiga esito) const {
    return static_cast<int>(std::ranges::count(righe, esito, &RigaLotto::esito));
}

QString RapportoLotto::conto() const {
    const auto parte = [this](EsitoRiga esito, const QString& uno, const QString& molti) {
        const int n = quante(esito);
        return n == 0 ? QStringList() : QStringList{QString::number(n) + u' ' + (n == 1 ? uno : molti)};
    };
    const QStringList parti = parte(EsitoRiga::Fatta, u"fatto"_s, u"fatti"_s) +
                              parte(EsitoRiga::ConRilievi, u"con rilievi"_s, u"con rilievi"_s) +
                              parte(EsitoRiga::NonFatta, u"non fatto"_s, u"non fatti"_s) +
                              (interrotto ? QStringList{u"interrotto dall'operatore"_s} : QStringList());
    return parti.isEmpty() ? u"nessun documento"_s : parti.join(u", "_s);
}

QString nomeEsito(EsitoRiga esito) {
    switch (esito) {
    case EsitoRiga::Attesa:
        return u"in attesa"_s;
    case EsitoRiga::Fatta:
        return u"fatto"_s;
    case EsitoRiga::ConRilievi:
        return u"rilievi"_s;
    case EsitoRiga::NonFatta:
        return u"non fatto"_s;
    }
    return {};
}

} // namespace bor
