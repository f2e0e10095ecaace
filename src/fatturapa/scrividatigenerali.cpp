#include "fatturapa/elementixml.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

void ritenuta(ElementiXml& xml, const RitenutaFel& r) {
    xml.blocco(u"DatiRitenuta"_s, [&] {
        xml.testo(u"TipoRitenuta"_s, r.tipo);
        xml.importo(u"ImportoRitenuta"_s, r.importo);
        xml.importo(u"AliquotaRitenuta"_s, r.aliquota);
        xml.testo(u"CausalePagamento"_s, r.causale);
    });
}

void cassa(ElementiXml& xml, const CassaFel& c) {
    xml.blocco(u"DatiCassaPrevidenziale"_s, [&] {
        xml.testo(u"TipoCassa"_s, c.tipo);
        xml.importo(u"AlCassa"_s, c.aliquota);
        xml.importo(u"ImportoContributoCassa"_s, c.importo);
        xml.importo(u"ImponibileCassa"_s, c.imponibile);
        xml.importo(u"AliquotaIVA"_s, c.aliquotaiva);
        xml.si(u"Ritenuta"_s, c.ritenuta);
        xml.sePieno(u"Natura"_s, c.natura);
    });
}

void documento(ElementiXml& xml, const FatturaElettronica& f) {
    xml.blocco(u"DatiGeneraliDocumento"_s, [&] {
        xml.testo(u"TipoDocumento"_s, f.tipo);
        xml.testo(u"Divisa"_s, u"EUR"_s);
        xml.testo(u"Data"_s, f.data.toString(Qt::ISODate));
        xml.testo(u"Numero"_s, f.numero);
        for (const RitenutaFel& r : f.ritenute)
            ritenuta(xml, r);
        if (f.bollo)
            xml.blocco(u"DatiBollo"_s, [&] {
                xml.si(u"BolloVirtuale"_s, true);
                xml.importo(u"ImportoBollo"_s, *f.bollo);
            });
        for (const CassaFel& c : f.casse)
            cassa(xml, c);
        xml.importo(u"ImportoTotaleDocumento"_s, f.totale);
        for (const QString& causale : f.causali)
            xml.testo(u"Causale"_s, causale);
        xml.si(u"Art73"_s, f.art73);
    });
}

void riferimenti(ElementiXml& xml, const QString& nome, const std::vector<RiferimentoFel>& quali) {
    for (const RiferimentoFel& r : quali)
        xml.blocco(nome, [&] {
            xml.testo(u"IdDocumento"_s, r.numero);
            xml.data(u"Data"_s, r.data);
            xml.sePieno(u"NumItem"_s, r.item);
            xml.sePieno(u"CodiceCommessaConvenzione"_s, r.commessa);
            xml.sePieno(u"CodiceCUP"_s, r.cup);
            xml.sePieno(u"CodiceCIG"_s, r.cig);
        });
}

void trasporto(ElementiXml& xml, const TrasportoFel& t) {
    xml.blocco(u"DatiTrasporto"_s, [&] {
        if (!t.vettore.codice.isEmpty())
            xml.blocco(u"DatiAnagraficiVettore"_s, [&] { scriviAnagrafica(xml, t.vettore); });
        xml.sePieno(u"CausaleTrasporto"_s, t.causale);
        if (t.colli > 0)
            xml.testo(u"NumeroColli"_s, QString::number(t.colli));
        xml.sePieno(u"Descrizione"_s, t.descrizione);
        if (t.peso > 0) {
            xml.testo(u"UnitaMisuraPeso"_s, u"KG"_s);
            xml.importo(u"PesoLordo"_s, t.peso);
        }
        xml.data(u"DataInizioTrasporto"_s, t.inizio);
    });
}

} // namespace

void scriviDatiGenerali(ElementiXml& xml, const FatturaElettronica& f) {
    xml.blocco(u"DatiGenerali"_s, [&] {
        documento(xml, f);
        riferimenti(xml, u"DatiOrdineAcquisto"_s, f.ordini);
        riferimenti(xml, u"DatiContratto"_s, f.contratti);
        riferimenti(xml, u"DatiConvenzione"_s, f.convenzioni);
        riferimenti(xml, u"DatiRicezione"_s, f.ricezioni);
        riferimenti(xml, u"DatiFattureCollegate"_s, f.collegate);
        for (const DdtFel& ddt : f.ddt)
            xml.blocco(u"DatiDDT"_s, [&] {
                xml.testo(u"NumeroDDT"_s, ddt.numero);
                xml.data(u"DataDDT"_s, ddt.data);
            });
        if (f.trasporto)
            trasporto(xml, *f.trasporto);
    });
}

} // namespace bor
