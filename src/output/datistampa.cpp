#include "output/datistampa.h"

#include "archive/contesto.h"
#include "common/numeri.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr std::size_t codiciIva = 12;
constexpr qsizetype caratteriEsenzione = 100; ///< what follows them is for the electronic invoice

QString codiceIva(std::size_t codice) {
    return zeriDavanti(QString::number(codice), 2);
}

void aggiungiRigheIva(DatiStampa& dati, const TabellaIva& iva) {
    for (std::size_t r = 1; r <= codiciIva; ++r) {
        if (iva.imponibili[r] == 0.0 && iva.imposte[r] == 0.0)
            continue;
        const QString aliquota = dati.tabelle.aliquote[r][0].trimmed();
        dati.righeIva.push_back({.codice = codiceIva(r),
                                 .descrizione = u"Iva "_s + aliquota + u'%',
                                 .imponibile = dati.importo(iva.imponibili[r]),
                                 .aliquota = aliquota,
                                 .imposta = dati.importo(iva.imposte[r])});
    }
    for (std::size_t r = 1; r <= codiciIva; ++r) {
        if (iva.esenti[r] == 0.0)
            continue;
        const auto& [riferimento, descrizione] = dati.tabelle.esenzioni[r];
        dati.righeIva.push_back({.codice = codiceIva(r + codiciIva),
                                 .descrizione = descrizione.left(caratteriEsenzione).trimmed(),
                                 .esente = dati.importo(iva.esenti[r]),
                                 .riferimento = riferimento.trimmed()});
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
                    .numeroConAnno = contesto.impostazioni.gnr.annonumero.text() == u"1",
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
