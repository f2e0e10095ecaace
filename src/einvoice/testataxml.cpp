#include "einvoice/partixml.h"

#include "common/numeri.h"

namespace bor {

using namespace Qt::StringLiterals;

namespace {

void trasmissione(ScrittoreXml& xml, const Fpa& azienda, const Fpa& documento) {
    xml.apri(4, "DatiTrasmissione");
    xml.apri(6, "IdTrasmittente");
    xml.elemento(8, "IdPaese", azienda.idpaese.text());
    xml.elemento(8, "IdCodice", azienda.idcodice.text());
    xml.chiudi(6, "IdTrasmittente");
    xml.elemento(6, "ProgressivoInvio", documento.progressivoinvio.text());
    xml.elemento(6, "FormatoTrasmissione", u"SDI10");
    xml.elemento(6, "CodiceDestinatario", documento.coddestinatario.text());
    xml.apri(6, "ContattiTrasmittente");
    xml.sePresente(8, "Telefono", azienda.telefono.text());
    xml.sePresente(8, "Email", azienda.email.text());
    xml.chiudi(6, "ContattiTrasmittente");
    xml.chiudi(4, "DatiTrasmissione");
}

void anagraficaAzienda(ScrittoreXml& xml, const Fpa& azienda) {
    xml.apri(6, "DatiAnagrafici");
    xml.apri(8, "IdFiscaleIVA");
    xml.elemento(10, "IdPaese", azienda.idpaese.text());
    xml.elemento(10, "IdCodice", azienda.partitaiva.text());
    xml.chiudi(8, "IdFiscaleIVA");
    xml.elemento(8, "CodiceFiscale", azienda.codfiscale.text());
    xml.apri(8, "Anagrafica");
    if (!puliscitesto(azienda.denominazione.text()).isEmpty()) {
        xml.elemento(10, "Denominazione", azienda.denominazione.text());
    } else {
        xml.elemento(10, "Nome", azienda.nome.text());
        xml.elemento(10, "Cognome", azienda.cognome.text());
    }
    xml.chiudi(8, "Anagrafica");
    const QString regime = testoDecimale(valore(azienda.regimefiscale.text()) + 1);
    xml.elemento(8, "RegimeFiscale", u"RF"_s + zeriDavanti(regime, 2));
    xml.chiudi(6, "DatiAnagrafici");
}

void indirizzo(ScrittoreXml& xml, const SedeFpa& sede) {
    xml.elemento(8, "Indirizzo", sede.indirizzo.text());
    xml.elemento(8, "CAP", sede.cap.text());
    xml.elemento(8, "Comune", sede.comune.text());
}

/// The country of the registered office goes with its province, that of the permanent establishment with
/// itself.
void sediAzienda(ScrittoreXml& xml, const Fpa& azienda) {
    xml.apri(6, "Sede");
    indirizzo(xml, azienda.sede);
    const QString provincia = azienda.sede.provincia.trimmed();
    if (!provincia.isEmpty()) {
        xml.elemento(8, "Provincia", maiuscolo(provincia));
        xml.elemento(8, "Nazione", maiuscolo(azienda.sede.nazione.text()));
    }
    xml.chiudi(6, "Sede");

    const SedeFpa& stabile = azienda.stabile;
    if (stabile.indirizzo.trimmed().isEmpty() && stabile.comune.trimmed().isEmpty())
        return;
    xml.apri(6, "StabileOrganizzazione");
    indirizzo(xml, stabile);
    xml.sePresente(8, "Provincia", maiuscolo(stabile.provincia.text()));
    xml.sePresente(8, "Nazione", maiuscolo(stabile.nazione.text()));
    xml.chiudi(6, "StabileOrganizzazione");
}

void iscrizioneRea(ScrittoreXml& xml, const Fpa& azienda) {
    constexpr double iscritta = 1;
    constexpr double conCapitale = 2;
    if (valore(azienda.iscrizionerea.text()) != iscritta)
        return;
    const bool capitale = valore(azienda.formasocieta.text()) == conCapitale;
    xml.apri(6, "IscrizioneREA");
    xml.elemento(8, "Ufficio", azienda.reaufficio.text());
    xml.elemento(8, "NumeroREA", azienda.reanumero.text());
    if (capitale) {
        xml.sePresente(8, "CapitaleSociale", azienda.capitalesociale.text());
        xml.elemento(8, "SocioUnico", azienda.sociounico.text());
    }
    xml.elemento(8, "StatoLiquidazione", azienda.statoliquidazione.text());
    xml.chiudi(6, "IscrizioneREA");
}

void cedente(ScrittoreXml& xml, const Fpa& azienda) {
    xml.apri(4, "CedentePrestatore");
    anagraficaAzienda(xml, azienda);
    sediAzienda(xml, azienda);
    iscrizioneRea(xml, azienda);
    xml.apri(6, "Contatti");
    xml.sePresente(8, "Telefono", azienda.telefono.text());
    xml.sePresente(8, "Fax", azienda.fax.text());
    xml.sePresente(8, "Email", azienda.email.text());
    xml.chiudi(6, "Contatti");
    xml.chiudi(4, "CedentePrestatore");
}

/// A customer without VAT number has no country either: its line stays, empty.
void committente(ScrittoreXml& xml, const Cli& cliente) {
    QString paese;
    xml.apri(4, "CessionarioCommittente");
    xml.apri(6, "DatiAnagrafici");
    if (!cliente.partitaiva.trimmed().isEmpty()) {
        paese = maiuscolo(cliente.nazione.trimmed());
        if (paese.size() != 2)
            paese = u"IT"_s;
        xml.apri(8, "IdFiscaleIVA");
        xml.elemento(10, "IdPaese", paese);
        xml.elemento(10, "IdCodice", cliente.partitaiva.text());
        xml.chiudi(8, "IdFiscaleIVA");
    }
    xml.elemento(8, "CodiceFiscale", cliente.codicefiscale.text());
    xml.apri(8, "Anagrafica");
    xml.elemento(10, "Denominazione", cliente.sede.ragione1.text());
    xml.chiudi(8, "Anagrafica");
    xml.chiudi(6, "DatiAnagrafici");
    xml.apri(6, "Sede");
    xml.elemento(8, "Indirizzo", cliente.sede.indirizzo.text());
    xml.elemento(8, "CAP", cliente.sede.cap.text());
    xml.elemento(8, "Comune", cliente.sede.citta.text());
    xml.elemento(8, "Nazione", paese);
    xml.chiudi(6, "Sede");
    xml.chiudi(4, "CessionarioCommittente");
}

} // namespace

void scriviTestata(ScrittoreXml& xml, const DatiXml& dati) {
    xml.apri(2, "FatturaElettronicaHeader");
    trasmissione(xml, dati.azienda, dati.documento);
    cedente(xml, dati.azienda);
    committente(xml, dati.cliente);
    xml.elemento(4, "SoggettoEmittente", u"CC");
    xml.chiudi(2, "FatturaElettronicaHeader");
}

} // namespace bor
