// One program at work on a company, without screens: it opens, changes, saves and deletes documents.
#pragma once

#include "document/apridoc.h"
#include "document/eliminadoc.h"
#include "document/filerighe.h"
#include "document/righeinsospeso.h"
#include "document/salvadoc.h"
#include "document/totali.h"
#include "document/totaliparcella.h"
#include "support/azienda.h"
#include "support/disco_guasto.h"
#include "support/registrazioni_finte.h"

namespace bor {

/// One program at work on the company.
struct Programma {
    explicit Programma(const AziendaDiProva& azienda) : prova(azienda, disco) {
        prova.tabelle.aliquote[1] = {QStringLiteral("22"), QStringLiteral("20"), {}, QStringLiteral("4")};
        prova.tabelle.tipopagamenti[2] = {QStringLiteral("Rimessa diretta"), QStringLiteral("000")};
    }
    EsitoSalva salva() { return salvadoc(documento, prova.contesto, registrazioni, sospese); }
    bool elimina() { return eliminadoc(documento, prova.contesto, registrazioni, sospese); }
    void nuovo(const QString& numero, int tipo = 0) {
        documento = nuovoDocumento(prova.contesto, tipo, 1);
        documento.coppia.fte.nfile = -1.0F;
        documento.estremi.numero = numero;
        documento.estremi.data = QStringLiteral("15/03/2015");
        documento.estremi.datareg = QStringLiteral("16/03/2015");
        documento.scadenze.pagamento = 1;
        documento.scadenze.rate[0].scadenza = QStringLiteral("15/04/2015");
    }
    void apri(int record) { documento = documentoEsistente(prova.contesto, record, sospese).value(); }
    void riporta() {
        const TotaliRighe t =
            ricalcola(documento.ddd, documento.scorporo, prova.tabelle, prova.contesto.valuta());
        riportaTotali(documento, t.iva, t.baserit, t.importorit, prova.contesto);
    }
    /// Lines of the document wait for its lines file.
    bool inSospeso() const {
        Documento copia = documento;
        return sospese.riprendi(copia);
    }
    int documenti() const { return prova.archivio.leggiTot(Conta::Fte).numero; }

    DiscoGuasto disco;
    ContestoDiProva prova;
    RegistrazioniFinte registrazioni;
    RigheInSospeso sospese;
    Documento documento;
};

inline Riga rigaDi(double prezzo, int sconto = 0) {
    return {.recart = 1,
            .codice = QStringLiteral("VITE"),
            .descrizione = QStringLiteral("Vite à testa €"),
            .um = QStringLiteral("pz"),
            .sconto1 = sconto,
            .iva = 1,
            .quantita = 1,
            .prezzo = prezzo};
}

} // namespace bor
