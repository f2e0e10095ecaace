#include "output/pagina.h"

#include "output/foglio.h"

#include <algorithm>
#include <cmath>

namespace bor {

namespace {

constexpr double passo = 4;      ///< millimetres from a line to the next
constexpr int ultimaLinea = 499; ///< the last of 500 goods lines has never been printed

/// The y of an edge of the body stands where other layout rows have their x.
double bordo(const Layout& layout, int riga) {
    return layout.voce(riga).x();
}

/// An empty text writes its record too: the reader of the report counts on every item and cell.
void scrivi(const VoceLayout& voce, double y, const QString& testo, bool aDestra, Foglio& foglio) {
    if (voce.x() <= 0)
        return;
    if (aDestra)
        foglio.testoADestra(voce.x(), y, testo, voce.carattere, voce.colore);
    else
        foglio.testo(voce.x(), y, testo, voce.carattere, voce.colore);
}

void disegnaGruppo(const Layout& layout, const GruppoVoci& gruppo, const QStringList& testi, Foglio& foglio) {
    for (int i = 0; i < gruppo.quante; ++i) {
        const VoceLayout& voce = layout.voce(gruppo.prima + i);
        if (voce.y() <= 0)
            continue;
        double y = voce.y();
        qsizetype t = i;
        do {
            scrivi(voce, y, testi.value(t), gruppo.aDestra(i), foglio);
            y += passo;
            t += gruppo.quante;
        } while (t < testi.size());
    }
}

void disegnaCorpo(const Layout& layout, const Pianta& pianta, const DatiStampa& dati, int pagina,
                  Foglio& foglio) {
    const int perPagina = righePerPagina(layout, pianta);
    for (int r = 1; r <= perPagina; ++r) {
        const int linea = r + perPagina * (pagina - 1);
        if (linea > std::min(pianta.linee, ultimaLinea))
            break;
        const double y = bordo(layout, pianta.rigaSopra) + passo * (r - 1);
        for (const ColonnaCorpo& colonna : pianta.colonne)
            scrivi(layout.voce(colonna.riga), y, colonna.testo(dati, linea), colonna.lato == Lato::Destra,
                   foglio);
    }
}

} // namespace

int righePerPagina(const Layout& layout, const Pianta& pianta) {
    const double altezza =
        std::max(std::fabs(bordo(layout, pianta.rigaSotto) - bordo(layout, pianta.rigaSopra)), 1.0);
    return std::max(static_cast<int>(altezza / passo), 1);
}

int pagine(const Layout& layout, const Pianta& pianta, const DatiStampa& dati) {
    int ultima = pianta.linee;
    while (ultima > 0 && pianta.descrizione(dati, ultima).isEmpty())
        --ultima;
    const int perPagina = righePerPagina(layout, pianta);
    return (ultima + perPagina - 1) / perPagina;
}

void disegnaPagine(const Layout& layout, Modello modello, const Pianta& pianta, const DatiStampa& dati,
                   Foglio& foglio) {
    std::vector<QStringList> testi;
    for (const GruppoVoci& gruppo : pianta.voci)
        testi.push_back(gruppo.testi(dati));
    const int quante = pagine(layout, pianta, dati);
    for (int pagina = 1; pagina <= quante; ++pagina) {
        if (layout.modello)
            disegnamodello(modello, dati.documento.notaCredito(), foglio);
        for (std::size_t i = 0; i < testi.size(); ++i) {
            if (pianta.voci[i].pagine == SuPagine::Tutte || pagina == quante)
                disegnaGruppo(layout, pianta.voci[i], testi[i], foglio);
        }
        disegnaCorpo(layout, pianta, dati, pagina, foglio);
        foglio.finePagina();
    }
}

} // namespace bor
