#include "common/codicifiscali.h"
#include "common/numeri.h"
#include "xmlcheck/contifattura.h"

#include <algorithm>
#include <cmath>

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

double segnoDi(const Nodo& sconto) {
    return sconto.valore(u"Tipo") == u"MG" ? 1 : -1;
}

/// Discounts are of one piece and follow each other; where one has both, the amount counts. In files of 2014
/// some write them as an amount of the whole line: that will do too.
std::vector<double> totaliPossibili(const Nodo& linea, Versione versione) {
    const double prezzo = numero(linea, u"PrezzoUnitario");
    const double quantita = linea.figlio(u"Quantita") ? numero(linea, u"Quantita") : 1;
    double unitario = prezzo;
    double conPercentuali = prezzo * quantita;
    double conImporti = prezzo * quantita;
    for (const Nodo& sconto : linea.figli) {
        if (sconto.nome != u"ScontoMaggiorazione")
            continue;
        const double segno = segnoDi(sconto);
        const double fattore = 1 + segno * numero(sconto, u"Percentuale") / 100;
        const double importo = segno * numero(sconto, u"Importo");
        unitario = sconto.figlio(u"Importo") ? unitario + importo : unitario * fattore;
        conPercentuali *= fattore;
        conImporti += importo;
    }
    if (versione == Versione::V123)
        return {unitario * quantita};
    return {conPercentuali, unitario * quantita, conImporti};
}

void controllaPrezzo(Controllo& c, const Nodo& linea) {
    const Nodo* totale = linea.figlio(u"PrezzoTotale");
    if (!totale || !linea.figlio(u"PrezzoUnitario"))
        return;
    const std::vector<double> possibili = totaliPossibili(linea, c.versione);
    const double scritto = valore(totale->testo);
    if (std::ranges::none_of(possibili,
                             [scritto](double atteso) { return vicini(scritto, atteso, centesimo); }))
        c.errore(u"00423"_s, *totale,
                 u"Il prezzo totale non è prezzo per quantità meno lo sconto, che dà %1."_s.arg(
                     testoFisso(possibili[0], 2)),
                 u"Correggere quantità, prezzo o sconto"_s);
}

void controllaSconti(Controllo& c, const Nodo& nodo, const QString& codice) {
    for (const Nodo& sconto : nodo.figli)
        if (sconto.nome == u"ScontoMaggiorazione" && !sconto.figlio(u"Percentuale") &&
            !sconto.figlio(u"Importo"))
            c.errore(codice, sconto, u"Lo sconto non ha né percentuale né importo."_s, u"Correggere"_s);
}

Somme controllaLinee(Controllo& c, const Nodo& beni) {
    Somme somme;
    for (const Nodo& linea : beni.figli) {
        if (linea.nome != u"DettaglioLinee")
            continue;
        controllaPrezzo(c, linea);
        controllaSconti(c, linea, u"00438"_s);
        controllaNatura(c, linea, {u"00400"_s, u"00401"_s});
        if (linea.figlio(u"AliquotaIVA"))
            somme[chiaveIva(linea)].aggiungi(numero(linea, u"PrezzoTotale"));
    }
    return somme;
}

void controllaCasse(Controllo& c, const Nodo& documento, Somme& somme) {
    const bool conRitenuta = documento.figlio(u"DatiRitenuta");
    for (const Nodo& cassa : documento.figli) {
        if (cassa.nome != u"DatiCassaPrevidenziale")
            continue;
        controllaNatura(c, cassa, {u"00413"_s, u"00414"_s});
        somme[chiaveIva(cassa)].aggiungi(numero(cassa, u"ImportoContributoCassa"));
        if (!cassa.valore(u"Ritenuta").isEmpty() && !conRitenuta)
            c.errore(u"00415"_s, cassa,
                     u"Il contributo è soggetto a ritenuta, ma mancano i dati della ritenuta."_s,
                     u"Compilare"_s);
    }
}

void controllaRitenuta(Controllo& c, const Nodo& documento, const Nodo& beni) {
    const bool soggetta = std::ranges::any_of(
        beni.figli, [](const Nodo& linea) { return linea.figlio(u"Ritenuta") != nullptr; });
    if (soggetta && !documento.figlio(u"DatiRitenuta"))
        c.manca(u"00411"_s, documento, u"DatiRitenuta",
                u"Ci sono linee soggette a ritenuta, ma mancano i dati della ritenuta."_s, u"Compilare"_s);
}

double totaleRiepiloghi(const Nodo& beni, bool daPagare) {
    double totale = 0;
    for (const Nodo& riepilogo : beni.figli)
        if (riepilogo.nome == u"DatiRiepilogo")
            totale +=
                numero(riepilogo, u"ImponibileImporto") +
                (daPagare && riepilogo.valore(u"EsigibilitaIVA") == u"S" ? 0 : numero(riepilogo, u"Imposta"));
    return totale;
}

double somma(const Nodo& nodo, QStringView blocco, QStringView nome) {
    double totale = 0;
    for (const Nodo& figlio : nodo.figli)
        if (figlio.nome == blocco)
            totale += numero(figlio, nome);
    return totale;
}

/// Codes of banks and the sums of payment: the receiving system takes any, an office should look.
void controllaPagamento(Controllo& c, const Nodo& corpo, const Nodo& documento, const Nodo& beni) {
    const Nodo* pagamento = corpo.figlio(u"DatiPagamento");
    if (!pagamento)
        return;
    double rate = 0;
    for (const Nodo& blocco : corpo.figli) {
        if (blocco.nome != u"DatiPagamento")
            continue;
        rate += somma(blocco, u"DettaglioPagamento", u"ImportoPagamento");
        for (const Nodo& dettaglio : blocco.figli)
            if (const Nodo* iban = dettaglio.figlio(u"IBAN");
                iban && !ibanValido(iban->testo.trimmed().toUpper()))
                c.avviso(*iban, u"Le cifre di controllo dell'IBAN non tornano."_s,
                         u"Ricontrollare il codice"_s);
            else if (iban && iban->testo != iban->testo.toUpper())
                c.avviso(*iban, u"L'IBAN ha lettere minuscole."_s, u"Scriverle maiuscole"_s);
    }
    const double totale = std::abs(totaleRiepiloghi(beni, true));
    const double minimo = totale - std::abs(somma(documento, u"DatiRitenuta", u"ImportoRitenuta"));
    if (std::abs(rate) < minimo - centesimo - briciola ||
        std::abs(rate) > totale + bolloMassimo + centesimo + briciola)
        c.avviso(
            *pagamento,
            u"Le rate sommano %1, ma il documento è di %2."_s.arg(testoFisso(rate, 2), testoFisso(totale, 2)),
            u"Ricontrollare gli importi"_s);
}

/// Reason F stood in the format of 2014, but in no list of reasons.
void controllaCausale(Controllo& c, const Nodo& documento) {
    const Nodo* causale = discendente(documento, {u"DatiRitenuta", u"CausalePagamento"});
    const QString vecchia = c.versione == Versione::V10 ? u"F"_s : u"Z"_s;
    if (causale && causale->testo.trimmed() == vecchia)
        c.avviso(*causale, u"La causale %1 non è più in uso."_s.arg(vecchia), u"Ricontrollare la causale"_s);
}

void controllaTotale(Controllo& c, const Nodo& documento, const Nodo& beni) {
    const Nodo* totale = documento.figlio(u"ImportoTotaleDocumento");
    if (!totale)
        return;
    const double atteso = totaleRiepiloghi(beni, false) + numero(documento, u"Arrotondamento");
    const double scritto = valore(totale->testo);
    if (scritto < atteso - centesimo - briciola || scritto > atteso + bolloMassimo + centesimo + briciola)
        c.avviso(
            *totale,
            u"Il totale del documento non è la somma dei riepiloghi, che dà %1."_s.arg(testoFisso(atteso, 2)),
            u"Ricontrollare gli importi"_s);
}

} // namespace

void controllaConti(Controllo& c, const Nodo& corpo) {
    const Nodo* documento = discendente(corpo, {u"DatiGenerali", u"DatiGeneraliDocumento"});
    const Nodo* beni = corpo.figlio(u"DatiBeniServizi");
    if (!documento || !beni)
        return;
    Somme somme = controllaLinee(c, *beni);
    controllaCasse(c, *documento, somme);
    controllaRiepiloghi(c, *beni, somme);
    controllaSconti(c, *documento, u"00437"_s);
    controllaRitenuta(c, *documento, *beni);
    controllaCausale(c, *documento);
    controllaTotale(c, *documento, *beni);
    controllaPagamento(c, corpo, *documento, *beni);
}

} // namespace bor
