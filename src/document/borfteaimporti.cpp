// The amounts of the document form: VAT rows, totals, and what makes the instalments follow them.
#include "common/numeri.h"
#include "common/serie.h"
#include "document/borftea.h"
#include "document/scadenze.h"
#include "document/totali.h"
#include "document/totaliparcella.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr QStringView prefissoAliquota = u"Aliquota iva ";

} // namespace

QString Borftea::etichetta(int linea, VoceIva voce) const {
    const int riga = m_finestra.riga(linea);
    if (voce == VoceIva::Esente)
        return m_contesto.tabelle.esenzioni[riga].riferimento.trimmed();
    const QString libera = m_contesto.tabelle.esenzioni[riga].descrizione();
    if (libera.size() > 1)
        return libera;
    const QString aliquota = m_contesto.tabelle.aliquote[riga].aliquota.trimmed();
    return aliquota.isEmpty() ? u"Non definito"_s : prefissoAliquota.toString() + aliquota + u'%';
}

QString Borftea::nomeRigaIva(int linea, VoceIva voce) const {
    const auto nome = [&](int l) {
        const QString testo = etichetta(l, voce);
        return testo.startsWith(prefissoAliquota) ? testo.mid(prefissoAliquota.size()) : testo;
    };
    const QString suo = nome(linea);
    int uguali = 0;
    for (int l = 0; l < m_finestra.linee(); ++l)
        uguali += nome(l) == suo ? 1 : 0;
    const QString posto = uguali > 1 ? u", riga "_s + QString::number(m_finestra.riga(linea)) : QString();
    return (suo.isEmpty() ? QString() : u' ' + suo) + posto;
}

QString Borftea::importo(int linea, VoceIva voce) const {
    return testoCasella(importoIva(m_documento.coppia, voce, m_finestra.riga(linea)));
}

void Borftea::cambiaImporto(int linea, VoceIva voce, const QString& testo) {
    mettiImportoIva(m_documento.coppia, voce, m_finestra.riga(linea), valorevirgola(testo));
    ricalcolaDocumento(m_documento, m_contesto);
}

QString Borftea::totale(Totale quale) const {
    const Totali t = totali(m_documento);
    const Serie<double, Totale::Imponibile, Totale::Documento> somme{
        {t.somma1, t.somma2, t.somma3, t.totaledoc}};
    return u' ' + m_contesto.valuta().importotesto(somme[quale]);
}

bool Borftea::anticipazioniFuori() const {
    return m_documento.parcella() && sommaParcella(m_documento.dddp).totanticipazioni != 0.0;
}

void Borftea::cambiato(const void* dato) {
    Scadenze& scadenze = m_documento.scadenze;
    if (dato == &scadenze.pagamento) {
        calcolascadenze(m_documento, m_contesto);
        calcolarate(m_documento, m_contesto);
    } else if (dato == &scadenze.provaliq) {
        if (scadenze.provaliq.trimmed().isEmpty())
            scadenze.provimp.clear();
        calcolaProvvigione(m_documento, m_contesto);
    } else if (std::ranges::any_of(m_documento.prospetti.ritenute,
                                   [dato](const Ritenuta& r) { return dato == &r.raimp; })) {
        ricalcolaDocumento(m_documento, m_contesto);
    }
}

} // namespace bor
