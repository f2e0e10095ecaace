#include "giornata/ditta.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Where a table of `borlano.tab` begins, counted in lines from 0.
constexpr qsizetype lineaAliquote = 0;
constexpr qsizetype lineaEsenzioni = 8 * 4 + 8 * 3;
constexpr qsizetype lineaPagamenti = lineaEsenzioni + 9 * 2 + 9 * 2;

QByteArray tabelle() {
    QStringList linee(lineaPagamenti + 2 * std::ssize(pagamentiNoti));
    for (qsizetype r = 1; r < std::ssize(aliquoteNote); ++r)
        linee[lineaAliquote + (r - 1) * 4] = QString::number(aliquoteNote[static_cast<std::size_t>(r)]);
    linee[lineaEsenzioni + 3 * 2] = u"Art. 8"_s;
    linee[lineaEsenzioni + 3 * 2 + 1] = u"Non imponibile"_s;
    for (qsizetype p = 0; p < std::ssize(pagamentiNoti); ++p) {
        const PagamentoNoto& noto = pagamentiNoti[static_cast<std::size_t>(p)];
        linee[lineaPagamenti + 2 * p] = noto.descrizione.toString();
        linee[lineaPagamenti + 2 * p + 1] = noto.codice.toString();
    }
    return linee.join(u"\r\n"_s).toLatin1() + "\r\n";
}

QString barcode(const ArticoloNoto& articolo) {
    return u"80000%1"_s.arg(&articolo - articoliNoti.data() + 1);
}

void scriviArticolo(Archivio& archivio, const ArticoloNoto& noto) {
    Art art =
        articoloDi(noto.codice.toString(), noto.descrizione.toString(), noto.listino1 / 100.0, noto.iva);
    art.listino2 = noto.listino2 / 100.0;
    art.giacenza = giacenzaIniziale;
    art.barcode.set(barcode(noto));
    const int n = aggiungi(archivio, archivio.art, Conta::Art, art);
    Prx prx = vuoto<Prx>();
    for (int i = 0; i < noto.testi; ++i)
        prx.riga[static_cast<std::size_t>(i)].set(u"%1, nota %2"_s.arg(noto.descrizione).arg(i + 1));
    prx.marca = Prx::marcaValida;
    archivio.prx.scrivi(n, prx);
    Srb srb = vuoto<Srb>();
    srb.barcode.set(barcode(noto));
    srb.recordart = static_cast<std::int16_t>(n);
    archivio.srb.scrivi(n, srb);
    Mag carico = vuoto<Mag>();
    carico.data.set(u"20150101");
    carico.descrizione.set(u"Carico iniziale");
    carico.articolo = static_cast<std::int16_t>(n);
    carico.quantita = giacenzaIniziale;
    aggiungi(archivio, archivio.mag, Conta::Mag, carico);
}

void scriviConto(Archivio& archivio, QStringView codice, const QString& descrizione) {
    Con con = vuoto<Con>();
    con.codice.set(codice);
    con.descrizione.set(descrizione);
    aggiungi(archivio, archivio.con, Conta::Con, con);
}

void scriviClienti(AziendaDiProva& azienda) {
    for (std::size_t i = 0; i < clientiNoti.size(); ++i) {
        const ClienteNoto& noto = clientiNoti[i];
        Cli cli = clienteDi(noto.ragione.toString());
        cli.sconto1 = static_cast<std::int16_t>(noto.sconto1);
        cli.sconto2 = static_cast<std::int16_t>(noto.sconto2);
        cli.listino.set(noto.listino2 ? u"1" : u" ");
        cli.regimeiva = static_cast<std::int16_t>(noto.regimeiva);
        cli.pagamento = static_cast<std::int16_t>(noto.pagamento + 1);
        cli.contocliente.set(contoCliente(static_cast<int>(i) + 1));
        cli.contoricavi.set(contoRicavi);
        cli.contoiva.set(contoIva);
        cli.contoesenti.set(contoEsenti);
        azienda.cliente(cli);
    }
}

} // namespace

QString contoCliente(int n) {
    return u"0101000%1"_s.arg(n);
}

void scriviDitta(AziendaDiProva& azienda) {
    scriviClienti(azienda);
    azienda.scrivi(u"borlano.tab"_s, tabelle());
    Disco disco;
    Archivio archivio(azienda.percorsi(), disco, 7);
    archivio.apri();
    for (const ArticoloNoto& noto : articoliNoti)
        scriviArticolo(archivio, noto);
    for (std::size_t i = 0; i < clientiNoti.size(); ++i)
        scriviConto(archivio, contoCliente(static_cast<int>(i) + 1), clientiNoti[i].ragione.toString());
    scriviConto(archivio, contoRicavi, u"Vendite di merci"_s);
    scriviConto(archivio, contoRicaviDiversi, u"Ricavi diversi"_s);
    scriviConto(archivio, contoIva, u"Iva su vendite"_s);
    scriviConto(archivio, contoEsenti, u"Vendite non imponibili"_s);
}

} // namespace bor
