#include "einvoice/generaxml.h"

#include "einvoice/partixml.h"

namespace bor {

using namespace Qt::StringLiterals;

QByteArray generaxml(const DatiXml& dati) {
    ScrittoreXml xml;
    // The declaration names UTF-8 though the text is in the archive's code page: the files always said so.
    xml.riga(0, {R"(<?xml version="1.0" encoding="UTF-8"?>)"});
    xml.riga(0, {R"(<p:FatturaElettronica versione="1.0")"});
    xml.riga(0, {R"(xmlns:ds="http://www.w3.org/2000/09/xmldsig#")",
                 R"( xmlns:p="http://www.fatturapa.gov.it/sdi/fatturapa/v1.0")",
                 R"( xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">)"});
    scriviTestata(xml, dati);
    xml.apri(2, "FatturaElettronicaBody");
    scriviDatiGenerali(xml, dati.documento);
    scriviBeniServizi(xml, dati);
    scriviPagamento(xml, dati);
    xml.chiudi(2, "FatturaElettronicaBody");
    xml.chiudi(0, "p:FatturaElettronica");
    return xml.bytes();
}

QString cartellaXml(const Fpa& azienda) {
    const QString cartella = azienda.cartellaxml.trimmed();
    return cartella.endsWith(u'\\') ? cartella : cartella + u'\\';
}

QString nomeXml(const Fpa& azienda, const QString& numero) {
    return azienda.idpaese.trimmed() + azienda.idcodice.trimmed() + u'_' + numero.trimmed() + u".xml"_s;
}

QString percorsoXml(const Archivio& archivio, const Fpa& azienda, const QString& numero) {
    const QString nome = nomeXml(azienda, numero);
    if (nome.contains(u'\\') || nome.contains(u".."_s))
        return {};
    return archivio.reale(cartellaXml(azienda) + nome);
}

} // namespace bor
