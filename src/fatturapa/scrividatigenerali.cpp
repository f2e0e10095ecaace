#include "fatturapa/elementixml.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

void ritenuta(ElementiXml& xml, const RitenutaFel& r) {
    xml.blocco(u"DatiRitenuta", [&] {
        xml.testo(u"TipoRitenuta", r.tipo);
        xml.importo(u"ImportoRitenuta", r.importo);
        xml.importo(u"AliquotaRitenuta", r.aliquota);
        xml.testo(u"CausalePagamento", r.causale);
    });
}

void cassa(ElementiXml& xml, const CassaFel& c) {
    xml.blocco(u"DatiCassaPrevidenziale", [&] {
        xml.testo(u"TipoCassa", c.tipo);
        xml.importo(u"AlCassa", c.aliquota);
        xml.importo(u"ImportoContributoCassa", c.importo);
        xml.importo(u"ImponibileCassa", c.imponibile);
        xml.importo(u"AliquotaIVA", c.aliquotaiva);
        xml.si(u"Ritenuta", c.ritenuta);
        xml.sePieno(u"Natura", c.natura);
    });
}

void documento(ElementiXml& xml, const FatturaElettronica& f) {
    xml.blocco(u"DatiGeneraliDocumento", [&] {
        xml.testo(u"TipoDocumento", f.tipo);
        xml.testo(u"Divisa", u"EUR"_s);
        xml.testo(u"Data", f.data.toString(Qt::ISODate));
        xml.testo(u"Numero", f.numero);
        for (const RitenutaFel& r : f.ritenute)
            ritenuta(xml, r);
        if (f.bollo)
            xml.blocco(u"DatiBollo", [&] {
                xml.si(u"BolloVirtuale", true);
                xml.importo(u"ImportoBollo", *f.bollo);
            });
        for (const CassaFel& c : f.casse)
            cassa(xml, c);
        xml.importo(u"ImportoTotaleDocumento", f.totale);
        for (const QString& causale : f.causali)
            xml.testo(u"Causale", causale);
        xml.si(u"Art73", f.art73);
    });
}

void riferimenti(ElementiXml& xml, QStringView nome, const std::vector<RiferimentoFel>& quali) {
    for (const RiferimentoFel& r : quali)
        xml.blocco(nome, [&] {
            xml.testo(u"IdDocumento", r.numero);
            xml.data(u"Data", r.data);
            xml.sePieno(u"NumItem", r.item);
            xml.sePieno(u"CodiceCommessaConvenzione", r.commessa);
            xml.sePieno(u"CodiceCUP", r.cup);
            xml.sePieno(u"CodiceCIG", r.cig);
        });
}

void trasporto(ElementiXml& xml, const TrasportoFel& t) {
    xml.blocco(u"DatiTrasporto", [&] {
        if (!t.vettore.codice.isEmpty())
            xml.blocco(u"DatiAnagraficiVettore", [&] { scriviAnagrafica(xml, t.vettore); });
        xml.sePieno(u"CausaleTrasporto", t.causale);
        if (t.colli > 0)
            xml.testo(u"NumeroColli", QString::number(t.colli));
        xml.sePieno(u"Descrizione", t.descrizione);
        if (t.peso > 0) {
            xml.testo(u"UnitaMisuraPeso", u"KG"_s);
            xml.importo(u"PesoLordo", t.peso);
        }
        xml.data(u"DataInizioTrasporto", t.inizio);
    });
}

} // namespace

void scriviDatiGenerali(ElementiXml& xml, const FatturaElettronica& f) {
    xml.blocco(u"DatiGenerali", [&] {
        documento(xml, f);
        riferimenti(xml, u"DatiOrdineAcquisto", f.ordini);
        riferimenti(xml, u"DatiContratto", f.contratti);
        riferimenti(xml, u"DatiConvenzione", f.convenzioni);
        riferimenti(xml, u"DatiRicezione", f.ricezioni);
        riferimenti(xml, u"DatiFattureCollegate", f.collegate);
        for (const DdtFel& ddt : f.ddt)
            xml.blocco(u"DatiDDT", [&] {
                xml.testo(u"NumeroDDT", ddt.numero);
                xml.data(u"DataDDT", ddt.data);
            });
        if (f.trasporto)
            trasporto(xml, *f.trasporto);
    });
}

} // namespace bor
