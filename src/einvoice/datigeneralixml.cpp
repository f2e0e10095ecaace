#include "einvoice/partixml.h"

#include "common/date.h"
#include "common/numeri.h"

namespace bor {

using namespace Qt::StringLiterals;

namespace {

bool pieno(QStringView testo) {
    return !puliscitesto(testo).isEmpty();
}

void sePieno(ScrittoreXml& xml, int rientro, QByteArrayView nome, const QString& testo) {
    if (pieno(testo))
        xml.elemento(rientro, nome, testo);
}

/// Like `sePresente`, but the closing tag has a spelling of its own. The files always had it.
void conChiusura(ScrittoreXml& xml, QByteArrayView nome, const QString& testo, QByteArrayView chiusura) {
    if (!testo.trimmed().isEmpty())
        xml.elemento(10, nome, testo, chiusura);
}

void ritenuta(ScrittoreXml& xml, const Fpa& d) {
    if (d.tiporitenuta.trimmed().isEmpty())
        return;
    xml.apri(8, "DatiRitenuta");
    xml.elemento(10, "TipoRitenuta", d.tiporitenuta.text());
    conChiusura(xml, "ImportoRitenuta", d.importoritenuta.text(), "Importoritenuta");
    conChiusura(xml, "AliquotaRitenuta", d.aliquotaritenuta.text(), "Aliquotaritenuta");
    conChiusura(xml, "CausalePagamento", d.causalepagamento.text(), "Causalepagamento");
    xml.chiudi(8, "DatiRitenuta");
}

void cassaPrevidenziale(ScrittoreXml& xml, const Fpa& d) {
    if (d.tipocassa.trimmed().isEmpty())
        return;
    xml.apri(8, "DatiCassaPrevidenziale");
    xml.elemento(10, "TipoCassa", d.tipocassa.text());
    xml.sePresente(10, "AlCassa", d.alcassa.text());
    xml.sePresente(10, "ImportoContributoCassa", d.importocassa.text());
    xml.sePresente(10, "ImponibileCassa", d.imponibilecassa.text());
    xml.sePresente(10, "AliquotaIVA", d.aliquotacassa.text());
    if (d.ritenutacassa.text() == u"SI")
        xml.elemento(10, "Ritenuta", d.ritenutacassa.text());
    if (valore(d.aliquotacassa.text()) == 0.0)
        xml.elemento(10, "Natura", d.naturacassa.text());
    xml.chiudi(8, "DatiCassaPrevidenziale");
}

void documentoGenerale(ScrittoreXml& xml, const Fpa& d) {
    xml.apri(6, "DatiGeneraliDocumento");
    xml.elemento(8, "TipoDocumento", d.tipodocpa.text());
    xml.elemento(8, "Divisa", u"EUR");
    xml.elemento(8, "Data", dataXml(d.datadoc.text()));
    xml.elemento(8, "Numero", d.numerodoc.text());
    ritenuta(xml, d);
    cassaPrevidenziale(xml, d);
    if (d.art73flag.text() == u"1")
        xml.elemento(8, "Art73", u"SI");
    xml.chiudi(6, "DatiGeneraliDocumento");
}

void riferimento(ScrittoreXml& xml, QByteArrayView nome, const RiferimentoFpa& r, const Fpa& d) {
    if (!pieno(r.numero.text()))
        return;
    xml.apri(6, nome);
    xml.elemento(8, "RiferimentoNumeroLinea", u"1");
    xml.elemento(8, "IdDocumento", r.numero.text());
    if (pieno(r.data.text()))
        xml.elemento(8, "Data", dataXml(r.data.text()));
    sePieno(xml, 8, "NumItem", r.item.text());
    sePieno(xml, 8, "CodiceCommessaConvenzione", r.commessa.text());
    sePieno(xml, 8, "CodiceCUP", d.codicecup.text());
    sePieno(xml, 8, "CodiceCIG", d.codicecig.text());
    xml.chiudi(6, nome);
}

void documentoTrasporto(ScrittoreXml& xml, const Fpa& d) {
    xml.apri(6, "DatiDDT");
    xml.elemento(8, "NumeroDDT", d.numeroddt.text());
    xml.elemento(8, "DataDDT", dataXml(d.dataddt.text()));
    xml.chiudi(6, "DatiDDT");
}

void vettore(ScrittoreXml& xml, const Fpa& d) {
    xml.apri(6, "DatiTrasporto");
    xml.apri(8, "DatiAnagraficiVettore");
    xml.apri(10, "IdFiscaleIVA");
    sePieno(xml, 12, "IdPaese", d.vettorepaese.text());
    sePieno(xml, 12, "IdCodice", d.vettorecodice.text());
    xml.chiudi(10, "IdFiscaleIVA");
    sePieno(xml, 10, "CodiceFiscale", d.vettorecf.text());
    xml.apri(10, "Anagrafica");
    xml.elemento(12, "Denominazione", d.vettorenome.text());
    xml.chiudi(10, "Anagrafica");
    xml.chiudi(8, "DatiAnagraficiVettore");
    xml.chiudi(6, "DatiTrasporto");
}

} // namespace

QString dataXml(QStringView data) {
    return pezzo(data, postoAnno) + u'-' + pezzo(data, postoMese) + u'-' + pezzo(data, postoGiorno);
}

void scriviDatiGenerali(ScrittoreXml& xml, const Fpa& d) {
    xml.apri(4, "DatiGenerali");
    documentoGenerale(xml, d);
    riferimento(xml, "DatiOrdineAcquisto", d.ordine, d);
    riferimento(xml, "DatiContratto", d.contratto, d);
    riferimento(xml, "DatiConvenzione", d.convenzione, d);
    riferimento(xml, "DatiRicezione", d.ricezione, d);
    if (valore(d.numeroddt.text()) > 0)
        documentoTrasporto(xml, d);
    else if (pieno(d.vettorenome.text()))
        vettore(xml, d);
    xml.chiudi(4, "DatiGenerali");
}

} // namespace bor
