#include "archive/nomiclienti.h"

#include "archive/archivio.h"
#include "common/posti.h"

#include <algorithm>

namespace bor {

std::vector<QString> nomiClienti(const Archivio& archivio, int ultimo) {
    std::vector<QString> nomi(postoDaZero(std::max(ultimo, 0) + 1));
    const auto suFile = static_cast<int>(archivio.cli.lunghezza() / qint64{sizeof(Cli)} + 1);
    archivio.cli.scorri(1, std::min(ultimo, suFile), [&nomi](int n, const Cli& cli) {
        elemento(nomi, n) = puliscitesto(cli.sede.ragione1.text());
        return true;
    });
    return nomi;
}

} // namespace bor
