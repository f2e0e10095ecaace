#include "xmlcheck/codicifattura.h"
#include "xmlcheck/paginahtml.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString scontiDi(const Nodo& linea) {
    QStringList sconti;
    for (const Nodo& n : linea.figli) {
        if (n.nome != u"ScontoMaggiorazione")
            continue;
        const QString segno = n.valore(u"Tipo") == u"MG" ? u"+"_s : u"-"_s;
        const QString percento = n.valore(u"Percentuale");
        sconti << segno + (percento.isEmpty() ? numeroItaliano(n.valore(u"Importo"))
                                              : numeroItaliano(percento) + u'%');
    }
    return sconti.join(u' ');
}

QString ivaDi(const Nodo& nodo) {
    const QString natura = nodo.valore(u"Natura");
    return natura.isEmpty() ? numeroItaliano(nodo.valore(u"AliquotaIVA")) + u'%' : natura;
}

/// The rate, or why there is none, in words: for the summaries, where each stands once.
QString ivaInParole(const Nodo& riepilogo) {
    const QString natura = riepilogo.valore(u"Natura");
    const QString testo = testoCodice(ListaCodici::Natura, natura);
    if (!testo.isEmpty())
        return natura + u' ' + testo;
    return natura.isEmpty() ? ivaDi(riepilogo) : codiceInParole(ListaCodici::NaturaDiPrima, natura);
}

QStringList rigaDi(const Nodo& linea) {
    return {linea.valore(u"NumeroLinea"),
            linea.valore(u"Descrizione"),
            numeroItaliano(linea.valore(u"Quantita")),
            linea.valore(u"UnitaMisura"),
            numeroItaliano(linea.valore(u"PrezzoUnitario")),
            scontiDi(linea),
            numeroItaliano(linea.valore(u"PrezzoTotale")),
            ivaDi(linea)};
}

/// Orders, contracts, transport and linked documents.
void mostraRiferimenti(PaginaHtml& pagina, const Nodo& generali) {
    struct Blocco {
        QStringView nome;
        QStringView numero;
        QStringView data;
        QString titolo;
    };
    const Blocco blocchi[] = {{u"DatiOrdineAcquisto", u"IdDocumento", u"Data", u"Ordine"_s},
                              {u"DatiContratto", u"IdDocumento", u"Data", u"Contratto"_s},
                              {u"DatiConvenzione", u"IdDocumento", u"Data", u"Convenzione"_s},
                              {u"DatiRicezione", u"IdDocumento", u"Data", u"Ricezione"_s},
                              {u"DatiFattureCollegate", u"IdDocumento", u"Data", u"Fattura collegata"_s},
                              {u"DatiDDT", u"NumeroDDT", u"DataDDT", u"Documento di trasporto"_s}};
    QList<QStringList> righe;
    for (const Blocco& b : blocchi)
        for (const Nodo& n : generali.figli)
            if (n.nome == b.nome)
                righe << QStringList{b.titolo, n.valore(b.numero), dataItaliana(n.valore(b.data)),
                                     n.valore(u"CodiceCUP"), n.valore(u"CodiceCIG")};
    if (righe.isEmpty())
        return;
    pagina.sezione(u"Riferimenti"_s);
    pagina.tabella({u"Documento"_s, u"Numero"_s, u"Data"_s, u"CUP"_s, u"CIG"_s}, righe);
}

void mostraPagamento(PaginaHtml& pagina, const Nodo& corpo) {
    QList<QStringList> righe;
    for (const Nodo& blocco : corpo.figli) {
        if (blocco.nome != u"DatiPagamento")
            continue;
        for (const Nodo& n : blocco.figli)
            if (n.nome == u"DettaglioPagamento")
                righe << QStringList{codiceInParole(ListaCodici::Modalita, n.valore(u"ModalitaPagamento")),
                                     dataItaliana(n.valore(u"DataScadenzaPagamento")),
                                     n.valore(u"IBAN") + n.valore(u"IstitutoFinanziario"),
                                     numeroItaliano(n.valore(u"ImportoPagamento"))};
    }
    if (righe.isEmpty())
        return;
    pagina.sezione(u"Pagamento"_s);
    pagina.tabella({u"Modalità"_s, u"Scadenza"_s, u"Conto"_s, u">Importo"_s}, righe);
}

} // namespace

void mostraRighe(PaginaHtml& pagina, const Nodo& corpo) {
    if (const Nodo* generali = corpo.figlio(u"DatiGenerali"))
        mostraRiferimenti(pagina, *generali);
    QList<QStringList> linee;
    QList<QStringList> riepiloghi;
    if (const Nodo* beni = corpo.figlio(u"DatiBeniServizi")) {
        for (const Nodo& n : beni->figli) {
            if (n.nome == u"DettaglioLinee")
                linee << rigaDi(n);
            else if (n.nome == u"DatiRiepilogo")
                riepiloghi << QStringList{
                    ivaInParole(n), n.valore(u"RiferimentoNormativo"),
                    numeroItaliano(n.valore(u"ImponibileImporto")), numeroItaliano(n.valore(u"Imposta")),
                    codiceInParole(ListaCodici::Esigibilita, n.valore(u"EsigibilitaIVA"))};
        }
    }
    pagina.sezione(u"Righe"_s);
    pagina.tabella({u"N."_s, u"Descrizione"_s, u">Quantità"_s, u"UM"_s, u">Prezzo"_s, u"Sconti"_s,
                    u">Totale"_s, u"IVA"_s},
                   linee);
    pagina.sezione(u"Riepilogo IVA"_s);
    pagina.tabella({u"IVA"_s, u"Riferimento"_s, u">Imponibile"_s, u">Imposta"_s, u"Esigibilità"_s},
                   riepiloghi);
    mostraPagamento(pagina, corpo);
    QStringList allegati;
    for (const Nodo& n : corpo.figli)
        if (n.nome == u"Allegati")
            allegati << n.valore(u"NomeAttachment");
    pagina.voce(u"Allegati"_s, allegati.join(u", "_s));
}

} // namespace bor
