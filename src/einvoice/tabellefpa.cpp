#include "einvoice/tabellefpa.h"

#include "archive/fpa.h"
#include "common/numeri.h"

namespace bor {

using namespace Qt::StringLiterals;

QString naturaEsente(const Tabelle& tabelle, int riga) {
    if (riga < 1 || riga >= std::ssize(tabelle.esenzioni))
        return {};
    const QString& descrizione = tabelle.esenzioni[static_cast<std::size_t>(riga)][1];
    const QString indice = descrizione.trimmed().size() > 100 ? pezzo(descrizione, 101) : QString();
    return u'N' + testoDecimale(valore(indice) + 1);
}

void mettiVettore(Fpa& documento, const Tabelle& tabelle, int riga) {
    if (riga < 1 || riga >= std::ssize(tabelle.vettori))
        return;
    const auto& vettore = tabelle.vettori[static_cast<std::size_t>(riga)];
    // A row without codes counts as blanks between asterisks. The closing one is then taken for the fiscal
    // code, as in every invoice of such a carrier before.
    const QString codici = vettore[5].startsWith(u'*') ? vettore[5] : u'*' + QString(500, u' ') + u'*';
    documento.vettorepaese.set(pezzo(codici, 2, 2).trimmed());
    documento.vettorecodice.set(pezzo(codici, 4, 16).trimmed());
    documento.vettorecf.set(pezzo(codici, 20).trimmed());
    documento.vettorenome.set(vettore[2]);
}

} // namespace bor
