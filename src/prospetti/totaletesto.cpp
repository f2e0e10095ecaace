#include "prospetti/totaletesto.h"

#include "common/numeri.h"

namespace bor {

QString totaletesto(const Valuta& valuta, double x) {
    const double soglia = valuta.euro ? 0.005 : 0.5;
    return testoItaliano(x > -soglia && x < soglia ? 0.0 : x, valuta.euro ? 2 : 0);
}

} // namespace bor
