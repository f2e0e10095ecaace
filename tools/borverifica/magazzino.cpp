#include "borverifica/verifica.h"
#include "common/posti.h"

#include "archive/impostazioni.h"
#include "common/numeri.h"

#include <cmath>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace bor::verifica {

namespace {

constexpr double tolleranza = 0.005;

bool uguali(double a, double b) {
    return std::fabs(a - b) < tolleranza;
}

/// What the rows of an article say of it.
struct Mosso {
    bool conRighe = false;
    bool conCarico = false; ///< a row of no document has added to the stock
    double giacenza = 0;
    double quantita = 0;
    double valore = 0;
};

/// What a document's row has moved in its article: on its way in by the rounded value; a deleted one once
/// more, back, by the value without rounding, and on a credit note always by its absolute quantity.
void contaVendita(Mosso& mosso, const Mag& mag, const Valuta& valuta) {
    const bool nota = mag.riferimento.text().startsWith(u"NC "_s);
    const double verso = nota ? -1 : 1;
    mosso.conRighe = true;
    mosso.quantita += mag.quantita;
    mosso.giacenza -= mag.quantita;
    mosso.valore += verso * valuta.arrotonda(mag.valore * (verso * mag.quantita));
    if (mag.cancellato == 1) {
        const double tolta = nota ? -std::fabs(mag.quantita) : double{mag.quantita};
        mosso.quantita -= tolta;
        mosso.giacenza += tolta;
        mosso.valore -= tolta * mag.valore;
    }
}

/// A row that no document made: a load, or another module's way out.
void contaAltra(Mosso& mosso, const Mag& mag) {
    if (mag.cancellato == 1)
        return;
    const bool uscita = mag.segnomag == Mag::uscita;
    mosso.conCarico = mosso.conCarico || !uscita;
    mosso.giacenza += uscita ? -mag.quantita : double{mag.quantita};
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

/// Adds up the rows by their article, and tells of those that lack theirs or their document.
std::vector<Mosso> leggiRighe(const Archivio& archivio, int articoli, Discordanze& trovate) {
    const std::unordered_set<double> documenti = documentiVivi(archivio);
    const Valuta valuta = leggiValuta(archivio);
    std::vector<Mosso> mossi(postoDaZero(articoli + 1));
    archivio.mag.scorri(1, inUso(archivio, Conta::Mag, archivio.mag), [&](int n, const Mag& mag) {
        const bool vendita = collegato(mag.stampmag);
        const bool esiste = mag.articolo >= 1 && mag.articolo <= articoli;
        if (esiste && vendita)
            contaVendita(elemento(mossi, int{mag.articolo}), mag, valuta);
        else if (esiste && mag.stampmag == 0.0)
            contaAltra(elemento(mossi, int{mag.articolo}), mag);
        if (!vendita || mag.cancellato == 1)
            return true;
        const QString dove = u"riga di magazzino %1 (%2)"_s.arg(n).arg(puliscitesto(mag.riferimento.text()));
        if (!esiste)
            trovate.append({Gravita::Errore, dove, u"l'articolo %1 non c'è"_s.arg(mag.articolo),
                            Rimedio::ControllaRigaMagazzino});
        if (!documenti.contains(mag.stampmag))
            trovate.append({Gravita::Avviso, dove, u"il suo documento non c'è o è stato eliminato"_s,
                            Rimedio::ControllaRigaMagazzino});
        return true;
    });
    return mossi;
}

void confronta(const Art& art, const Mosso& mosso, Discordanze& trovate) {
    const QString dove = u"articolo %1"_s.arg(puliscitesto(art.codice.text()));
    const auto aggiungi = [&](Gravita seNota, const QString& motivo) {
        trovate.append({mosso.conCarico ? seNota : Gravita::Informazione, dove, motivo,
                        mosso.conCarico ? Rimedio::ControllaArticolo : Rimedio::Nessuno});
    };
    const bool stessaQuantita = uguali(art.venduto, mosso.quantita);
    if (!stessaQuantita || !uguali(art.venduto2, mosso.valore))
        aggiungi(stessaQuantita ? Gravita::Avviso : Gravita::Errore,
                 u"venduto %1 per %2, le righe di magazzino dei documenti dicono %3 per %4"_s.arg(
                     testoDecimale(art.venduto), testoItaliano(art.venduto2, 2),
                     testoDecimale(mosso.quantita), testoItaliano(mosso.valore, 2)));
    if (!uguali(art.giacenza, mosso.giacenza))
        aggiungi(Gravita::Errore, u"giacenza %1, le righe di magazzino dicono %2"_s.arg(
                                      testoDecimale(art.giacenza), testoDecimale(mosso.giacenza)));
}

} // namespace

Discordanze verificaMagazzino(const Archivio& archivio) {
    Discordanze trovate;
    const int articoli = inUso(archivio, Conta::Art, archivio.art);
    const std::vector<Mosso> mossi = leggiRighe(archivio, articoli, trovate);
    archivio.art.scorri(1, articoli, [&](int n, const Art& art) {
        const Mosso& suo = elemento(mossi, n);
        if (suo.conRighe || suo.conCarico)
            confronta(art, suo, trovate);
        return true;
    });
    return trovate;
}

} // namespace bor::verifica
