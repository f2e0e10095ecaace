#include "fatturapa/scrivifattura.h"

#include "common/numeri.h"
#include "fatturapa/elementixml.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr QStringView spazioFattura = u"http://ivaservizi.agenziaentrate.gov.it/docs/xsd/fatture/v1.2";

void scriviAllegato(ElementiXml& xml, const AllegatoFel& allegato) {
    xml.blocco(u"Allegati"_s, [&] {
        xml.testo(u"NomeAttachment"_s, allegato.nome);
        xml.testo(u"FormatoAttachment"_s, u"PDF"_s);
        xml.testo(u"Attachment"_s, QString::fromLatin1(allegato.contenuto.toBase64()));
    });
}

} // namespace

QString testoDecimali(double x, int minimi, int massimi) {
    QString testo = testoFisso(x, massimi);
    const qsizetype intere = testo.indexOf(u'.') + 1;
    while (testo.size() > intere + minimi && testo.endsWith(u'0'))
        testo.chop(1);
    return testo;
}

QByteArray scriviFattura(const FatturaElettronica& f) {
    QString testo;
    QXmlStreamWriter scrittore(&testo);
    scrittore.writeNamespace(spazioFattura.toString(), u"p"_s);
    scrittore.writeStartElement(spazioFattura.toString(), u"FatturaElettronica"_s);
    scrittore.writeAttribute(u"versione"_s, f.trasmissione.pubblica ? u"FPA12"_s : u"FPR12"_s);
    ElementiXml xml(scrittore, testo);
    scriviTestata(xml, f);
    xml.blocco(u"FatturaElettronicaBody"_s, [&] {
        scriviDatiGenerali(xml, f);
        scriviBeniServizi(xml, f);
        scriviPagamento(xml, f.pagamento);
        if (f.allegato)
            scriviAllegato(xml, *f.allegato);
    });
    scrittore.writeCharacters(u"\n"_s);
    scrittore.writeEndDocument();
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + testo.toUtf8();
}

} // namespace bor
