// The page of invoices and credit notes.
#include "archive/tabelle.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "output/voci.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

using enum Lato;
using enum SuPagine;

QStringList trasporto(const DatiStampa& dati) {
    const Trasporto& t = dati.documento.testata.trasporto;
    const auto& righe = dati.tabelle.vettori;
    return {righe[t.causale + 1].causale.trimmed(), t.colli, t.peso, righe[t.aspetto + 1].aspetto.trimmed()};
}

QStringList vettore(const DatiStampa& dati) {
    const Trasporto& t = dati.documento.testata.trasporto;
    const auto& linee = dati.documento.testata.cliente.vettore;
    QStringList testi = {nomeMezzo[t.spedizione].toString()};
    testi.append(QStringList(linee.begin(), linee.end()));
    return testi;
}

QStringList consegna(const DatiStampa& dati) {
    const Trasporto& t = dati.documento.testata.trasporto;
    return {t.inizio, t.ora, t.ddt, t.ordine};
}

QStringList importi(const DatiStampa& dati) {
    const Totali& t = dati.totali;
    return dati.importi({t.somma1, t.somma2, t.somma3, t.totaledoc});
}

QStringList ritenuta(const DatiStampa& dati) {
    double base = 0;
    for (const Ritenuta& r : dati.documento.prospetti.ritenute)
        base += valore(r.raimpo);
    return dati.importi({base, dati.totali.ritenuta, dati.totali.nettodoc});
}

QStringList pezzi(const DatiStampa& dati) {
    return {numerotesto(testoDecimale(dati.pezzi))};
}

QStringList copiaInterna(const DatiStampa& dati) {
    return {dati.documento.fatturaPa() ? u"COPIA DOCUMENTO AD USO INTERNO"_s : QString()};
}

QStringList titolo(const DatiStampa& dati) {
    switch (dati.documento.integrata) {
    case Integrata::ReverseCharge:
        return {u"Fattura integrata operazione reverse charge"_s};
    case Integrata::Intracomunitaria:
        return {u"Fattura integrata operazione intracomunitaria"_s};
    case Integrata::No:
        break;
    }
    return {dati.documento.notaCredito() ? u"NOTA CREDITO"_s : u"FATTURA"_s};
}

QStringList primeRate(const DatiStampa& dati) {
    return voci::rate(dati, 1, 4);
}

QStringList altreRate(const DatiStampa& dati) {
    return voci::rate(dati, 5, 6);
}

constexpr std::array gruppi = voci::conComuni(std::array{
    GruppoVoci{36, 4, Tutte, Sinistra, trasporto},
    GruppoVoci{40, 2, Tutte, Sinistra, voci::bancaCliente},
    GruppoVoci{42, 4, Tutte, Sinistra, vettore},
    GruppoVoci{46, 4, Tutte, Sinistra, consegna},
    GruppoVoci{50, 1, Tutte, Sinistra, voci::pagamento},
    GruppoVoci{51, 1, Tutte, Sinistra, voci::bancaPagamento},
    GruppoVoci{52, 8, Ultima, Coppie, primeRate},
    GruppoVoci{60, 2, Ultima, Sinistra, voci::ivaCodici},
    GruppoVoci{62, 4, Ultima, Destra, voci::ivaImporti},
    GruppoVoci{66, 1, Ultima, Sinistra, voci::ivaRiferimenti},
    GruppoVoci{67, 4, Ultima, Destra, importi},
    GruppoVoci{71, 3, Ultima, Destra, ritenuta},
    GruppoVoci{74, 1, Ultima, Destra, pezzi},
    GruppoVoci{75, 4, Ultima, Coppie, altreRate},
    GruppoVoci{79, 1, Ultima, Sinistra, voci::provvigione},
    GruppoVoci{80, 1, Ultima, Sinistra, voci::termineIva},
    GruppoVoci{81, 1, Ultima, Sinistra, copiaInterna},
    GruppoVoci{82, 1, Ultima, Sinistra, titolo},
    GruppoVoci{83, 2, Tutte, Sinistra, voci::note},
});

// The widths of a line's texts, which the electronic invoice keeps to as well.
constexpr qsizetype caratteriCodice = 15;
constexpr qsizetype caratteriDescrizione = 60;
constexpr qsizetype caratteriUnita = 2;

const Riga& riga(const DatiStampa& dati, int linea) {
    return elemento(dati.documento.ddd, linea - 1);
}

QString codice(const DatiStampa& dati, int linea) {
    const Riga& r = riga(dati, linea);
    return r.recart >= 1 ? puliscitesto(r.codice.left(caratteriCodice)) : QString();
}

QString descrizione(const DatiStampa& dati, int linea) {
    return puliscitesto(riga(dati, linea).descrizione.left(caratteriDescrizione));
}

QString quantita(const DatiStampa& dati, int linea) {
    const double q = riga(dati, linea).quantita;
    return q == Riga::soloPrezzo ? QString() : numerotesto(testoDecimale(q));
}

QString unita(const DatiStampa& dati, int linea) {
    return puliscitesto(riga(dati, linea).um.left(caratteriUnita));
}

QString prezzo(const DatiStampa& dati, int linea) {
    return dati.valuta.prezzotesto(riga(dati, linea).prezzo);
}

double importoLordo(const DatiStampa& dati, const Riga& r) {
    const bool conQuantita = r.quantita != 0.0 && r.quantita != Riga::soloPrezzo;
    return dati.valuta.arrotonda(conQuantita ? r.prezzo * r.quantita : r.prezzo);
}

QString lordo(const DatiStampa& dati, int linea) {
    return dati.importo(importoLordo(dati, riga(dati, linea)));
}

/// Both discounts are worked out on the gross amount, unlike those of the totals. The printed page has always
/// shown them so.
QString netto(const DatiStampa& dati, int linea) {
    const Riga& r = riga(dati, linea);
    const double importo = importoLordo(dati, r);
    const double sconti =
        dati.valuta.percentuale(importo, r.sconto1) + dati.valuta.percentuale(importo, r.sconto2);
    return dati.importo(dati.valuta.arrotonda(importo - sconti));
}

QString sconti(const DatiStampa& dati, int linea) {
    const Riga& r = riga(dati, linea);
    QStringList testi;
    for (const int sconto : {r.sconto1, r.sconto2}) {
        if (sconto != 0)
            testi.append(QString::number(sconto));
    }
    return testi.join(u'+');
}

QString aliquota(const DatiStampa& dati, int linea) {
    const CodiceIva iva = riga(dati, linea).iva;
    return iva.tassato() ? dati.tabelle.aliquote[iva.riga()].aliquota.trimmed() : QString();
}

constexpr std::array colonne = {
    ColonnaCorpo{87, Sinistra, codice}, ColonnaCorpo{88, Sinistra, descrizione},
    ColonnaCorpo{89, Destra, quantita}, ColonnaCorpo{90, Sinistra, unita},
    ColonnaCorpo{91, Destra, prezzo},   ColonnaCorpo{92, Destra, lordo},
    ColonnaCorpo{93, Destra, netto},    ColonnaCorpo{94, Sinistra, sconti},
    ColonnaCorpo{95, Destra, aliquota},
};

} // namespace

const Pianta& piantaFattura() {
    static constexpr Pianta pianta{.voci = gruppi,
                                   .rigaSopra = 85,
                                   .rigaSotto = 86,
                                   .colonne = colonne,
                                   .linee = righeMerce,
                                   .descrizione = descrizione};
    return pianta;
}

} // namespace bor
