#include "posting/scarico.h"

#include "archive/contesto.h"
#include "common/posti.h"

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

Mag rigaMagazzino(const Documento& documento, const Riga& riga, double prezzo) {
    Mag mag = vuoto<Mag>();
    mag.data.set(annoMeseGiorno(documento.estremi.datareg));
    mag.descrizione.set(u"Scarico per vendita");
    mag.causale = 1;
    mag.riferimento.set((documento.notaCredito() ? u"NC "_s : u"FT "_s) + documento.estremi.numero);
    mag.stampmag = documento.coppia.fte.stamp;
    mag.articolo = breve(riga.recart);
    mag.clientemag = breve(documento.recordcliente);
    mag.quantita = documento.notaCredito() ? -riga.quantita : riga.quantita;
    mag.valore = prezzo;
    mag.segnomag = Mag::uscita;
    return mag;
}

/// Moves the stock of an article that exists; figures that are no numbers move nothing.
void muovi(Raffica& raffica, int articolo, double quantita, double valore) {
    if (articolo < 1 || articolo > raffica.leggiTot(Conta::Art).numero || !std::isfinite(quantita) ||
        !std::isfinite(valore))
        return;
    RecordFile<Art>& art = raffica.archivio().art;
    Art record = raffica.leggi(art, articolo);
    record.giacenza -= quantita;
    record.venduto += quantita;
    record.venduto2 += valore;
    raffica.scrivi(art, articolo, record);
}

/// Takes one row back: the value by quantity and price without rounding, unlike the way in. The suite keeps
/// the two apart.
void togli(Raffica& raffica, int n, Mag mag, bool nota) {
    mag.cancellato = 1;
    raffica.scrivi(raffica.archivio().mag, n, mag);
    const double quantita = nota ? -std::fabs(mag.quantita) : double{mag.quantita};
    muovi(raffica, mag.articolo, -quantita, -quantita * mag.valore);
}

} // namespace

void togliscarico(const Documento& documento, Raffica& raffica) {
    raffica.scorri(raffica.archivio().mag, 1, raffica.leggiTot(Conta::Mag).numero,
                   [&](int n, const Mag& mag) {
                       // A row that an earlier save took back stays taken back.
                       if (mag.stampmag == documento.coppia.fte.stamp && mag.cancellato != 1)
                           togli(raffica, n, mag, documento.notaCredito());
                       return true;
                   });
}

void mettiscarico(const Documento& documento, const Contesto& contesto, Raffica& raffica) {
    const Valuta valuta = contesto.valuta();
    Tot contatore = raffica.leggiTot(Conta::Mag);
    for (const Riga& riga : documento.ddd) {
        if (riga.recart < 1 || !riga.codice2.isEmpty())
            continue;
        const double p = prezzoNetto(riga, documento.scorporo, contesto);
        const double verso = documento.notaCredito() ? -1 : 1;
        const int n = raffica.prossimo(contatore);
        if (n == 0)
            return;
        muovi(raffica, riga.recart, verso * riga.quantita, verso * valuta.arrotonda(p * riga.quantita));
        raffica.scrivi(raffica.archivio().mag, n, rigaMagazzino(documento, riga, p));
        contatore.numero = breve(n);
    }
    contatore.modificato = 1;
    raffica.scriviTot(Conta::Mag, contatore);
}

} // namespace bor
