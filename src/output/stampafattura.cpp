#include "output/stampafattura.h"

#include "common/numeri.h"
#include "document/avvisi.h"
#include "document/totali.h"
#include "output/stampaparcella.h"
#include "output/voci.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr Pianta piantaFattura{.voci = 84,
                               .primaUltima = 52,
                               .ultimaUltima = 82,
                               .rigaSopra = 85,
                               .colonne = 9,
                               .righe = righeMerce,
                               .primaRigaIva = 60};

/// Gross and net amount of a printed line: both discounts are worked out on the gross amount, unlike those of
/// the totals. The printed page has always shown them so.
struct ImportiRiga {
    double lordo;
    double netto;
};

ImportiRiga importi(const Riga& riga, const Valuta& valuta) {
    const bool quantita = riga.quantita != 0.0 && riga.quantita != Riga::soloPrezzo;
    const double lordo = valuta.arrotonda(quantita ? riga.prezzo * riga.quantita : riga.prezzo);
    const double sconti = valuta.percentuale(lordo, riga.sconto1) + valuta.percentuale(lordo, riga.sconto2);
    return {lordo, valuta.arrotonda(lordo - sconti)};
}

QString sconti(const Riga& riga) {
    QStringList testi;
    for (const int sconto : {riga.sconto1, riga.sconto2}) {
        if (sconto != 0)
            testi.append(QString::number(sconto));
    }
    return testi.join(u'+');
}

TestoVoce cellaFattura(const Riga& riga, int colonna, const Contesto& contesto) {
    const Valuta valuta = contesto.valuta();
    switch (colonna) {
    case 1:
        return {riga.recart >= 1 ? puliscitesto(riga.codice) : QString()};
    case 2:
        return {puliscitesto(riga.descrizione)};
    case 3:
        return {riga.quantita == Riga::soloPrezzo ? QString() : numerotesto(testoDecimale(riga.quantita)),
                true};
    case 4:
        return {puliscitesto(riga.um)};
    case 5:
        return {valuta.prezzotesto(riga.prezzo), true};
    case 6:
        return voceImporto(importi(riga, valuta).lordo, contesto);
    case 7:
        return voceImporto(importi(riga, valuta).netto, contesto);
    case 8:
        return {sconti(riga)};
    case 9:
        return {riga.iva >= 1 && riga.iva <= 12
                    ? contesto.tabelle.aliquote[static_cast<std::size_t>(riga.iva)][0].trimmed()
                    : QString(),
                true};
    default:
        return {};
    }
}

/// A text of the transport lists at a list position.
QString vocetrasporto(const Contesto& contesto, int posizione, std::size_t colonna) {
    const auto riga = static_cast<std::size_t>(posizione + 1);
    const auto& righe = contesto.tabelle.vettori;
    return posizione >= 0 && riga < righe.size() ? righe[riga][colonna].trimmed() : QString();
}

/// Items 36 to 51: transport, carrier, payment.
TestoVoce voceTrasporto(int voce, const Documento& documento, const Contesto& contesto) {
    const Trasporto& t = documento.testata.trasporto;
    const DatiCliente& cliente = documento.testata.cliente;
    switch (voce) {
    case 36:
        return {vocetrasporto(contesto, t.causale, 0)};
    case 37:
        return {t.colli};
    case 38:
        return {t.peso};
    case 39:
        return {vocetrasporto(contesto, t.aspetto, 1)};
    case 42:
        return {t.spedizione == 2 ? u"Mittente"_s : t.spedizione == 1 ? u"Destinatario"_s : u"Vettore"_s};
    case 43:
    case 44:
    case 45:
        return {cliente.vettore[static_cast<std::size_t>(voce - 43)]};
    case 46:
        return {t.inizio};
    case 47:
        return {t.ora};
    case 48:
        return {t.ddt};
    case 49:
        return {t.ordine};
    case 50:
        return {testoPagamento(documento, contesto)};
    case 51:
        return {cliente.banca};
    default:
        return {};
    }
}

double baseRitenute(const Documento& documento) {
    double somma = 0;
    for (const Ritenuta& r : documento.prospetti.ritenute)
        somma += valore(r.raimpo);
    return somma;
}

QString titolo(const Documento& documento, const Contesto& contesto) {
    if (documento.integrata == Integrata::ReverseCharge)
        return u"Fattura integrata operazione reverse charge"_s;
    if (documento.integrata == Integrata::Intracomunitaria)
        return u"Fattura integrata operazione intracomunitaria"_s;
    return contesto.sessione.tipodocumento == 1 ? u"NOTA CREDITO"_s : u"FATTURA"_s;
}

/// Items 67 to 84: totals, further instalments, titles and notes.
TestoVoce voceTotali(int voce, const Documento& documento, const Contesto& contesto, double pezzi) {
    const Totali t = totali(documento);
    switch (voce) {
    case 67:
        return voceImporto(t.somma1, contesto);
    case 68:
        return voceImporto(t.somma2, contesto);
    case 69:
        return voceImporto(t.somma3, contesto);
    case 70:
        return voceImporto(t.totaledoc, contesto);
    case 71:
        return voceImporto(baseRitenute(documento), contesto);
    case 72:
        return voceImporto(t.ritenuta, contesto);
    case 73:
        return voceImporto(t.nettodoc, contesto);
    case 74:
        return {numerotesto(testoDecimale(pezzi)), true};
    case 75:
    case 76:
    case 77:
    case 78:
        return voceRata(voce - 75 + 8, documento, contesto);
    case 79:
        return {testoProvvigione(documento, contesto)};
    case 80:
        return {testoTermine(documento)};
    case 81:
        return {documento.fatturaPa() ? u"COPIA DOCUMENTO AD USO INTERNO"_s : QString()};
    case 82:
        return {titolo(documento, contesto)};
    case 83:
    case 84:
        return {documento.testata.cliente.nota[static_cast<std::size_t>(voce - 83)]};
    default:
        return {};
    }
}

ContenutoPagina contenutoFattura(const Documento& documento, const Contesto& contesto) {
    const TotaliRighe t = ricalcola(documento.ddd, documento.scorporo, contesto.tabelle, contesto.valuta());
    ContenutoPagina contenuto;
    contenuto.voce = [&documento, &contesto, intestazione = leggiIntestazione(contesto.archivio),
                      pezzi = t.pezzi](int voce) -> TestoVoce {
        if (voce >= 52 && voce <= 59)
            return voceRata(voce - 52, documento, contesto);
        if (voce >= 67)
            return voceTotali(voce, documento, contesto, pezzi);
        if (voce >= 36 && voce != 40 && voce != 41)
            return voceTrasporto(voce, documento, contesto);
        return voceComune(voce, documento, contesto, intestazione);
    };
    contenuto.cella = [&documento, &contesto](int linea, int colonna) {
        return cellaFattura(documento.ddd[static_cast<std::size_t>(linea - 1)], colonna, contesto);
    };
    contenuto.usata = [&documento](int linea) {
        return !puliscitesto(documento.ddd[static_cast<std::size_t>(linea - 1)].descrizione).isEmpty();
    };
    contenuto.righeIva = righeIvaStampate(t.iva, contesto);
    return contenuto;
}

bool confermata(const Documento& documento, const Contesto& contesto) {
    if (documento.parcella())
        return contesto.operatore.chiedi(u"Iniziare la stampa?"_s, u"Stampa parcella"_s);
    if (documento.fatturaPa())
        return contesto.operatore.chiedi(u"Stampare una copia per uso interno?"_s, u"Emissione fatturaPA"_s);
    return contesto.operatore.chiedi(u"Iniziare la stampa?"_s, u"Stampa fattura"_s);
}

/// Draws the document; false when there is nothing to draw or the report file could not be written.
bool esegui(const Documento& documento, const Contesto& contesto, Stampante& stampante,
            Foglio::Uscita uscita) {
    const Attesa attesa(contesto.operatore);
    const bool parcella = documento.parcella();
    const Layout layout = caricaLayout(contesto.archivio, parcella);
    const Modello modello =
        caricamodello(contesto.archivio, parcella ? CodiceModello::Parcella : CodiceModello::Fattura);
    const Pianta& pianta = parcella ? piantaParcella : piantaFattura;
    const ContenutoPagina contenuto =
        parcella ? contenutoParcella(documento, contesto) : contenutoFattura(documento, contesto);
    if (pagine(layout, pianta, contenuto) == 0) {
        // Nothing to print: the report file is emptied, and no blank sheet leaves the printer.
        if (uscita == Foglio::Uscita::SoloStampante)
            return false;
        uscita = Foglio::Uscita::SoloRapporto;
    }
    Foglio foglio(contesto, stampante, uscita, documento.estremi.numero);
    disegnaPagine(layout, modello, pianta, contenuto, contesto.sessione.tipodocumento, foglio);
    if (!foglio.termina()) {
        avvisaNonScritto(contesto);
        return false;
    }
    return pagine(layout, pianta, contenuto) > 0;
}

} // namespace

bool stampaDocumento(const Documento& documento, const Contesto& contesto, Stampante& stampante) {
    if (!confermata(documento, contesto))
        return false;
    const bool integrata = !documento.parcella() && documento.integrata != Integrata::No;
    const bool scritto =
        esegui(documento, contesto, stampante,
               integrata ? Foglio::Uscita::SoloStampante : Foglio::Uscita::StampanteERapporto);
    return scritto && !integrata;
}

bool preparaRapporto(const Documento& documento, const Contesto& contesto, Stampante& stampante) {
    return esegui(documento, contesto, stampante, Foglio::Uscita::SoloRapporto);
}

} // namespace bor
