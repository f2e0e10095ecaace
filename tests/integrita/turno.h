// A company with accounts and stock, and a program at work on it, posting included, for tests of what stays
// of a registration that is stopped.
#pragma once

#include "document/programma.h"
#include "posting/borftec.h"
#include "posting/registrazionicontabili.h"

namespace bor {

inline constexpr double giacenzaIniziale = 100000;

/// A customer with accounts, two articles in stock, a chart of accounts, a spare warehouse row.
inline void fondaDitta(AziendaDiProva& azienda) {
    Cli cli = clienteDi(QStringLiteral("Rossi"));
    cli.contocliente.set(u"10010001");
    cli.contoricavi.set(u"40010001");
    cli.contoiva.set(u"20050001");
    cli.contoesenti.set(u"40020001");
    azienda.cliente(cli);
    for (const int n : {1, 2}) {
        Art art = articoloDi(QStringLiteral("A%1").arg(n), QStringLiteral("Vite"), 10, 1);
        art.giacenza = giacenzaIniziale;
        azienda.articolo(art);
    }
    ContestoDiProva prova(azienda);
    Archivio& a = prova.archivio;
    for (const int n : {1, 2}) {
        Srb srb = vuoto<Srb>();
        srb.recordart = static_cast<std::int16_t>(n);
        a.srb.scrivi(n, srb);
    }
    for (const QStringView codice : {u"10010001", u"40010001", u"20050001", u"40020001"}) {
        Con con = vuoto<Con>();
        con.codice.set(codice);
        aggiungi(a, a.con, Conta::Con, con);
    }
    aggiungi(a, a.mag, Conta::Mag, vuoto<Mag>());
}

/// One run of the program, posting included, in the hands of an operator who says yes to everything.
struct Turno {
    explicit Turno(const AziendaDiProva& azienda) : p(azienda), editor(p.prova.contesto, p.documento) {
        p.prova.tabelle.contabili[15] = QStringLiteral("Ft. $D");
        p.prova.orologio.momento = QDateTime(QDate(2015, 3, 15), QTime(12, 0));
    }
    /// A new document of three lines, two of them of one article.
    void nuovo(const QString& numero, int tipo = 0) {
        p.nuovo(numero, tipo);
        for (std::size_t i = 0; i < 3; ++i) {
            p.documento.ddd[i] = rigaDi(10.5 + static_cast<double>(i));
            p.documento.ddd[i].recart = i == 2 ? 1 : static_cast<int>(i) + 1;
        }
        p.riporta();
    }
    bool salva() {
        const EsitoSalva esito = salvadoc(p.documento, p.prova.contesto, registrazioni, p.sospese);
        p.prova.sessione.modificamovimento = esito.modificamovimento;
        return esito.dopo != DopoSalva::Resta;
    }
    bool registra() {
        p.prova.navigatore.mostrati.clear();
        editor.salva();
        return !p.prova.navigatore.mostrati.isEmpty();
    }

    Programma p;
    Borftec editor;
    RegistrazioniContabili registrazioni{p.prova.contesto, editor};
};

} // namespace bor
