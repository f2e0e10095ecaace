#include "einvoice/partixml.h"

#include "common/numeri.h"
#include "einvoice/tabellefpa.h"

namespace bor {

using namespace Qt::StringLiterals;

namespace {

/// From this code up a line tells why it bears no tax. The exempt codes 13 to 16 tell neither rate nor
/// reason; the summary counts them as exempt all the same.
constexpr int primoConNatura = 17;

QString formato2(double x) {
    return testoFisso(x, 2);
}

QString formato8(double x) {
    return testoFisso(x, 8);
}

void ivaRiga(ScrittoreXml& xml, CodiceIva codice, const Tabelle& tabelle) {
    if (codice.tassato()) {
        const RigaAliquota& riga = tabelle.aliquote[codice.riga()];
        xml.elemento(8, "AliquotaIVA", formato2(valore(riga.aliquota)));
        if (valore(riga.ritenuta) > 0)
            xml.elemento(8, "Ritenuta", riga.ritenuta);
    } else if (codice.numero() >= primoConNatura) {
        xml.elemento(8, "AliquotaIVA", u"00.00");
        xml.sePresente(8, "Natura", naturaEsente(tabelle, codice.riga()));
    }
}

/// The second discount has no place here: the line's total stays above its share of the summary.
void dettaglio(ScrittoreXml& xml, int linea, const Riga& riga, const DatiXml& dati) {
    const Valuta& valuta = dati.valuta;
    double totale = riga.prezzo;
    if (riga.quantita != 0.0)
        totale = riga.prezzo * riga.quantita;
    totale = valuta.arrotonda(totale);
    const double sconto = valuta.percentuale(totale, riga.sconto1);
    const double netto = valuta.arrotonda(totale - sconto);

    xml.apri(6, "DettaglioLinee");
    xml.elemento(8, "NumeroLinea", QString::number(linea));
    xml.elemento(8, "Descrizione", riga.descrizione);
    xml.elemento(8, "Quantita", formato2(riga.quantita));
    xml.sePresente(8, "UnitaMisura", riga.um);
    xml.elemento(8, "PrezzoUnitario", formato8(riga.prezzo));
    if (sconto > 0) {
        xml.apri(8, "ScontoMaggiorazione");
        xml.elemento(10, "Tipo", u"SC");
        xml.elemento(10, "Percentuale", formato2(riga.sconto1));
        xml.elemento(10, "Importo", formato2(sconto));
        xml.chiudi(8, "ScontoMaggiorazione");
    }
    xml.elemento(8, "PrezzoTotale", formato2(netto));
    ivaRiga(xml, riga.iva, dati.tabelle);
    xml.chiudi(6, "DettaglioLinee");
}

void riepilogo(ScrittoreXml& xml, const DatiXml& dati) {
    const TabellaIva& iva = dati.riepilogo.iva;
    const QString esigibilita = dati.documento.esigdifferita.text() == u"1" ? u"D"_s : u"I"_s;
    for (int i = 1; i <= righeIva; ++i) {
        if (iva.imponibili[i] == 0.0)
            continue;
        xml.apri(6, "DatiRiepilogo");
        xml.elemento(8, "AliquotaIVA", formato2(dati.tabelle.aliquota(i)));
        xml.elemento(8, "ImponibileImporto", formato2(iva.imponibili[i]));
        xml.elemento(8, "Imposta", formato2(iva.imposte[i]));
        xml.elemento(8, "EsigibilitaIVA", esigibilita);
        xml.chiudi(4, "DatiRiepilogo"); // always stood two columns to the left of its opening
    }
    for (int i = 1; i <= righeIva; ++i) {
        if (iva.esenti[i] == 0.0)
            continue;
        xml.apri(6, "DatiRiepilogo");
        xml.elemento(8, "AliquotaIVA", u"00.00");
        xml.elemento(8, "Natura", naturaEsente(dati.tabelle, i));
        xml.elemento(8, "ImponibileImporto", formato2(iva.esenti[i]));
        xml.elemento(8, "Imposta", u"0.00");
        xml.elemento(8, "EsigibilitaIVA", esigibilita);
        xml.elemento(8, "RiferimentoNormativo", dati.tabelle.esenzioni[i].riferimento);
        xml.chiudi(6, "DatiRiepilogo");
    }
}

} // namespace

void scriviBeniServizi(ScrittoreXml& xml, const DatiXml& dati) {
    xml.apri(4, "DatiBeniServizi");
    int linea = 0;
    for (const Riga& riga : dati.righepa) {
        if (rigaInFattura(riga))
            dettaglio(xml, ++linea, riga, dati);
    }
    riepilogo(xml, dati);
    xml.chiudi(4, "DatiBeniServizi");
}

void scriviPagamento(ScrittoreXml& xml, const DatiXml& dati) {
    constexpr std::size_t rateInFattura = 4;
    constexpr qsizetype lunghezzaIban = 27;
    const QString modalita = dati.documento.modalitapagamento.trimmed();
    const QString coordinate = dati.coordinate.trimmed();
    xml.apri(4, "DatiPagamento");
    xml.elemento(6, "CondizioniPagamento", dati.documento.condizionipagamento.text());
    for (std::size_t i = 0; i < rateInFattura; ++i) {
        const Rata& rata = dati.scadenze.rate[i];
        const double importo = valore(rata.importo);
        if (importo <= 0)
            continue;
        xml.apri(6, "DettaglioPagamento");
        xml.elemento(8, "ModalitaPagamento", modalita);
        xml.elemento(8, "DataScadenzaPagamento", dataXml(rata.scadenza));
        xml.elemento(8, "ImportoPagamento", formato2(importo));
        if (modalita == u"MP05" && coordinate.size() == lunghezzaIban)
            xml.elemento(8, "IBAN", coordinate);
        xml.chiudi(6, "DettaglioPagamento");
    }
    xml.chiudi(4, "DatiPagamento");
}

} // namespace bor
