#include "output/stampaparcella.h"

#include "archive/contesto.h"
#include "document/totaliparcella.h"
#include "output/voci.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

TestoVoce cellaParcella(const Rigap& riga, int colonna, const Contesto& contesto) {
    switch (colonna) {
    case 1:
        return {puliscitesto(riga.data)};
    case 2:
        return {puliscitesto(riga.descrizione)};
    case 3:
        return voceImporto(riga.anticipazioni, contesto);
    case 4:
        return voceImporto(riga.spese, contesto);
    case 5:
        return voceImporto(riga.onorari, contesto);
    default:
        return {};
    }
}

/// Items 62 to 79: the amounts of the bill, titles and notes.
TestoVoce voceTotali(int voce, const Documento& documento, const Contesto& contesto,
                     const TotaliParcella& t) {
    switch (voce) {
    case 62:
        return voceImporto(t.totanticipazioni, contesto);
    case 63:
        return voceImporto(t.totspese, contesto);
    case 64:
        return voceImporto(t.totonorari, contesto);
    case 65:
        return voceImporto(t.contributoci, contesto);
    case 66:
        return voceImporto(t.contributocp, contesto);
    case 67:
        return voceImporto(t.imponibile, contesto);
    case 68:
        return voceImporto(t.imposta, contesto);
    case 69:
        return voceImporto(t.totaledocumento, contesto);
    case 70:
        return voceImporto(t.baseritenuta, contesto);
    case 71:
        return voceImporto(t.ritenuta, contesto);
    case 72:
        return voceImporto(t.nettodocumento, contesto);
    case 73:
        return {testoProvvigione(documento, contesto)};
    case 74:
        return {testoTermine(documento)};
    case 75:
        return {documento.testata.cliente.banca};
    case 77:
        return {u"PARCELLA"_s};
    case 78:
    case 79:
        return {documento.testata.cliente.nota[static_cast<std::size_t>(voce - 78)]};
    default:
        return {};
    }
}

} // namespace

ContenutoPagina contenutoParcella(const Documento& documento, const Contesto& contesto) {
    const TotaliParcella t =
        totaliParcella(documento.dddp, documento.testata.pratica, contesto.tabelle, contesto.valuta());
    ContenutoPagina contenuto;
    contenuto.voce = [&documento, &contesto, intestazione = leggiIntestazione(contesto.archivio),
                      t](int voce) -> TestoVoce {
        if (voce >= 36 && voce <= 39)
            return {documento.testata.pratica.descrizione[static_cast<std::size_t>(voce - 36)]};
        if (voce == 42)
            return {testoPagamento(documento, contesto)};
        if (voce >= 43 && voce <= 54)
            return voceRata(voce - 43, documento, contesto);
        if (voce >= 62)
            return voceTotali(voce, documento, contesto, t);
        return voceComune(voce, documento, contesto, intestazione);
    };
    contenuto.cella = [&documento, &contesto](int linea, int colonna) {
        return cellaParcella(documento.dddp[static_cast<std::size_t>(linea - 1)], colonna, contesto);
    };
    contenuto.usata = [&documento](int linea) {
        return !puliscitesto(documento.dddp[static_cast<std::size_t>(linea - 1)].descrizione).isEmpty();
    };
    contenuto.righeIva = righeIvaStampate(t.iva, contesto);
    return contenuto;
}

} // namespace bor
