#include "fatturapa/elementixml.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

void articolo(ElementiXml& xml, const QString& tipo, const QString& codice) {
    if (codice.isEmpty())
        return;
    xml.blocco(u"CodiceArticolo"_s, [&] {
        xml.testo(u"CodiceTipo"_s, tipo);
        xml.testo(u"CodiceValore"_s, codice);
    });
}

/// Percentages only: an amount beside them would be taken for the discount of one piece.
void sconto(ElementiXml& xml, double percento) {
    xml.blocco(u"ScontoMaggiorazione"_s, [&] {
        xml.testo(u"Tipo"_s, percento < 0 ? u"MG"_s : u"SC"_s);
        xml.importo(u"Percentuale"_s, std::abs(percento));
    });
}

void linea(ElementiXml& xml, int numero, const LineaFel& l) {
    xml.blocco(u"DettaglioLinee"_s, [&] {
        xml.testo(u"NumeroLinea"_s, QString::number(numero));
        articolo(xml, u"ARTICOLO"_s, l.codice);
        articolo(xml, u"ARTICOLO2"_s, l.codice2);
        xml.testo(u"Descrizione"_s, l.descrizione);
        if (l.quantita)
            xml.importo8(u"Quantita"_s, *l.quantita);
        xml.sePieno(u"UnitaMisura"_s, l.um);
        xml.importo8(u"PrezzoUnitario"_s, l.prezzo);
        for (const double percento : l.sconti)
            sconto(xml, percento);
        xml.importo8(u"PrezzoTotale"_s, l.totale);
        xml.importo(u"AliquotaIVA"_s, l.aliquota);
        xml.si(u"Ritenuta"_s, l.ritenuta);
        xml.sePieno(u"Natura"_s, l.natura);
        if (!l.intento.isEmpty())
            xml.blocco(u"AltriDatiGestionali"_s, [&] {
                xml.testo(u"TipoDato"_s, u"INTENTO"_s);
                xml.testo(u"RiferimentoTesto"_s, l.intento);
                xml.data(u"RiferimentoData"_s, l.intentodata);
            });
    });
}

void riepilogo(ElementiXml& xml, const RiepilogoFel& r) {
    xml.blocco(u"DatiRiepilogo"_s, [&] {
        xml.importo(u"AliquotaIVA"_s, r.aliquota);
        xml.sePieno(u"Natura"_s, r.natura);
        if (r.arrotondamento != 0)
            xml.importo8(u"Arrotondamento"_s, r.arrotondamento);
        xml.importo(u"ImponibileImporto"_s, r.imponibile);
        xml.importo(u"Imposta"_s, r.imposta);
        xml.sePieno(u"EsigibilitaIVA"_s, r.esigibilita);
        xml.sePieno(u"RiferimentoNormativo"_s, r.riferimento);
    });
}

} // namespace

void scriviBeniServizi(ElementiXml& xml, const FatturaElettronica& f) {
    xml.blocco(u"DatiBeniServizi"_s, [&] {
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
    xml.blocco(u"DatiPagamento"_s, [&] {
        xml.testo(u"CondizioniPagamento"_s, p.condizioni);
        for (const RataFel& rata : p.rate)
            xml.blocco(u"DettaglioPagamento"_s, [&] {
                xml.testo(u"ModalitaPagamento"_s, p.modalita);
                xml.data(u"DataScadenzaPagamento"_s, rata.scadenza);
                xml.importo(u"ImportoPagamento"_s, rata.importo);
                xml.sePieno(u"IstitutoFinanziario"_s, p.istituto);
                xml.sePieno(u"IBAN"_s, p.iban);
                xml.sePieno(u"ABI"_s, p.abi);
                xml.sePieno(u"CAB"_s, p.cab);
            });
    });
}

} // namespace bor
