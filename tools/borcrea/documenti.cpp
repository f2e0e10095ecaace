#include "borcrea/documenti.h"

#include "borcrea/tabellatesto.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/apridoc.h"
#include "document/defaultcliente.h"
#include "document/scadenze.h"
#include "document/totali.h"
#include "document/totaliparcella.h"

namespace bor::crea {

using namespace Qt::StringLiterals;

namespace {

/// The lines of each document, by the key that its table gives it.
struct Righe {
    QHash<QString, TabellaRighe> merce;
    QHash<QString, TabellaRighep> parcella;
};

/// Fills a line from its article as the customer buys it.
void daArticolo(Riga& riga, const Art& art, const Cli& cliente) {
    riga.codice = art.codice.trimmed();
    riga.descrizione = art.descrizione.trimmed();
    riga.um = art.um.trimmed();
    riga.iva = ivaForzata(cliente).nessuno() ? CodiceIva(art.iva) : ivaForzata(cliente);
    riga.prezzo = cliente.listino.text() == u"1" ? art.listino2 : art.listino1;
    riga.sconto1 = cliente.sconto1;
    riga.sconto2 = cliente.sconto2;
    riga.peso = art.peso;
}

Riga leggiRiga(const RigaTabella& foglio, const Anagrafiche& a, const Cli& cliente) {
    Riga riga;
    const QString articolo = foglio.testo(u"articolo", 15);
    if (!articolo.isEmpty()) {
        riga.recart = a.recordArticolo.value(articolo);
        if (riga.recart == 0)
            foglio.problema(u"articolo: \"%1\" non è in articoli.csv."_s.arg(articolo));
        else
            daArticolo(riga, elemento(a.articoli, riga.recart - 1), cliente);
    }
    if (!foglio.vuoto(u"descrizione"))
        riga.descrizione = foglio.testo(u"descrizione", 60);
    if (!foglio.vuoto(u"um"))
        riga.um = foglio.testo(u"um", 2);
    riga.quantita = foglio.numero(u"quantita");
    riga.prezzo = foglio.numero(u"prezzo", riga.prezzo);
    riga.sconto1 = foglio.intero(u"sconto1", 0, 100, riga.sconto1);
    riga.sconto2 = foglio.intero(u"sconto2", 0, 100, riga.sconto2);
    riga.iva = foglio.intero(u"iva", 0, CodiceIva::ultimo, riga.iva.numero());
    if (riga.descrizione.isEmpty())
        foglio.problema(u"serve un articolo o una descrizione."_s);
    return riga;
}

Rigap leggiRigap(const RigaTabella& foglio) {
    Rigap riga;
    riga.data = foglio.testo(u"data", 10);
    riga.descrizione = foglio.obbligatorio(u"descrizione", 50);
    riga.spese = foglio.numero(u"spese");
    riga.anticipazioni = foglio.numero(u"anticipazioni");
    riga.onorari = foglio.numero(u"onorari");
    return riga;
}

/// Which customer and kind each document has, found before the lines are read.
struct Chiave {
    int cliente = 0;
    bool parcella = false;
};

template <class T>
void accoda(const RigaTabella& foglio, std::vector<T>& tabella, const T& riga, int massimo) {
    if (quantiIn(tabella) == massimo)
        foglio.problema(u"il documento ha più di %1 righe."_s.arg(massimo));
    else
        tabella.push_back(riga);
}

/// The key of the document that a line belongs to; empty when there is no such document of this kind.
QString documentoDi(const RigaTabella& foglio, const QHash<QString, Chiave>& chiavi, bool parcella) {
    const QString documento = foglio.obbligatorio(u"documento", 20);
    const auto trovato = chiavi.constFind(documento);
    if (!documento.isEmpty() && trovato == chiavi.constEnd())
        foglio.problema(u"documento: \"%1\" non è in documenti.csv."_s.arg(documento));
    else if (!documento.isEmpty() && trovato->parcella != parcella)
        foglio.problema(
            parcella ? u"documento: \"%1\" non è una parcella."_s.arg(documento)
                     : u"documento: \"%1\" è una parcella, le sue righe vanno in prestazioni.csv."_s.arg(
                           documento));
    else
        return documento;
    return {};
}

Righe leggiRighe(const QString& cartella, const Anagrafiche& a, const QHash<QString, Chiave>& chiavi,
                 Problemi& problemi) {
    Righe righe;
    const TabellaTesto merce(
        cartella, u"righe.csv"_s,
        u"documento articolo descrizione um quantita prezzo sconto1 sconto2 iva"_s.split(u' '), problemi);
    for (const RigaTabella& foglio : merce.righe()) {
        const QString documento = documentoDi(foglio, chiavi, false);
        const int cliente = chiavi.value(documento).cliente;
        if (cliente == 0)
            continue;
        accoda(foglio, righe.merce[documento], leggiRiga(foglio, a, elemento(a.clienti, cliente - 1)),
               righeMerce);
    }
    const TabellaTesto parcelle(cartella, u"prestazioni.csv"_s,
                                u"documento data descrizione spese anticipazioni onorari"_s.split(u' '),
                                problemi);
    for (const RigaTabella& foglio : parcelle.righe()) {
        const QString documento = documentoDi(foglio, chiavi, true);
        if (!documento.isEmpty())
            accoda(foglio, righe.parcella[documento], leggiRigap(foglio), righeParcella);
    }
    return righe;
}

void leggiEstremi(const RigaTabella& foglio, Documento& d) {
    Estremi& e = d.estremi;
    e.numero = foglio.obbligatorio(u"numero", 10);
    e.data = testoData(foglio.data(u"data"));
    e.datareg = foglio.vuoto(u"registrazione") ? e.data : testoData(foglio.data(u"registrazione"));
    e.protocollo = foglio.testo(u"protocollo", 10);
    foglio.numero(u"protocollo");
    e.registro = foglio.intero(u"registro", 0, 9);
    e.voce1 = foglio.intero(u"voce1", 0, 100) - 1;
    e.voce2 = foglio.intero(u"voce2", 0, 100) - 1;
    e.quota2 = testoCasella(foglio.numero(u"quota2"));
    e.pdf = foglio.testo(u"pdf", 60);
    d.scorporo = foglio.segno(u"scorporo");
    d.recordfpa = foglio.intero(u"fpa", 0, Archivio::massimo);
}

void leggiTestata(const RigaTabella& foglio, Documento& d) {
    Trasporto& t = d.testata.trasporto;
    t.ddt = foglio.testo(u"ddt", 120);
    t.ordine = foglio.testo(u"ordine", 40);
    t.colli = foglio.testo(u"colli", 10);
    t.peso = foglio.testo(u"peso", 10);
    t.inizio = foglio.testo(u"inizio", 10);
    t.ora = foglio.testo(u"ora", 10);
    t.causale = foglio.intero(u"causale", 0, 40) - 1;
    t.aspetto = foglio.intero(u"aspetto", 0, 40) - 1;
    t.spedizione = enumeratore<Mezzo>(foglio.intero(u"spedizione", 0, ordinale(Mezzo::Mittente)));
    Pratica& p = d.testata.pratica;
    p.ivaono = foglio.intero(u"ivaonorari", 1, righeIva, 1) - 1;
    p.ivaspe = foglio.intero(u"ivaspese", 1, righeIva, 1) - 1;
    p.descrizione[0] = foglio.testo(u"pratica1", 150);
    p.descrizione[1] = foglio.testo(u"pratica2", 150);
}

void calcola(Documento& d, const Contesto& contesto) {
    calcolascadenze(d, contesto);
    if (d.parcella()) {
        const TotaliParcella t =
            totaliParcella(d.dddp, d.testata.pratica, contesto.tabelle, contesto.valuta());
        riportaTotali(d, t.iva, t.baseritenuta, t.ritenuta, contesto);
        return;
    }
    const TotaliRighe t = ricalcola(d.ddd, d.scorporo, contesto.tabelle, contesto.valuta());
    riportaTotali(d, t.iva, t.baserit, t.importorit, contesto);
}

DocumentoPronto leggiDocumento(const RigaTabella& foglio, const Chiave& chiave, const Righe& righe,
                               const Contesto& contesto) {
    DocumentoPronto pronto;
    Documento& d = pronto.documento;
    const int tipo = foglio.testo(u"tipo", senzaLimite) == u"nota" ? 1 : 0;
    d = nuovoDocumento(contesto, tipo, chiave.cliente);
    d.coppia.fte.parcella = chiave.parcella ? 1 : 0;
    leggiEstremi(foglio, d);
    leggiTestata(foglio, d);
    d.scadenze.pagamento = foglio.intero(u"pagamento", 1, 60, d.scadenze.pagamento + 1) - 1;
    const QString documento = foglio.testo(u"documento", 20);
    std::ranges::copy(righe.merce.value(documento), d.ddd.begin());
    std::ranges::copy(righe.parcella.value(documento), d.dddp.begin());
    calcola(d, contesto);
    if (!foglio.vuoto(u"versamento"))
        d.prospetti.ritenute[0].rascad = testoData(foglio.data(u"versamento"));
    pronto.eliminato = foglio.segno(u"eliminato");
    const QString file = foglio.testo(u"filerighe", 10);
    pronto.righe = file == u"vecchio"   ? FileRighe::NomeVecchio
                   : file == u"nessuno" ? FileRighe::Nessuno
                                        : FileRighe::Numerato;
    return pronto;
}

QHash<QString, Chiave> leggiChiavi(const TabellaTesto& foglio, const Anagrafiche& a) {
    QHash<QString, Chiave> chiavi;
    for (const RigaTabella& riga : foglio.righe()) {
        const QString documento = riga.obbligatorio(u"documento", 20);
        const QString tipo = riga.obbligatorio(u"tipo", senzaLimite);
        const QString cliente = riga.obbligatorio(u"cliente", 15);
        if (!tipo.isEmpty() && tipo != u"fattura" && tipo != u"nota" && tipo != u"parcella")
            riga.problema(u"tipo: \"%1\" non è fattura, nota o parcella."_s.arg(tipo));
        if (!cliente.isEmpty() && !a.recordCliente.contains(cliente))
            riga.problema(u"cliente: \"%1\" non è in clienti.csv."_s.arg(cliente));
        if (chiavi.contains(documento))
            riga.problema(u"documento: \"%1\" è già usato da un'altra riga."_s.arg(documento));
        chiavi.insert(documento, {a.recordCliente.value(cliente), tipo == u"parcella"});
    }
    return chiavi;
}

/// Gives the documents for a public administration their data.
void leggiFpa(const QString& cartella, const QHash<QString, std::size_t>& posti,
              std::vector<DocumentoPronto>& documenti, Problemi& problemi) {
    const TabellaTesto foglio(cartella, u"fpa.csv"_s, colonneFpa(), problemi);
    for (const RigaTabella& riga : foglio.righe()) {
        const QString chiave = riga.obbligatorio(u"documento", 20);
        const auto posto = posti.constFind(chiave);
        if (posto == posti.constEnd() || documenti[*posto].documento.recordfpa < 1) {
            riga.problema(u"documento: \"%1\" non ha un numero fpa in documenti.csv."_s.arg(chiave));
            continue;
        }
        const Documento& d = documenti[*posto].documento;
        Fpa fpa = leggiFpaDocumento(riga);
        fpa.numerodoc.set(d.estremi.numero);
        fpa.datadoc.set(d.estremi.data);
        fpa.coddestinatario = d.cliente.clix2;
        fpa.esigdifferita.set(d.estremi.esig ? u"1" : u"0");
        documenti[*posto].fpa = fpa;
    }
}

} // namespace

std::vector<DocumentoPronto> leggiDocumenti(const QString& cartella, const Anagrafiche& anagrafiche,
                                            const Contesto& contesto, Problemi& problemi) {
    static const QStringList colonne =
        u"documento tipo numero data registrazione cliente pagamento registro protocollo voce1 voce2 quota2 "
        u"pdf fpa eliminato ddt ordine colli peso inizio ora causale aspetto spedizione scorporo ivaonorari "
        u"ivaspese pratica1 pratica2 versamento filerighe"_s.split(u' ');
    const TabellaTesto foglio(cartella, u"documenti.csv"_s, colonne, problemi);
    const QHash<QString, Chiave> chiavi = leggiChiavi(foglio, anagrafiche);
    const Righe righe = leggiRighe(cartella, anagrafiche, chiavi, problemi);
    std::vector<DocumentoPronto> documenti;
    QHash<QString, std::size_t> posti;
    for (const RigaTabella& riga : foglio.righe()) {
        const QString documento = riga.testo(u"documento", 20);
        const Chiave chiave = chiavi.value(documento);
        posti.insert(documento, documenti.size());
        documenti.push_back(leggiDocumento(riga, chiave, righe, contesto));
    }
    leggiFpa(cartella, posti, documenti, problemi);
    return documenti;
}

} // namespace bor::crea
