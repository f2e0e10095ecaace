#include "output/datistampa.h"

#include "archive/contesto.h"
#include "common/numeri.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

void aggiungiRigheIva(DatiStampa& dati, const TabellaIva& iva) {
    for (int r = 1; r <= righeIva; ++r) {
        if (iva.imponibili[r] == 0.0 && iva.imposte[r] == 0.0)
            continue;
        const QString aliquota = dati.tabelle.aliquote[r].aliquota.trimmed();
        dati.righeIva.push_back({.codice = CodiceIva(r).testo(),
                                 .descrizione = u"Iva "_s + aliquota + u'%',
                                 .imponibile = dati.importo(iva.imponibili[r]),
                                 .aliquota = aliquota,
                                 .imposta = dati.importo(iva.imposte[r])});
    }
    for (int r = 1; r <= righeIva; ++r) {
        if (iva.esenti[r] == 0.0)
            continue;
        const RigaEsenzione& esenzione = dati.tabelle.esenzioni[r];
        dati.righeIva.push_back({.codice = CodiceIva::diEsente(r).testo(),
                                 .descrizione = esenzione.descrizione(),
                                 .esente = dati.importo(iva.esenti[r]),
                                 .riferimento = esenzione.riferimento.trimmed()});
    }
}

} // namespace

QStringList DatiStampa::importi(std::initializer_list<double> quanti) const {
    QStringList testi;
    for (const double quanto : quanti)
        testi.append(importo(quanto));
    return testi;
}

DatiStampa datiStampa(const Documento& documento, const Contesto& contesto) {
    DatiStampa dati{.documento = documento,
                    .tabelle = contesto.tabelle,
                    .valuta = contesto.valuta(),
                    .numeroConAnno = contesto.impostazioni.gnr.annoNelNumero(),
                    .intestazione = leggiIntestazione(contesto.archivio)};
    if (documento.parcella()) {
        dati.parcella =
            totaliParcella(documento.dddp, documento.testata.pratica, contesto.tabelle, dati.valuta);
        aggiungiRigheIva(dati, dati.parcella.iva);
    } else {
        const TotaliRighe righe = ricalcola(documento.ddd, documento.scorporo, contesto.tabelle, dati.valuta);
        dati.totali = totali(documento);
        dati.pezzi = righe.pezzi;
        aggiungiRigheIva(dati, righe.iva);
    }
    return dati;
}

} // namespace bor
