#include "register/righeelenco.h"

#include "archive/gnr.h"
#include "common/numeri.h"

#include <algorithm>
#include <numeric>

namespace bor {

namespace {

/// The whole cell is a number.
bool numerica(QStringView cella) {
    if (cella.startsWith(u'-'))
        cella = cella.sliced(1);
    return !cella.isEmpty() && cella.count(u'.') <= 1 && cella != u"." &&
           std::ranges::all_of(cella, [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.'; });
}

struct ChiaveOrdine {
    bool testuale = false;
    double numero = 0;
    QString testo;

    explicit ChiaveOrdine(const QString& cella) : testuale(!numerica(cella)) {
        if (testuale)
            testo = cella;
        else
            numero = valore(cella);
    }

    bool operator<(const ChiaveOrdine& altra) const {
        if (testuale != altra.testuale)
            return altra.testuale;
        return testuale ? testo < altra.testo : numero < altra.numero;
    }
};

int coloreDa(double valore) {
    return valore >= 0 && valore <= 0xFFFFFF ? static_cast<int>(valore) : 0xFFFFFF;
}

} // namespace

int coloreRiga(const Gnr& gnr, int riga) {
    // Rows count from 1 on screen, so the first one is odd.
    return coloreDa(riga % 2 == 1 ? gnr.colorelista1 : gnr.colorelista2);
}

std::vector<std::size_t> ordineCelle(std::size_t quante, const std::function<QString(int)>& cella) {
    std::vector<ChiaveOrdine> chiavi;
    chiavi.reserve(quante);
    for (std::size_t i = 0; i < quante; ++i)
        chiavi.emplace_back(cella(static_cast<int>(i)));
    std::vector<std::size_t> ordine(quante);
    std::iota(ordine.begin(), ordine.end(), std::size_t{0});
    std::ranges::stable_sort(ordine, [&](std::size_t a, std::size_t b) { return chiavi[a] < chiavi[b]; });
    return ordine;
}

} // namespace bor
