#include "fatturapa/elementixml.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

void articolo(ElementiXml& xml, const QString& tipo, const QString& codice) {
    if (codice.isEmpty())
        return;
    xml.blocco(u"CodiceArticolo", [&] {
        xml.testo(u"CodiceTipo", tipo);
        xml.testo(u"CodiceValore", codice);
    });
}

/// Percentages only: an amount beside them would be taken for the discount of one piece.
void sconto(ElementiXml& xml, double percento) {
    xml.blocco(u"ScontoMaggiorazione", [&] {
        xml.testo(u"Tipo", percento < 0 ? u"MG"_s : u"SC"_s);
        xml.importo(u"Percentuale", std::abs(percento));
    });
}

void linea(ElementiXml& xml, int numero, const LineaFel& l) {
    xml.blocco(u"DettaglioLinee", [&] {
        xml.testo(u"NumeroLinea", QString::number(numero));
        articolo(xml, u"ARTICOLO"_s, l.codice);
        articolo(xml, u"ARTICOLO2"_s, l.codice2);
        xml.testo(u"Descrizione", l.descrizione);
        if (l.quantita)
            xml.importo8(u"Quantita", *l.quantita);
        xml.sePieno(u"UnitaMisura", l.um);
        xml.importo8(u"PrezzoUnitario", l.prezzo);
        for (const double percento : l.sconti)
            sconto(xml, percento);
        xml.importo8(u"PrezzoTotale", l.totale);
        xml.importo(u"AliquotaIVA", l.aliquota);
        xml.si(u"Ritenuta", l.ritenuta);
        xml.sePieno(u"Natura", l.natura);
        if (!l.intento.isEmpty())
            xml.blocco(u"AltriDatiGestionali", [&] {
                xml.testo(u"TipoDato", u"INTENTO"_s);
                xml.testo(u"RiferimentoTesto", l.intento);
                xml.data(u"RiferimentoData", l.intentodata);
            });
    });
}

void riepilogo(ElementiXml& xml, const RiepilogoFel& r) {
    xml.blocco(u"DatiRiepilogo", [&] {
        xml.importo(u"AliquotaIVA", r.aliquota);
        xml.sePieno(u"Natura", r.natura);
        if (r.arrotondamento != 0)
            xml.importo8(u"Arrotondamento", r.arrotondamento);
        xml.importo(u"ImponibileImporto", r.imponibile);
        xml.importo(u"Imposta", r.imposta);
        xml.sePieno(u"EsigibilitaIVA", r.esigibilita);
        xml.sePieno(u"RiferimentoNormativo", r.riferimento);
    });
}

} // namespace

void scriviBeniServizi(ElementiXml& xml, const FatturaElettronica& f) {
    xml.blocco(u"DatiBeniServizi", [&] {
        int numero = 0;
        for (const LineaFel& l : f.linee)
            linea(xml, ++numero, l);
        for (const RiepilogoFel& r : f.riepiloghi)
            riepilogo(xml, r);
    });
}

void scriviPagamento(ElementiXml& xml, const PagamentoFel& p) {
    if (p.rate.empty())
        return;
    xml.blocco(u"DatiPagamento", [&] {
        xml.testo(u"CondizioniPagamento", p.condizioni);
        for (const RataFel& rata : p.rate)
            xml.blocco(u"DettaglioPagamento", [&] {
                xml.testo(u"ModalitaPagamento", p.modalita);
                xml.data(u"DataScadenzaPagamento", rata.scadenza);
                xml.importo(u"ImportoPagamento", rata.importo);
                xml.sePieno(u"IstitutoFinanziario", p.istituto);
                xml.sePieno(u"IBAN", p.iban);
                xml.sePieno(u"ABI", p.abi);
                xml.sePieno(u"CAB", p.cab);
            });
    });
}

} // namespace bor
