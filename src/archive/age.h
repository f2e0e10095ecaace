// A sales agent; kept by another module of the suite, read here for his commission rate.
#pragma once

#include "archive/campi.h"

namespace bor {

struct Age {
    Text<402> agenteanag; ///< name and addresses, as the first fifteen fields of a customer
    Text<40> provvigione; ///< commission rate as text
    Text<36> agex1;       ///< `agex…`: of other modules
    Text<4> codice;       ///< digits, compared by value
    Text<116> agex2;
    Intero agex3;
};
static_assert(sizeof(Age) == 600 && disposizioneDiFile<Age>);
BOR_POSTO(Age, provvigione, 402);
BOR_POSTO(Age, codice, 478);
BOR_POSTO(Age, agex3, 598);

} // namespace bor
