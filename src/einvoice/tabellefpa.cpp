#include "einvoice/tabellefpa.h"

#include "archive/fpa.h"
#include "common/numeri.h"

namespace bor {

using namespace Qt::StringLiterals;

QString naturaEsente(const Tabelle& tabelle, int riga) {
    if (riga < 1 || riga > tabelle.esenzioni.ultimo)
        return {};
    return u'N' + testoDecimale(tabelle.esenzioni[riga].natura() + 1);
}

void mettiVettore(Fpa& documento, const Tabelle& tabelle, int riga) {
    if (!tabelle.vettori.contiene(riga))
        return;
    const RigaTrasporto& trasporto = tabelle.vettori[riga];
    // A row without codes counts as blanks between asterisks. The closing one is then taken for the fiscal
    // code, as in every invoice of such a carrier before.
    const QString codici =
        trasporto.codici.startsWith(u'*') ? trasporto.codici : u'*' + QString(500, u' ') + u'*';
    documento.vettorepaese.set(pezzo(codici, RigaTrasporto::paese).trimmed());
    documento.vettorecodice.set(pezzo(codici, RigaTrasporto::codice).trimmed());
    documento.vettorecf.set(pezzo(codici, RigaTrasporto::codicefiscale).trimmed());
    documento.vettorenome.set(trasporto.vettore[0]);
}

} // namespace bor
