// A company, a customer and a document for today's electronic invoice, for the tests to vary. Its VAT rows
// and instalments are those that its lines come to, as the screens would store them.
#pragma once

#include "archive/tabelle.h"
#include "common/numeri.h"
#include "document/totaliparcella.h"
#include "document/totaliriga.h"
#include "fatturapa/componi.h"
#include "fatturapa/scrivifattura.h"

#include <cstring>

namespace bor {

inline Fpa societaFel() {
    Fpa a = vuoto<Fpa>();
    std::memset(&a, ' ', sizeof a);
    a.statoquadri.set(u"999");
    a.idpaese.set(u"IT");
    a.idcodice.set(u"01234567897");
    a.codfiscale.set(u"01234567897");
    a.partitaiva.set(u"01234567897");
    a.regimefiscale.set(u"0");
    a.denominazione.set(u"Caffè & Figli S.r.l.");
    a.sede.indirizzo.set(u"Via dell’Artigianato, 1");
    a.sede.cap.set(u"00184");
    a.sede.comune.set(u"Roma");
    a.sede.provincia.set(u"RM");
    return a;
}

inline Cli clienteFel() {
    Cli c = vuoto<Cli>();
    c.sede.ragione1.set(u"Ferramenta Lucci");
    c.sede.indirizzo.set(u"Piazza Parini 4");
    c.sede.cap.set(u"22063");
    c.sede.citta.set(u"Cantù");
    c.partitaiva.set(u"29540810164");
    c.nazione.set(u"IT");
    return c;
}

struct DocumentoDiProva {
    DocumentoDiProva() {
        aliquota(1, u"22");
        aliquota(2, u"10");
        aliquota(3, u"4");
        aliquota(4, u"22", u"20", u"2", u"4");
        esenzione(1, u"Art. 15", 0);
        esenzione(6, u"Art. 8", 2);
        esenzione(7, u"Art. 10", 3);
        propri.azienda.iban = QStringLiteral("IT60X0542811101000000123456");
        propri.azienda.causaleritenuta = QStringLiteral("A");
        propri.azienda.cassaci = QStringLiteral("TC04");
        propri.azienda.naturaci = QStringLiteral("N4");
        cliente(clienteFel());
        documento.estremi.numero = QStringLiteral("12");
        documento.estremi.data = QStringLiteral("15/03/2015");
    }

    void aliquota(int riga, QStringView iva, QStringView ra = {}, QStringView ci = {}, QStringView cp = {}) {
        tabelle.aliquote[riga] = {iva.toString(), ra.toString(), ci.toString(), cp.toString()};
    }
    void esenzione(int riga, QStringView riferimento, int natura) {
        tabelle.esenzioni[riga] = {riferimento.toString(),
                                   QStringLiteral("Esente").leftJustified(100) + QString::number(natura)};
    }
    void cliente(const Cli& cli) {
        documento.cliente = cli;
        documento.testata.cliente = DatiCliente::da(cli);
    }
    /// A payment type whose code tells the given kind.
    void tipoPagamento(QChar tipo) {
        tabelle.tipopagamenti[1].codice = QString(22, u'0') + tipo;
        documento.scadenze.pagamento = 0;
    }

    /// Stores what the lines come to, and one instalment of all that is due.
    void chiudi() {
        auto& [fte, f2e] = documento.coppia;
        TabellaIva iva;
        double ritenuta = 0;
        double base = 0;
        if (documento.parcella()) {
            const TotaliParcella t =
                totaliParcella(documento.dddp, documento.testata.pratica, tabelle, valuta);
            iva = t.iva;
            ritenuta = t.ritenuta;
            base = t.baseritenuta;
        } else {
            const TotaliRighe t = ricalcola(documento.ddd, documento.scorporo, tabelle, valuta);
            iva = t.iva;
            ritenuta = t.importorit;
            base = t.baserit;
        }
        double netto = -ritenuta;
        for (int riga = 1; riga <= righeIva; ++riga) {
            const auto i = static_cast<std::size_t>(riga <= 8 ? riga - 1 : riga - 9);
            (riga <= 8 ? fte.impon[i] : f2e.impon[i]) = iva.imponibili[riga];
            (riga <= 8 ? fte.iva[i] : f2e.iva[i]) = iva.imposte[riga];
            (riga <= 8 ? fte.esen[i] : f2e.esen[i]) = iva.esenti[riga];
            netto += iva.imponibili[riga] + iva.imposte[riga] + iva.esenti[riga];
        }
        f2e.raimp[0] = ritenuta;
        f2e.raimpo[0] = base;
        documento.scadenze.rate[0] = {QStringLiteral("30/04/2015"), testoDecimale(netto)};
    }

    Composta composta() {
        chiudi();
        return componi({documento, azienda, nullptr, propri, tabelle, valuta, QStringLiteral("0000A")});
    }

    Riga& riga(std::size_t i) { return documento.ddd[i]; }

    Tabelle tabelle;
    Valuta valuta;
    Fpa azienda = societaFel();
    DatiFel propri;
    Documento documento;
};

} // namespace bor
