#include "fatturapa/elementixml.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

void indirizzo(ElementiXml& xml, QStringView nome, const IndirizzoFel& sede) {
    xml.blocco(nome, [&] {
        xml.testo(u"Indirizzo", sede.indirizzo);
        xml.testo(u"CAP", sede.cap);
        xml.testo(u"Comune", sede.comune);
        xml.sePieno(u"Provincia", sede.provincia);
        xml.testo(u"Nazione", sede.nazione);
    });
}

void trasmissione(ElementiXml& xml, const FatturaElettronica& f) {
    const TrasmissioneFel& t = f.trasmissione;
    xml.blocco(u"DatiTrasmissione", [&] {
        scriviIdFiscale(xml, u"IdTrasmittente", t.paese, t.codice);
        xml.testo(u"ProgressivoInvio", t.progressivo);
        xml.testo(u"FormatoTrasmissione", t.pubblica ? u"FPA12"_s : u"FPR12"_s);
        xml.testo(u"CodiceDestinatario", t.destinatario);
        if (!f.cedente.telefono.isEmpty() || !f.cedente.email.isEmpty())
            xml.blocco(u"ContattiTrasmittente", [&] {
                xml.sePieno(u"Telefono", f.cedente.telefono);
                xml.sePieno(u"Email", f.cedente.email);
            });
        xml.sePieno(u"PECDestinatario", t.pec);
    });
}

void iscrizioneRea(ElementiXml& xml, const ReaFel& rea) {
    xml.blocco(u"IscrizioneREA", [&] {
        xml.testo(u"Ufficio", rea.ufficio);
        xml.testo(u"NumeroREA", rea.numero);
        if (rea.capitale)
            xml.importo(u"CapitaleSociale", *rea.capitale);
        xml.sePieno(u"SocioUnico", rea.sociounico);
        xml.testo(u"StatoLiquidazione", rea.liquidazione);
    });
}

void cedente(ElementiXml& xml, const CedenteFel& cedente) {
    xml.blocco(u"CedentePrestatore", [&] {
        xml.blocco(u"DatiAnagrafici", [&] {
            scriviAnagrafica(xml, cedente.soggetto);
            xml.testo(u"RegimeFiscale", cedente.regime);
        });
        indirizzo(xml, u"Sede", cedente.soggetto.sede);
        if (cedente.stabile)
            indirizzo(xml, u"StabileOrganizzazione", *cedente.stabile);
        if (cedente.rea)
            iscrizioneRea(xml, *cedente.rea);
        if (!cedente.telefono.isEmpty() || !cedente.fax.isEmpty() || !cedente.email.isEmpty())
            xml.blocco(u"Contatti", [&] {
                xml.sePieno(u"Telefono", cedente.telefono);
                xml.sePieno(u"Fax", cedente.fax);
                xml.sePieno(u"Email", cedente.email);
            });
    });
}

} // namespace

void scriviIdFiscale(ElementiXml& xml, QStringView nome, const QString& paese, const QString& codice) {
    if (codice.isEmpty())
        return;
    xml.blocco(nome, [&] {
        xml.testo(u"IdPaese", paese);
        xml.testo(u"IdCodice", codice);
    });
}

void scriviAnagrafica(ElementiXml& xml, const SoggettoFel& soggetto) {
    scriviIdFiscale(xml, u"IdFiscaleIVA", soggetto.paese, soggetto.codice);
    xml.sePieno(u"CodiceFiscale", soggetto.codicefiscale);
    xml.blocco(u"Anagrafica", [&] {
        if (!soggetto.denominazione.isEmpty()) {
            xml.testo(u"Denominazione", soggetto.denominazione);
        } else {
            xml.testo(u"Nome", soggetto.nome);
            xml.testo(u"Cognome", soggetto.cognome);
        }
    });
}

void scriviTestata(ElementiXml& xml, const FatturaElettronica& f) {
    xml.blocco(u"FatturaElettronicaHeader", [&] {
        trasmissione(xml, f);
        cedente(xml, f.cedente);
        xml.blocco(u"CessionarioCommittente", [&] {
            xml.blocco(u"DatiAnagrafici", [&] { scriviAnagrafica(xml, f.cessionario); });
            indirizzo(xml, u"Sede", f.cessionario.sede);
        });
    });
}

} // namespace bor
