#include "document/importiiva.h"

#include "archive/contesto.h"
#include "common/numeri.h"
#include "common/serie.h"
#include "document/documento.h"
#include "document/scadenze.h"
#include "document/totali.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr QStringView prefissoAliquota = u"Aliquota iva ";

} // namespace

QString ImportiIva::etichetta(int linea, VoceIva voce) const {
    const int riga = m_finestra.riga(linea);
    if (voce == VoceIva::Esente)
        return m_contesto.tabelle.esenzioni[riga].riferimento.trimmed();
    const QString libera = m_contesto.tabelle.esenzioni[riga].descrizione();
    if (libera.size() > 1)
        return libera;
    const QString aliquota = m_contesto.tabelle.aliquote[riga].aliquota.trimmed();
    return aliquota.isEmpty() ? u"Non definito"_s : prefissoAliquota.toString() + aliquota + u'%';
}

QString ImportiIva::nome(int linea, VoceIva voce) const {
    const auto breve = [&](int l) {
        const QString testo = etichetta(l, voce);
        return testo.startsWith(prefissoAliquota) ? testo.mid(prefissoAliquota.size()) : testo;
    };
    const QString suo = breve(linea);
    int uguali = 0;
    for (int l = 0; l < m_finestra.linee(); ++l)
        uguali += breve(l) == suo ? 1 : 0;
    const QString posto = uguali > 1 ? u", riga "_s + QString::number(m_finestra.riga(linea)) : QString();
    return (suo.isEmpty() ? QString() : u' ' + suo) + posto;
}

QString ImportiIva::testo(int linea, VoceIva voce) const {
    return testoCasella(importoIva(m_documento.coppia, voce, m_finestra.riga(linea)));
}

void ImportiIva::cambia(int linea, VoceIva voce, const QString& testo) {
    mettiImportoIva(m_documento.coppia, voce, m_finestra.riga(linea), valorevirgola(testo));
    ricalcolaDocumento(m_documento, m_contesto);
}

QString ImportiIva::totale(Totale quale) const {
    const Totali t = totali(m_documento);
    const Serie<double, Totale::Imponibile, Totale::Documento> somme{
        {t.somma1, t.somma2, t.somma3, t.totaledoc}};
    return u' ' + m_contesto.valuta().importotesto(somme[quale]);
}

} // namespace bor
