#include "posting/scarico.h"

#include "archive/contesto.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Net unit price: the discounts one after the other, then the tax out of prices that include it.
double prezzoNetto(const Riga& riga, bool scorporo, const Contesto& contesto) {
    const Valuta valuta = contesto.valuta();
    double p = riga.prezzo;
    p -= valuta.percentuale(p, riga.sconto1);
    p -= valuta.percentuale(p, riga.sconto2);
    if (scorporo && !riga.iva.oltreTassati())
        p = valuta.arrotondaprezzo(p / ((contesto.tabelle.aliquota(riga.iva.numero()) + 100) / 100));
    return p;
}

void muovi(Art& articolo, double quantita, double valore) {
    articolo.giacenza -= quantita;
    articolo.venduto += quantita;
    articolo.venduto2 += valore;
}

Mag rigaMagazzino(const Documento& documento, const Riga& riga, double prezzo) {
    Mag mag = vuoto<Mag>();
    mag.data.set(annoMeseGiorno(documento.estremi.datareg));
    mag.descrizione.set(u"Scarico per vendita");
    mag.causale = 1;
    mag.riferimento.set((documento.notaCredito() ? u"NC "_s : u"FT "_s) + documento.estremi.numero);
    mag.stampmag = documento.coppia.fte.stamp;
    mag.articolo = static_cast<std::int16_t>(riga.recart);
    mag.clientemag = static_cast<std::int16_t>(documento.recordcliente);
    mag.quantita = documento.notaCredito() ? -riga.quantita : riga.quantita;
    mag.valore = prezzo;
    mag.segnomag = 1;
    return mag;
}

/// Takes one row back: the value by quantity and price without rounding, unlike the way in. The suite keeps
/// the two apart.
bool togli(Archivio& archivio, int n, Mag mag, bool nota) {
    mag.cancellato = 1;
    if (!archivio.mag.scrivi(n, mag))
        return false;
    Art articolo = archivio.art.leggi(mag.articolo);
    const double quantita = nota ? -std::fabs(mag.quantita) : double{mag.quantita};
    muovi(articolo, -quantita, -quantita * mag.valore);
    return mag.articolo < 1 || archivio.art.scrivi(mag.articolo, articolo);
}

} // namespace

bool togliscarico(const Documento& documento, const Contesto& contesto) {
    Archivio& archivio = contesto.archivio;
    bool riuscito = true;
    archivio.mag.scorri(1, archivio.leggiTot(Conta::Mag).numero, [&](int n, const Mag& mag) {
        // A row that an earlier save took back stays taken back.
        if (mag.stampmag == documento.coppia.fte.stamp && mag.cancellato != 1)
            riuscito = togli(archivio, n, mag, documento.notaCredito());
        return riuscito;
    });
    return riuscito;
}

bool mettiscarico(const Documento& documento, const Contesto& contesto) {
    Archivio& archivio = contesto.archivio;
    const Valuta valuta = contesto.valuta();
    const BloccoByte blocco = archivio.bloccaContatori();
    Tot contatore = archivio.leggiTot(Conta::Mag);
    for (const Riga& riga : documento.ddd) {
        if (riga.recart < 1 || !riga.codice2.isEmpty())
            continue;
        const double p = prezzoNetto(riga, documento.scorporo, contesto);
        const double verso = documento.notaCredito() ? -1 : 1;
        const int n = Archivio::prossimo(contatore);
        Art articolo = archivio.art.leggi(riga.recart);
        muovi(articolo, verso * riga.quantita, verso * valuta.arrotonda(p * riga.quantita));
        if (n == 0 || !archivio.art.scrivi(riga.recart, articolo) ||
            !archivio.mag.scrivi(n, rigaMagazzino(documento, riga, p)))
            return false;
        contatore.numero = static_cast<std::int16_t>(n);
    }
    contatore.modificato = 1;
    return archivio.scriviTot(Conta::Mag, contatore);
}

} // namespace bor
