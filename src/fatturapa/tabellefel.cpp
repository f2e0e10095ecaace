#include "fatturapa/tabellefel.h"

#include "common/numeri.h"
#include "common/posti.h"
#include "common/testo.h"

#include <array>

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
    // Bank receipt, transfer, cash, direct debit, of which the old kind is no more.
    constexpr std::array<QStringView, 4> modalita = {u"MP12", u"MP05", u"MP01", u"MP19"};
    constexpr QStringView assegno = u"MP02";
    const int tipo = tabelle.tipopagamenti[posizione + 1].modalita();
    return (tipo >= 0 && tipo < quantiIn(modalita) ? elemento(modalita, tipo) : assegno).toString();
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
