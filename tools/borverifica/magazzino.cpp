#include "borverifica/verifica.h"

#include "archive/impostazioni.h"
#include "common/numeri.h"

#include <cmath>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace bor::verifica {

namespace {

constexpr double tolleranza = 0.005;

struct Venduto {
    bool conRighe = false;
    double quantita = 0;
    double valore = 0;
};

/// What a row has moved in its article: on its way in by the rounded value; a deleted one once more, back, by
/// the value without rounding, and on a credit note always by its absolute quantity.
void conta(Venduto& venduto, const Mag& mag, const Valuta& valuta) {
    const bool nota = mag.riferimento.text().startsWith(u"NC "_s);
    const double verso = nota ? -1 : 1;
    venduto.conRighe = true;
    venduto.quantita += mag.quantita;
    venduto.valore += verso * valuta.arrotonda(mag.valore * (verso * mag.quantita));
    if (mag.cancellato == 1) {
        const double tolta = nota ? -std::fabs(mag.quantita) : double{mag.quantita};
        venduto.quantita -= tolta;
        venduto.valore -= tolta * mag.valore;
    }
}

std::unordered_set<double> documentiVivi(const Archivio& archivio) {
    std::unordered_set<double> stamps;
    archivio.fte.scorri(1, inUso(archivio, Conta::Fte, archivio.fte), [&](int, const Fte& fte) {
        if (fte.annullata != 1 && collegato(fte.stamp))
            stamps.insert(fte.stamp);
        return true;
    });
    return stamps;
}

} // namespace

Discordanze verificaMagazzino(const Archivio& archivio) {
    Discordanze trovate;
    const std::unordered_set<double> documenti = documentiVivi(archivio);
    const Valuta valuta = leggiValuta(archivio);
    const int articoli = inUso(archivio, Conta::Art, archivio.art);
    std::vector<Venduto> venduti(static_cast<std::size_t>(articoli) + 1);
    archivio.mag.scorri(1, inUso(archivio, Conta::Mag, archivio.mag), [&](int n, const Mag& mag) {
        if (!collegato(mag.stampmag))
            return true;
        const QString dove = u"riga di magazzino %1 (%2)"_s.arg(n).arg(puliscitesto(mag.riferimento.text()));
        const bool esiste = mag.articolo >= 1 && mag.articolo <= articoli;
        if (esiste)
            conta(venduti[static_cast<std::size_t>(mag.articolo)], mag, valuta);
        if (mag.cancellato == 1)
            return true;
        if (!esiste)
            trovate.append({Gravita::Errore, dove, u"l'articolo %1 non c'è"_s.arg(mag.articolo)});
        if (!documenti.contains(mag.stampmag))
            trovate.append({Gravita::Avviso, dove, u"il suo documento non c'è o è stato eliminato"_s});
        return true;
    });
    archivio.art.scorri(1, articoli, [&](int n, const Art& art) {
        const Venduto& suo = venduti[static_cast<std::size_t>(n)];
        const bool uguale = std::fabs(art.venduto - suo.quantita) < tolleranza &&
                            std::fabs(art.venduto2 - suo.valore) < tolleranza;
        if (suo.conRighe && !uguale)
            trovate.append({Gravita::Informazione, u"articolo %1"_s.arg(puliscitesto(art.codice.text())),
                            u"venduto %1 per %2, le righe di magazzino dei documenti dicono %3 per %4"_s.arg(
                                testoDecimale(art.venduto), testoItaliano(art.venduto2, 2),
                                testoDecimale(suo.quantita), testoItaliano(suo.valore, 2))});
        return true;
    });
    return trovate;
}

} // namespace bor::verifica
