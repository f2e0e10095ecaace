#include "fatturapa/tabellefel.h"

#include "common/numeri.h"
#include "common/testo.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

bool rigaValida(int riga) {
    return riga >= 1 && riga <= righeIva;
}

} // namespace

double contributoCi(const Tabelle& tabelle, int riga) {
    return rigaValida(riga) ? valore(tabelle.aliquote[riga].contributoci) : 0;
}

double contributoCp(const Tabelle& tabelle, int riga) {
    return rigaValida(riga) ? valore(tabelle.aliquote[riga].contributocp) : 0;
}

QString naturaSuite(const Tabelle& tabelle, int riga) {
    return rigaValida(riga) ? u'N' + testoDecimale(tabelle.esenzioni[riga].natura() + 1) : QString();
}

QString modalitaSuite(const Tabelle& tabelle, int posizione) {
    switch (tabelle.tipopagamenti[posizione + 1].modalita()) {
    case 0:
        return u"MP12"_s;
    case 1:
        return u"MP05"_s;
    case 2:
        return u"MP01"_s;
    case 3:
        return u"MP19"_s; // direct debits of the old kind are no more
    default:
        return u"MP02"_s;
    }
}

VettoreSuite vettoreDiNome(const Tabelle& tabelle, const QString& nome) {
    for (const RigaTrasporto& riga : tabelle.vettori) {
        if (nome.isEmpty() || riga.vettore[0].trimmed() != nome || !riga.codici.startsWith(u'*'))
            continue;
        QString codicefiscale = pezzo(riga.codici, RigaTrasporto::codicefiscale).trimmed();
        if (codicefiscale.endsWith(u'*'))
            codicefiscale.chop(1);
        return {pezzo(riga.codici, RigaTrasporto::paese).trimmed(),
                pezzo(riga.codici, RigaTrasporto::codice).trimmed(), codicefiscale.trimmed()};
    }
    return {};
}

} // namespace bor
