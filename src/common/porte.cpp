#include "common/navigatore.h"
#include "common/operatore.h"
#include "common/orologio.h"
#include "common/sistema.h"
#include "common/stampante.h"

namespace bor {

Operatore::~Operatore() = default;
Orologio::~Orologio() = default;
Sistema::~Sistema() = default;
Stampante::~Stampante() = default;
Navigatore::~Navigatore() = default;

} // namespace bor
