#include "fatturapa/elementixml.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

void indirizzo(ElementiXml& xml, const QString& nome, const IndirizzoFel& sede) {
    xml.blocco(nome, [&] {
        xml.testo(u"Indirizzo"_s, sede.indirizzo);
        xml.testo(u"CAP"_s, sede.cap);
        xml.testo(u"Comune"_s, sede.comune);
        xml.sePieno(u"Provincia"_s, sede.provincia);
        xml.testo(u"Nazione"_s, sede.nazione);
    });
}

void trasmissione(ElementiXml& xml, const FatturaElettronica& f) {
    const TrasmissioneFel& t = f.trasmissione;
    xml.blocco(u"DatiTrasmissione"_s, [&] {
        scriviIdFiscale(xml, u"IdTrasmittente"_s, t.paese, t.codice);
        xml.testo(u"ProgressivoInvio"_s, t.progressivo);
        xml.testo(u"FormatoTrasmissione"_s, t.pubblica ? u"FPA12"_s : u"FPR12"_s);
        xml.testo(u"CodiceDestinatario"_s, t.destinatario);
        if (!f.cedente.telefono.isEmpty() || !f.cedente.email.isEmpty())
            xml.blocco(u"ContattiTrasmittente"_s, [&] {
                xml.sePieno(u"Telefono"_s, f.cedente.telefono);
                xml.sePieno(u"Email"_s, f.cedente.email);
            });
        xml.sePieno(u"PECDestinatario"_s, t.pec);
    });
}

void iscrizioneRea(ElementiXml& xml, const ReaFel& rea) {
    xml.blocco(u"IscrizioneREA"_s, [&] {
        xml.testo(u"Ufficio"_s, rea.ufficio);
        xml.testo(u"NumeroREA"_s, rea.numero);
        if (rea.capitale)
            xml.importo(u"CapitaleSociale"_s, *rea.capitale);
        xml.sePieno(u"SocioUnico"_s, rea.sociounico);
        xml.testo(u"StatoLiquidazione"_s, rea.liquidazione);
    });
}

void cedente(ElementiXml& xml, const CedenteFel& cedente) {
    xml.blocco(u"CedentePrestatore"_s, [&] {
        xml.blocco(u"DatiAnagrafici"_s, [&] {
            scriviAnagrafica(xml, cedente.soggetto);
            xml.testo(u"RegimeFiscale"_s, cedente.regime);
        });
        indirizzo(xml, u"Sede"_s, cedente.soggetto.sede);
        if (cedente.stabile)
            indirizzo(xml, u"StabileOrganizzazione"_s, *cedente.stabile);
        if (cedente.rea)
            iscrizioneRea(xml, *cedente.rea);
        if (!cedente.telefono.isEmpty() || !cedente.fax.isEmpty() || !cedente.email.isEmpty())
            xml.blocco(u"Contatti"_s, [&] {
                xml.sePieno(u"Telefono"_s, cedente.telefono);
                xml.sePieno(u"Fax"_s, cedente.fax);
                xml.sePieno(u"Email"_s, cedente.email);
            });
    });
}

} // namespace

void scriviIdFiscale(ElementiXml& xml, const QString& nome, const QString& paese, const QString& codice) {
    if (codice.isEmpty())
        return;
    xml.blocco(nome, [&] {
        xml.testo(u"IdPaese"_s, paese);
        xml.testo(u"IdCodice"_s, codice);
    });
}

void scriviAnagrafica(ElementiXml& xml, const SoggettoFel& soggetto) {
    scriviIdFiscale(xml, u"IdFiscaleIVA"_s, soggetto.paese, soggetto.codice);
    xml.sePieno(u"CodiceFiscale"_s, soggetto.codicefiscale);
    xml.blocco(u"Anagrafica"_s, [&] {
        if (!soggetto.denominazione.isEmpty()) {
            xml.testo(u"Denominazione"_s, soggetto.denominazione);
        } else {
            xml.testo(u"Nome"_s, soggetto.nome);
            xml.testo(u"Cognome"_s, soggetto.cognome);
        }
    });
}

void scriviTestata(ElementiXml& xml, const FatturaElettronica& f) {
    xml.blocco(u"FatturaElettronicaHeader"_s, [&] {
        trasmissione(xml, f);
        cedente(xml, f.cedente);
        xml.blocco(u"CessionarioCommittente"_s, [&] {
            xml.blocco(u"DatiAnagrafici"_s, [&] { scriviAnagrafica(xml, f.cessionario); });
            indirizzo(xml, u"Sede"_s, f.cessionario.sede);
        });
    });
}

} // namespace bor
