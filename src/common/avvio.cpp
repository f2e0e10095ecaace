#include "common/avvio.h"

#include "common/numeri.h"
#include "common/testo.h"

namespace bor {

namespace {

constexpr QStringView gettone = u"$$qv#m";
constexpr Tratto codice{gettone.size() + 1, 3};
constexpr QStringView gettoneVecchio = u"$$qx#m";

} // namespace

Avvio controllaAvvio(QStringView rigaComando) {
    if (rigaComando.startsWith(gettoneVecchio))
        return {EsitoAvvio::SuiteVecchia, 0};
    if (!rigaComando.startsWith(gettone))
        return {};
    return {EsitoAvvio::Valido, valore(pezzo(rigaComando, codice))};
}

QString rigaAvvio(int codiceazienda) {
    return gettone.toString() + zeriDavanti(QString::number(codiceazienda), 3) + u'0';
}

} // namespace bor
