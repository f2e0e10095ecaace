// Whether balances and stock are the sum of what is on file.
#pragma once

#include "integrita/turno.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

namespace bor {

/// The accounts agree with the journal, and the stock with the live rows.
inline void verificaSaldi(const Archivio& a) {
    std::map<double, std::pair<double, double>> conti;
    for (int n = 1; n <= a.leggiTot(Conta::Gio).numero; ++n) {
        const Gio gio = a.gio.leggi(n);
        for (const VoceGio& v : gio.voce) {
            auto& [dare, avere] = conti[v.conto.text().toDouble()];
            (v.segno == 0 ? dare : avere) += v.importo;
            // A deleted movement comes out of the side across.
            if (gio.cancellato == 1 && v.importo > 0)
                (v.segno == 1 ? dare : avere) -= v.importo;
        }
    }
    for (int n = 1; n <= a.leggiTot(Conta::Con).numero; ++n) {
        const Con con = a.con.leggi(n);
        const auto [dare, avere] = conti[con.codice.text().toDouble()];
        EXPECT_NEAR(con.progressivodare, dare, 1e-6) << n;
        EXPECT_NEAR(con.progressivoavere, avere, 1e-6) << n;
    }
    std::map<int, double> uscite;
    for (int n = 1; n <= a.leggiTot(Conta::Mag).numero; ++n) {
        const Mag mag = a.mag.leggi(n);
        uscite[mag.articolo] += mag.cancellato == 1 ? 0.0 : double{mag.quantita};
    }
    for (int n = 1; n <= a.leggiTot(Conta::Art).numero; ++n)
        EXPECT_NEAR(a.art.leggi(n).giacenza, giacenzaIniziale - uscite[n], 1e-9) << n;
}

} // namespace bor
