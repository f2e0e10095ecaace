#include "document/testimerce.h"

#include "archive/contesto.h"
#include "common/numeri.h"
#include "document/documento.h"
#include "document/righemerce.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString vocetassata(int riga, const RigaAliquota& r) {
    QString voce = CodiceIva(riga).testo() + u" Iva "_s + r.aliquota.trimmed() + u'%';
    if (valore(r.ritenuta) != 0.0)
        voce += u" - Rit.Acconto "_s + r.ritenuta.trimmed() + u'%';
    return voce;
}

} // namespace

QString TestiMerce::titolo() const {
    return m_documento.notaCredito() ? u"Ristampa nota credito"_s : u"Ristampa fattura"_s;
}

QString TestiMerce::numfat() const {
    return testoDecimale(valore(m_documento.estremi.numero.trimmed()));
}

QString TestiMerce::link() const {
    const double nfile = m_documento.coppia.fte.nfile;
    return nfile > 0 ? u"Link:"_s + testoDecimale(nfile) : QString();
}

QString TestiMerce::totale(Totale quale) const {
    const TotaliRighe& totali = m_righe.totali();
    const Valuta valuta = m_contesto.valuta();
    const auto importo = [&valuta](double x) {
        return u' ' + (valuta.euro ? testoItaliano(x, 2) : valuta.importotesto(x));
    };
    switch (quale) {
    case Totale::Imponibile:
        return importo(totali.totimp);
    case Totale::Complessivo:
        return importo(totali.totale);
    case Totale::Pezzi:
        return u' ' + testoDecimale(totali.pezzi);
    case Totale::AliquotaRitenuta:
        return testoDecimale(totali.aliquotarit);
    case Totale::Ritenuta:
        return testoDecimale(totali.importorit);
    }
    return {};
}

QStringList TestiMerce::vociIva() const {
    const Tabelle& tabelle = m_contesto.tabelle;
    QStringList voci;
    for (int i = 1; i <= righeIva; ++i)
        voci.append(vocetassata(i, tabelle.aliquote[i]));
    for (int i = 1; i <= righeIva; ++i)
        voci.append(CodiceIva::diEsente(i).testo() + u' ' + tabelle.esenzioni[i].descrizione());
    return voci;
}

} // namespace bor
