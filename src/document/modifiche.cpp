#include "document/modifiche.h"

#include "document/documento.h"

#include <cstring>

namespace bor {

namespace {

/// A visit to the lines alone asks for a lines file.
bool stessiRecord(CoppiaFte a, CoppiaFte b) {
    a.fte.nfile = 0.0F;
    b.fte.nfile = 0.0F;
    return std::memcmp(&a.fte, &b.fte, sizeof(Fte)) == 0 && std::memcmp(&a.f2e, &b.f2e, sizeof(F2e)) == 0;
}

} // namespace

bool modificato(const Documento& ora, const Documento& prima) {
    return ora.recordcliente != prima.recordcliente || ora.recordfpa != prima.recordfpa ||
           ora.testata != prima.testata || ora.estremi != prima.estremi || ora.scadenze != prima.scadenze ||
           ora.prospetti != prima.prospetti || ora.ddd != prima.ddd || ora.dddp != prima.dddp ||
           !stessiRecord(ora.coppia, prima.coppia);
}

} // namespace bor
