#include "posting/setfat.h"

#include "archive/contesto.h"
#include "common/date.h"
#include "common/numeri.h"
#include "document/avvisi.h"
#include "document/totali.h"
#include "document/totaliparcella.h"
#include "document/trovamovimento.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// Amounts of a movement, whatever kind of document they come from.
struct Importi {
    double cliente = 0;
    double ritenuta = 0;
    double ricavi = 0;
    double iva = 0;
    double esenti = 0;
};

/// Accounts of a movement.
struct Conti {
    ContoTesti cliente;
    ContoTesti ritenuta;
    ContoTesti ricavi;
    ContoTesti iva;
    ContoTesti esenti;
};

/// A text of the accounting settings: its row, and where it stands in it.
struct PostoContabile {
    int riga;
    Tratto tratto;
};
constexpr PostoContabile contoRitenute{5, {1, 8}};
constexpr PostoContabile contoIvaDifferita{8, {81, 8}};
constexpr PostoContabile descrizioneFattura{15, {1, 40}};
constexpr PostoContabile descrizioneNotaCredito{15, {41, 40}};

QString contabile(const Contesto& contesto, const PostoContabile& posto) {
    return pezzo(contesto.tabelle.contabili[posto.riga], posto.tratto);
}

Conti contiDi(const Documento& documento, const Contesto& contesto) {
    const DatiCliente& testata = documento.testata.cliente;
    Conti c{testata.contocliente, {}, testata.contoricavi, testata.contoiva, testata.contoesenti};
    if (documento.tipoparcella() == 1) {
        c.cliente = ContoTesti::da(documento.cliente.contocliente.text());
        c.ricavi = ContoTesti::da(documento.cliente.contoricavi.text());
        c.iva = ContoTesti::da(documento.cliente.contoiva.text());
        c.esenti = ContoTesti::da(documento.cliente.contoesenti.text());
    }
    c.ritenuta = ContoTesti::da(contabile(contesto, contoRitenute));
    // Tax that becomes due only with the payment waits on an account of its own.
    if (documento.coppia.fte.esigdiff.text() == u"1")
        c.iva = ContoTesti::da(contabile(contesto, contoIvaDifferita));
    return c;
}

/// Replaces the first place of a mark.
void sostituisci(QString& testo, QStringView segno, const QString& valore) {
    const qsizetype dove = testo.indexOf(segno);
    if (dove >= 0)
        testo.replace(dove, segno.size(), valore);
}

QString descrizione(const Documento& documento, const Contesto& contesto) {
    QString testo =
        contabile(contesto, documento.notaCredito() ? descrizioneNotaCredito : descrizioneFattura).trimmed();
    QString numero = puliscitesto(documento.estremi.numero);
    if (contesto.impostazioni.gnr.annoNelNumero())
        numero += u'/' + pezzo(documento.estremi.data, postoAnno);
    sostituisci(testo, u"$D", numero);
    sostituisci(testo, u"$N", documento.cliente.sede.ragione1.trimmed());
    sostituisci(testo, u"$G", documento.estremi.data);
    sostituisci(testo, u"$P", documento.estremi.protocollo.trimmed());
    return testo;
}

/// The stored movement, if the operator wants it back and it can be found.
std::optional<Movimento> precedente(const Documento& documento, const Contesto& contesto) {
    if (documento.recordfattura == 0 ||
        !contesto.operatore.chiedi(
            u"Se desideri modificare il movimento contabile registrato in precedenza clic su 'SI', se invece "
            u"desideri "
            "far generare un nuovo movimento sulla base delle nuove caratteristiche della fattura, clic su 'NO'"_s,
            u"Modifica registrazione contabile"_s))
        return std::nullopt;
    Gio gio;
    std::optional<int> trovato;
    {
        const Attesa attesa(contesto.operatore);
        contesto.archivio.disco().dimentica();
        trovato = trovaMovimento(contesto.archivio, documento.coppia.fte.stamp);
        if (trovato && contesto.archivio.gio.leggi(*trovato, gio) == EsitoLettura::Guasta)
            trovato.reset();
    }
    if (!trovato) {
        avvisaNonRegistrato(contesto, EsitoRaffica::NonLetta);
        return std::nullopt;
    }
    if (*trovato > 0)
        return Movimento::da(gio);
    contesto.operatore.messaggio(
        u"Non è stato possibile recuperare il movimento contabile registrato in precedenza: "
        "verrà generato un nuovo movimento contabile"_s,
        u"Attenzione"_s, Icona::Stop);
    return std::nullopt;
}

Movimento genera(const Documento& documento, const Contesto& contesto, const Importi& importi) {
    Movimento m;
    const bool notaCredito = documento.notaCredito();
    const Conti conti = contiDi(documento, contesto);
    std::size_t k = 0;
    const auto aggiungi = [&](const ContoTesti& conto, double importo, bool inDare) {
        m.righe[k].conto = conto;
        (inDare ? m.righe[k].dare : m.righe[k].avere) = testoDecimale(importo);
        ++k;
    };
    aggiungi(conti.cliente, importi.cliente, !notaCredito);
    if (importi.ritenuta > 0)
        aggiungi(conti.ritenuta, importi.ritenuta, !notaCredito);
    if (importi.ricavi > 0)
        aggiungi(conti.ricavi, importi.ricavi, notaCredito);
    if (importi.iva > 0)
        aggiungi(conti.iva, importi.iva, notaCredito);
    if (importi.esenti > 0)
        aggiungi(conti.esenti, importi.esenti, notaCredito);
    m.descrizione = descrizione(documento, contesto);
    m.data = documento.estremi.datareg;
    return m;
}

} // namespace

Movimento setfat(const Documento& documento, const Contesto& contesto) {
    if (auto vecchio = precedente(documento, contesto))
        return *vecchio;
    Totali t = totali(documento);
    if (documento.integrata != Integrata::No) {
        // The seller's invoice is posted on its own: this movement carries the tax alone.
        t.somma1 = 0;
        t.somma3 = 0;
    }
    const double totale = t.somma2 + t.somma1 + t.somma3;
    return genera(documento, contesto, {totale - t.ritenuta, t.ritenuta, t.somma1, t.somma2, t.somma3});
}

Movimento setpar(const Documento& documento, const Contesto& contesto) {
    if (auto vecchio = precedente(documento, contesto))
        return *vecchio;
    const TotaliParcella t =
        totaliParcella(documento.dddp, documento.testata.pratica, contesto.tabelle, contesto.valuta());
    return genera(documento, contesto,
                  {t.nettodocumento, t.ritenuta, t.totonorari + t.totspese + t.contributoci + t.contributocp,
                   t.imposta, t.totanticipazioni});
}

} // namespace bor
