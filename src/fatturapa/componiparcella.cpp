#include "archive/tabelle.h"
#include "document/codiceiva.h"
#include "document/totaliparcella.h"
#include "fatturapa/caratteri.h"
#include "fatturapa/composizione.h"
#include "fatturapa/tabellefel.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// What the tax of a summary may differ from its rate before the receiving system refuses it is a cent.
constexpr double quasiUnCentesimo = 0.0095;
constexpr double mezzoCentesimo = 0.005;

/// The fund of the C.P. is most often the one without a fund of its own.
const QString cassaSolita = u"TC22"_s;
const QString riferimentoAnticipazioni = u"Art. 15 DPR 633/72"_s;

/// One side of the bill, fees or expenses, with the VAT row that it is taxed at.
struct Lato {
    int riga;
    IvaFel iva;
    double totale;
};

/// A part of a VAT row whose tax was rounded by itself.
struct Quota {
    int riga;
    double imponibile;
    double imposta;
};

int rigaDi(int posizione) {
    return std::clamp(posizione + 1, 1, righeIva);
}

bool vicini(double a, double b) {
    return std::abs(a - b) < mezzoCentesimo;
}

QString descrizioneDi(const Rigap& riga, const QString& coda) {
    const QString data = testoLatino(riga.data);
    const QString testo = testoLatino(riga.descrizione);
    QString intera = data.isEmpty() || testo.isEmpty() ? data + testo : data + u' ' + testo;
    if (intera.isEmpty())
        intera = u"-"_s;
    return coda.isEmpty() ? intera : intera + u" - "_s + coda;
}

void aggiungi(Composizione& c, const QString& descrizione, double importo, const IvaFel& iva) {
    const double prezzo = ottoDecimali(importo);
    c.fattura.linee.push_back({.codice = {},
                               .codice2 = {},
                               .descrizione = descrizione,
                               .quantita = {},
                               .um = {},
                               .prezzo = prezzo,
                               .sconti = {},
                               .totale = prezzo,
                               .aliquota = iva.aliquota,
                               .ritenuta = iva.ritenuta > 0 && importo != 0 && c.totaleRitenute() != 0,
                               .natura = iva.natura,
                               .intento = {}});
}

/// A line of the bill gives one line for each of its amounts; one without amounts is a comment.
void componiLinee(Composizione& c, const IvaFel& onorari, const IvaFel& spese) {
    const IvaFel anticipazioni{.aliquota = 0, .natura = u"N1"_s, .riferimento = {}};
    for (const Rigap& riga : c.fonti.documento.dddp) {
        const bool vuota = riga.onorari == 0 && riga.spese == 0 && riga.anticipazioni == 0;
        if (vuota && testoLatino(riga.descrizione + riga.data).isEmpty())
            continue;
        if (riga.onorari != 0 || vuota)
            aggiungi(c, descrizioneDi(riga, {}), riga.onorari, onorari);
        if (riga.spese != 0)
            aggiungi(c, descrizioneDi(riga, riga.onorari != 0 ? u"spese"_s : QString()), riga.spese, spese);
        if (riga.anticipazioni != 0)
            aggiungi(
                c, descrizioneDi(riga, riga.onorari != 0 || riga.spese != 0 ? u"anticipazioni"_s : QString()),
                riga.anticipazioni, anticipazioni);
    }
}

void riepilogo(Composizione& c, int riga, double imponibile, double imposta) {
    const IvaFel iva = c.iva(riga);
    c.fattura.riepiloghi.push_back({.aliquota = iva.aliquota,
                                    .natura = iva.natura,
                                    .imponibile = imponibile,
                                    .imposta = imposta,
                                    .esigibilita = iva.natura.isEmpty() ? c.esigibilita() : QString(),
                                    .riferimento = iva.riferimento});
}

/// Parts of one row go together while its tax is still its rate of the whole.
void riepilogaRiga(Composizione& c, int riga, const std::vector<Quota>& quote) {
    double imponibile = 0;
    double imposta = 0;
    bool usata = false;
    for (const Quota& q : quote) {
        if (q.riga != riga)
            continue;
        imponibile += q.imponibile;
        imposta += q.imposta;
        usata = true;
    }
    if (!usata)
        return;
    if (std::abs(imposta - imponibile * c.fonti.tabelle.aliquota(riga) / 100) < quasiUnCentesimo)
        return riepilogo(c, riga, imponibile, imposta);
    for (const Quota& q : quote)
        if (q.riga == riga)
            riepilogo(c, riga, q.imponibile, q.imposta);
}

/// The rows of the document are still what the bill comes to.
bool righeInvariate(const Composizione& c, const TotaliParcella& t) {
    for (int riga = 1; riga <= righeIva; ++riga) {
        const auto scritta = c.rigaIva(riga);
        if (!vicini(scritta.imponibile, t.iva.imponibili[riga]) ||
            !vicini(scritta.imposta, t.iva.imposte[riga]) || scritta.esente != 0)
            return false;
    }
    return true;
}

void riepiloghiScritti(Composizione& c, const Lato& onorari, const TotaliParcella& t) {
    for (int riga = 1; riga <= righeIva; ++riga) {
        auto scritta = c.rigaIva(riga);
        if (riga == onorari.riga)
            scritta.imponibile -= t.contributoci;
        if (scritta.imponibile != 0 || scritta.imposta != 0)
            riepilogo(c, riga, scritta.imponibile, scritta.imposta);
        if (scritta.esente != 0) {
            const IvaFel iva = c.iva(CodiceIva::diEsente(riga).numero());
            c.fattura.riepiloghi.push_back({.aliquota = 0,
                                            .natura = iva.natura,
                                            .imponibile = scritta.esente,
                                            .esigibilita = {},
                                            .riferimento = iva.riferimento});
        }
    }
}

void componiRiepiloghi(Composizione& c, const Lato& onorari, const Lato& spese, const TotaliParcella& t) {
    if (righeInvariate(c, t)) {
        std::vector<Quota> quote;
        if (onorari.totale != 0 || (spese.totale == 0 && t.totanticipazioni == 0))
            quote.push_back({onorari.riga, onorari.totale, t.ivaonorari});
        if (t.contributocp != 0)
            quote.push_back({onorari.riga, t.contributocp, t.ivacp});
        if (spese.totale != 0)
            quote.push_back({spese.riga, spese.totale, t.ivaspese});
        for (int riga = 1; riga <= righeIva; ++riga)
            riepilogaRiga(c, riga, quote);
    } else {
        riepiloghiScritti(c, onorari, t);
    }
    const auto senzaIva = [&](double importo, const QString& natura, const QString& riferimento) {
        c.fattura.riepiloghi.push_back({.aliquota = 0,
                                        .natura = natura,
                                        .imponibile = importo,
                                        .esigibilita = {},
                                        .riferimento = riferimento});
    };
    if (t.contributoci != 0)
        senzaIva(t.contributoci, c.fonti.propri.azienda.naturaci, {});
    if (t.totanticipazioni != 0)
        senzaIva(t.totanticipazioni, u"N1"_s, riferimentoAnticipazioni);
}

/// Both sides at one rate are one contribution.
void componiCassa(Composizione& c, const CassaFel& modello, double (*aliquota)(const Tabelle&, int),
                  const Lato& onorari, const Lato& spese) {
    std::vector<CassaFel> casse;
    for (const Lato& lato : {onorari, spese}) {
        CassaFel cassa = modello;
        cassa.aliquota = aliquota(c.fonti.tabelle, lato.riga);
        cassa.imponibile = lato.totale;
        cassa.importo = c.fonti.valuta.percentuale(lato.totale, cassa.aliquota);
        if (cassa.importo == 0)
            continue;
        if (!casse.empty() && casse.front().aliquota == cassa.aliquota) {
            casse.front().imponibile += cassa.imponibile;
            casse.front().importo += cassa.importo;
        } else {
            casse.push_back(cassa);
        }
    }
    c.fattura.casse.insert(c.fattura.casse.end(), casse.begin(), casse.end());
}

void componiCasse(Composizione& c, const Lato& onorari, const Lato& spese, const TotaliParcella& t) {
    const AziendaFel& azienda = c.fonti.propri.azienda;
    if (t.contributoci != 0 && (azienda.cassaci.isEmpty() || azienda.naturaci.isEmpty()))
        c.rifiuta(
            elementoDocumento + u"/DatiCassaPrevidenziale"_s, {},
            u"La parcella ha un contributo C.I. senza IVA, ma non se ne conoscono la cassa e la natura."_s,
            u"Scegliere cassa e natura del contributo C.I. nella maschera \"Fattura elettronica\"."_s);
    componiCassa(c, {.tipo = azienda.cassaci, .natura = azienda.naturaci}, contributoCi, onorari, spese);
    componiCassa(c,
                 {.tipo = azienda.cassacp.isEmpty() ? cassaSolita : azienda.cassacp,
                  .aliquotaiva = onorari.iva.aliquota,
                  .ritenuta = onorari.iva.ritenuta > 0 && c.totaleRitenute() != 0,
                  .natura = onorari.iva.natura},
                 contributoCp, onorari, spese);
}

} // namespace

void componiParcella(Composizione& c) {
    const Documento& d = c.fonti.documento;
    const Valuta& valuta = c.fonti.valuta;
    const TotaliParcella t = totaliParcella(d.dddp, d.testata.pratica, c.fonti.tabelle, valuta);
    const int rigaOnorari = rigaDi(d.testata.pratica.ivaono);
    const int rigaSpese = rigaDi(d.testata.pratica.ivaspe);
    // A row that nothing is taxed at need not have a meaning.
    const bool conSpese = t.totspese != 0;
    const bool soloSpese = conSpese && t.totonorari == 0 && t.contributocp == 0;
    const bool soloAnticipi = !conSpese && t.totonorari == 0 && t.totanticipazioni != 0;
    const Lato spese{rigaSpese, conSpese ? c.iva(rigaSpese) : IvaFel{}, t.totspese};
    const IvaFel n1{.aliquota = 0, .natura = u"N1"_s, .riferimento = {}};
    const Lato onorari{rigaOnorari,
                       soloSpese      ? spese.iva
                       : soloAnticipi ? n1
                                      : c.iva(rigaOnorari),
                       t.totonorari};
    componiLinee(c, onorari.iva, spese.iva);
    componiRitenute(c, {{onorari.iva.ritenuta, valuta.percentuale(t.totonorari, onorari.iva.ritenuta)},
                        {onorari.iva.ritenuta, valuta.percentuale(t.contributocp, onorari.iva.ritenuta)},
                        {spese.iva.ritenuta, valuta.percentuale(t.totspese, spese.iva.ritenuta)}});
    componiCasse(c, onorari, spese, t);
    componiRiepiloghi(c, onorari, spese, t);
}

} // namespace bor
