#include "output/pagina.h"

#include "common/numeri.h"
#include "common/testo.h"
#include "output/foglio.h"

#include <algorithm>
#include <cmath>

namespace bor {

namespace {

constexpr double passo = 4; ///< millimetres from a line to the next
constexpr int ultimaLinea = 499;

/// The first three digits of a layout row: the y of an edge of the body.
double bordo(const Layout& layout, std::size_t riga) {
    return layout.voci[riga].x();
}

void scrivi(const VoceLayout& voce, double y, const TestoVoce& testo, Foglio& foglio) {
    if (testo.testo.isEmpty() || voce.x() <= 0 || y <= 0)
        return;
    if (testo.adestra)
        foglio.testoADestra(voce.x(), y, testo.testo, voce.carattere, voce.colore);
    else
        foglio.testo(voce.x(), y, testo.testo, voce.carattere, voce.colore);
}

void disegnaVoci(const Layout& layout, const Pianta& pianta, const ContenutoPagina& contenuto,
                 bool ultimaPagina, Foglio& foglio) {
    for (int i = 1; i <= pianta.voci; ++i) {
        if (!ultimaPagina && i >= pianta.primaUltima && i <= pianta.ultimaUltima)
            continue;
        const VoceLayout& voce = layout.voci[static_cast<std::size_t>(i)];
        const int iva = i - pianta.primaRigaIva;
        if (iva < 0 || iva >= 7) {
            scrivi(voce, voce.y(), contenuto.voce(i), foglio);
            continue;
        }
        if (voce.y() <= 0)
            continue;
        double y = voce.y();
        for (const auto& riga : contenuto.righeIva) {
            scrivi(voce, y, riga[static_cast<std::size_t>(iva)], foglio);
            y += passo;
        }
    }
}

void disegnaCorpo(const Layout& layout, const Pianta& pianta, const ContenutoPagina& contenuto, int pagina,
                  Foglio& foglio) {
    const int perPagina = righePerPagina(layout, pianta);
    for (int r = 1; r <= perPagina; ++r) {
        const int linea = r + perPagina * (pagina - 1);
        if (linea > std::min(pianta.righe, ultimaLinea))
            break;
        const double y = bordo(layout, pianta.rigaSopra) + passo * (r - 1);
        for (int j = 1; j <= pianta.colonne; ++j)
            scrivi(layout.voci[pianta.rigaSopra + 1 + static_cast<std::size_t>(j)], y,
                   contenuto.cella(linea, j), foglio);
    }
}

} // namespace

int righePerPagina(const Layout& layout, const Pianta& pianta) {
    const double altezza =
        std::max(std::fabs(bordo(layout, pianta.rigaSopra + 1) - bordo(layout, pianta.rigaSopra)), 1.0);
    return std::max(static_cast<int>(altezza / passo), 1);
}

int pagine(const Layout& layout, const Pianta& pianta, const ContenutoPagina& contenuto) {
    int ultima = pianta.righe;
    while (ultima > 0 && !contenuto.usata(ultima))
        --ultima;
    const int perPagina = righePerPagina(layout, pianta);
    return (ultima + perPagina - 1) / perPagina;
}

void disegnaPagine(const Layout& layout, Modello modello, const Pianta& pianta,
                   const ContenutoPagina& contenuto, int tipo, Foglio& foglio) {
    const int quante = pagine(layout, pianta, contenuto);
    for (int pagina = 1; pagina <= quante; ++pagina) {
        if (layout.modello)
            disegnamodello(modello, tipo, foglio);
        disegnaVoci(layout, pianta, contenuto, pagina == quante, foglio);
        disegnaCorpo(layout, pianta, contenuto, pagina, foglio);
        foglio.finePagina();
    }
}

} // namespace bor
