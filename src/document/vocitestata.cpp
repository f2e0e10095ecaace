#include "document/vocitestata.h"

#include "archive/tabelle.h"
#include "common/numeri.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

/// A text of each row of a table, as the items of a list.
template <class Tabella, class Testo>
QStringList testiDi(const Tabella& tabella, Testo testo) {
    QStringList testi;
    for (const auto& riga : tabella)
        testi.append(testo(riga).trimmed());
    return testi;
}

QString testoRegime(const RigaAliquota& riga) {
    QString testo = u"Iva"_s + riga.aliquota + u'%';
    const auto aggiungi = [&testo](QStringView sigla, const QString& percento) {
        if (valore(percento) != 0)
            testo.append(u" - "_s).append(sigla).append(percento).append(u'%');
    };
    aggiungi(u"R.A.", riga.ritenuta);
    aggiungi(u"C.I.", riga.contributoci);
    aggiungi(u"C.P.", riga.contributocp);
    return testo;
}

} // namespace

VociTestata::VociTestata(const Tabelle& tabelle)
    : pagamenti(testiDi(tabelle.tipopagamenti, [](const TipoPagamento& t) { return t.descrizione; })),
      causali(testiDi(tabelle.vettori, [](const RigaTrasporto& r) { return r.causale; })),
      aspetti(testiDi(tabelle.vettori, [](const RigaTrasporto& r) { return r.aspetto; })),
      vettori(testiDi(tabelle.vettori, [](const RigaTrasporto& r) { return r.vettore[0]; })) {
    for (int riga = 1; riga <= righeIva; ++riga)
        regimi.append(testoRegime(tabelle.aliquote[riga]));
}

} // namespace bor
