#include "common/numeri.h"
#include "einvoice/controllifattura.h"

#include <algorithm>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr double centesimo = 0.01;
/// Differences of doubles that stand for the same cents.
constexpr double briciola = 0.000001;
/// A stamp duty charged to the customer is in the instalments, but in no line.
constexpr double bolloMassimo = 2;

bool vicini(double a, double b, double tolleranza) {
    return std::abs(a - b) <= tolleranza + briciola;
}

double numero(const Nodo& nodo, QStringView nome) {
    return valore(nodo.valore(nome));
}

/// What lines and summary are matched by: rate, and nature where the rate is 0.
QString chiaveIva(const Nodo& nodo) {
    const double aliquota = numero(nodo, u"AliquotaIVA");
    const QString chiave = testoFisso(aliquota, 2);
    return aliquota > 0 ? chiave : chiave + u' ' + nodo.valore(u"Natura");
}

struct Somma {
    double imponibile = 0;
    int voci = 0;

    void aggiungi(double importo) {
        imponibile += importo;
        ++voci;
    }
};

using Somme = std::map<QString, Somma>;

/// Discounts are written by some as an amount a piece, by some as an amount of the line: both will do.
std::vector<double> totaliPossibili(const Nodo& linea) {
    const double prezzo = numero(linea, u"PrezzoUnitario");
    const double quantita = linea.figlio(u"Quantita") ? numero(linea, u"Quantita") : 1;
    double conPercentuali = prezzo * quantita;
    double conImportiUnitari = prezzo;
    double conImporti = prezzo * quantita;
    for (const Nodo& sconto : linea.figli) {
        if (sconto.nome != u"ScontoMaggiorazione")
            continue;
        const double segno = sconto.valore(u"Tipo") == u"MG" ? 1 : -1;
        conPercentuali *= 1 + segno * numero(sconto, u"Percentuale") / 100;
        conImportiUnitari += segno * numero(sconto, u"Importo");
        conImporti += segno * numero(sconto, u"Importo");
    }
    return {conPercentuali, conImportiUnitari * quantita, conImporti};
}

void controllaPrezzo(const Nodo& linea, std::vector<Rilievo>& rilievi) {
    const Nodo* totale = linea.figlio(u"PrezzoTotale");
    if (!totale || !linea.figlio(u"PrezzoUnitario"))
        return;
    const std::vector<double> possibili = totaliPossibili(linea);
    const double scritto = valore(totale->testo);
    if (std::none_of(possibili.begin(), possibili.end(),
                     [scritto](double atteso) { return vicini(scritto, atteso, centesimo); }))
        rilievi.push_back(
            rilievoA(totale->percorso, *totale,
                     u"Il prezzo totale non è prezzo per quantità meno lo sconto, che dà %1."_s.arg(
                         testoFisso(possibili[0], 2)),
                     u"Correggere quantità, prezzo o sconto"_s));
}

/// Rate 0 and nature go together, in a line as in the summary.
void controllaNatura(const Nodo& nodo, std::vector<Rilievo>& rilievi) {
    const Nodo* aliquota = nodo.figlio(u"AliquotaIVA");
    if (!aliquota)
        return;
    const bool zero = valore(aliquota->testo) == 0;
    const Nodo* natura = nodo.figlio(u"Natura");
    if (zero && !natura)
        rilievi.push_back(rilievoA(nodo.percorso + u"/Natura"_s, *aliquota,
                                   u"Con aliquota zero ci vuole la natura dell'esenzione."_s,
                                   u"Scegliere il codice di esenzione giusto"_s));
    if (!zero && natura)
        rilievi.push_back(rilievoA(natura->percorso, *natura,
                                   u"La natura è ammessa solo con aliquota zero."_s,
                                   u"Correggere il codice IVA"_s));
}

Somme controllaLinee(const Nodo& beni, std::vector<Rilievo>& rilievi) {
    Somme somme;
    for (const Nodo& linea : beni.figli) {
        if (linea.nome != u"DettaglioLinee")
            continue;
        controllaPrezzo(linea, rilievi);
        controllaNatura(linea, rilievi);
        if (linea.figlio(u"AliquotaIVA"))
            somme[chiaveIva(linea)].aggiungi(numero(linea, u"PrezzoTotale"));
    }
    return somme;
}

void controllaImposta(const Nodo& riepilogo, std::vector<Rilievo>& rilievi) {
    const Nodo* imposta = riepilogo.figlio(u"Imposta");
    const double attesa = numero(riepilogo, u"ImponibileImporto") * numero(riepilogo, u"AliquotaIVA") / 100;
    if (imposta && !vicini(valore(imposta->testo), attesa, centesimo))
        rilievi.push_back(
            rilievoA(imposta->percorso, *imposta,
                     u"L'imposta non è l'aliquota sull'imponibile, che dà %1."_s.arg(testoFisso(attesa, 2)),
                     u"Ricontrollare l'IVA"_s));
}

/// Rounding of single lines may add up to half a cent each.
void controllaImponibile(const Nodo& riepilogo, const Somma& linee, std::vector<Rilievo>& rilievi) {
    const Nodo* imponibile = riepilogo.figlio(u"ImponibileImporto");
    const double atteso =
        linee.imponibile + numero(riepilogo, u"SpeseAccessorie") + numero(riepilogo, u"Arrotondamento");
    if (imponibile &&
        !vicini(valore(imponibile->testo), atteso, std::max(centesimo, linee.voci * centesimo / 2)))
        rilievi.push_back(
            rilievoA(imponibile->percorso, *imponibile,
                     u"L'imponibile non è la somma delle linee di questa aliquota, che dà %1."_s.arg(
                         testoFisso(atteso, 2)),
                     u"Correggere prezzi, sconti o codici IVA (un secondo sconto non è ammesso)"_s));
}

void controllaRiepiloghi(const Nodo& beni, Somme somme, std::vector<Rilievo>& rilievi) {
    for (const Nodo& riepilogo : beni.figli) {
        if (riepilogo.nome != u"DatiRiepilogo")
            continue;
        controllaNatura(riepilogo, rilievi);
        controllaImposta(riepilogo, rilievi);
        const auto linee = somme.find(chiaveIva(riepilogo));
        controllaImponibile(riepilogo, linee == somme.end() ? Somma() : linee->second, rilievi);
        if (linee != somme.end())
            somme.erase(linee);
    }
    for (const auto& [chiave, somma] : somme)
        rilievi.push_back(rilievoA(beni.percorso + u"/DatiRiepilogo"_s, beni,
                                   u"Manca il riepilogo delle linee con IVA %1, per %2."_s.arg(
                                       chiave.trimmed(), testoFisso(somma.imponibile, 2)),
                                   u"Correggere i codici IVA"_s));
}

void sommaCassa(const Nodo& documento, Somme& somme) {
    for (const Nodo& cassa : documento.figli)
        if (cassa.nome == u"DatiCassaPrevidenziale")
            somme[chiaveIva(cassa)].aggiungi(numero(cassa, u"ImportoContributoCassa"));
}

void controllaRitenuta(const Nodo& documento, const Nodo& beni, std::vector<Rilievo>& rilievi) {
    const bool soggetta = std::any_of(beni.figli.begin(), beni.figli.end(),
                                      [](const Nodo& linea) { return linea.figlio(u"Ritenuta") != nullptr; });
    if (soggetta && !documento.figlio(u"DatiRitenuta"))
        rilievi.push_back(rilievoA(documento.percorso + u"/DatiRitenuta"_s, documento,
                                   u"Ci sono linee soggette a ritenuta, ma mancano i dati della ritenuta."_s,
                                   u"Compilare"_s));
}

double totaleDocumento(const Nodo& documento, const Nodo& beni) {
    if (documento.figlio(u"ImportoTotaleDocumento"))
        return numero(documento, u"ImportoTotaleDocumento");
    double totale = 0;
    for (const Nodo& riepilogo : beni.figli)
        if (riepilogo.nome == u"DatiRiepilogo")
            totale += numero(riepilogo, u"ImponibileImporto") +
                      (riepilogo.valore(u"EsigibilitaIVA") == u"S" ? 0 : numero(riepilogo, u"Imposta"));
    return totale;
}

/// The instalments may leave out the withholding and may hold the stamp duty.
void controllaRate(const Nodo& corpo, const Nodo& documento, const Nodo& beni,
                   std::vector<Rilievo>& rilievi) {
    const Nodo* pagamento = corpo.figlio(u"DatiPagamento");
    if (!pagamento)
        return;
    double rate = 0;
    for (const Nodo& blocco : corpo.figli)
        if (blocco.nome == u"DatiPagamento")
            for (const Nodo& dettaglio : blocco.figli)
                rate += numero(dettaglio, u"ImportoPagamento");
    const Nodo* ritenuta = documento.figlio(u"DatiRitenuta");
    const double totale = std::abs(totaleDocumento(documento, beni));
    const double minimo = totale - (ritenuta ? numero(*ritenuta, u"ImportoRitenuta") : 0);
    if (rate < minimo - centesimo - briciola || rate > totale + bolloMassimo + centesimo + briciola)
        rilievi.push_back(rilievoA(
            pagamento->percorso, *pagamento,
            u"Le rate sommano %1, ma il documento è di %2."_s.arg(testoFisso(rate, 2), testoFisso(totale, 2)),
            u"Ricontrollare gli importi"_s));
}

} // namespace

void controllaConti(const Nodo& corpo, std::vector<Rilievo>& rilievi) {
    const Nodo* generali = corpo.figlio(u"DatiGenerali");
    const Nodo* documento = generali ? generali->figlio(u"DatiGeneraliDocumento") : nullptr;
    const Nodo* beni = corpo.figlio(u"DatiBeniServizi");
    if (!documento || !beni)
        return;
    Somme somme = controllaLinee(*beni, rilievi);
    sommaCassa(*documento, somme);
    controllaRiepiloghi(*beni, somme, rilievi);
    controllaRitenuta(*documento, *beni, rilievi);
    controllaRate(corpo, *documento, *beni, rilievi);
}

} // namespace bor
