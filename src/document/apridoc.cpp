#include "document/apridoc.h"

#include "archive/contesto.h"
#include "document/clienti.h"
#include "document/defaultcliente.h"
#include "document/filerighe.h"
#include "document/integrata.h"
#include "document/recorddoc.h"
#include "document/scadenze.h"

namespace bor {

Documento nuovoDocumento(const Contesto& contesto, int tipodocumento, int recordcliente) {
    Documento documento;
    inizializza2(documento.coppia.f2e);
    documento.coppia.fte.tipo = breve(tipodocumento);
    documento.recordcliente = recordcliente;
    prendiCliente(documento, contesto.archivio, recordcliente);
    prendiDefaults(documento, contesto);

    const Tot contatore = contesto.archivio.leggiTot(Conta::Fte);
    Estremi& estremi = documento.estremi;
    estremi.numero = QString::number(contatore.ultimonumero + 1);
    estremi.protocollo = QString::number(contatore.numero + 1);
    estremi.data = testoData(contesto.orologio.oggi());
    estremi.datareg = estremi.data;
    calcolascadenze(documento, contesto);
    return documento;
}

std::optional<Documento> documentoEsistente(const Contesto& contesto, int recordfattura,
                                            RigheInSospeso& sospese) {
    Documento documento;
    documento.recordfattura = recordfattura;
    contesto.archivio.disco().dimentica();
    if (!contesto.archivio.leggi(recordfattura, documento.coppia))
        return std::nullopt;
    caricadoc(documento, contesto.archivio);
    prendiCliente(documento, contesto.archivio, documento.recordcliente);
    documento.estremi.postael = documento.cliente.postael.text() == u"1";
    if (!leggedoc(documento, contesto.archivio, sospese))
        return std::nullopt;
    documento.integrata = cercaIntegrata(documento.coppia, contesto.tabelle);
    return documento;
}

} // namespace bor
