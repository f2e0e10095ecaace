// How an article comes into a row.
#include "archive/contesto.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/articoli.h"
#include "document/defaultcliente.h"
#include "document/righemerce.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString pulito(QByteArrayView campo) {
    return puliscitesto(daCp1252(campo));
}

} // namespace

bool RigheMerce::metti(int n, int recart, Da da) {
    if (!leggiarticolo(m_contesto.archivio, recart, m_articolo))
        return false;
    Riga& r = dove(n);
    r.recart = recart;
    r.codice = pulito(m_articolo.codice.raw());
    r.descrizione = pulito(m_articolo.descrizione.raw());
    r.peso = m_articolo.peso;
    const CodiceIva forzata = ivaForzata(m_documento.cliente);
    r.iva = forzata.nessuno() ? CodiceIva(m_articolo.iva) : forzata;
    r.prezzo = prezzoListino(r, da);
    r.um = pulito(m_articolo.um.raw());
    mettiTestoAggiuntivo(n, recart);
    ricalcolaTutto();
    return true;
}

double RigheMerce::prezzoListino(const Riga& r, Da da) const {
    const double prezzo = m_listino == 1 ? m_articolo.listino1 : m_articolo.listino2;
    // The list goes by the article's own code, the box by the code that the customer forces on the line.
    const CodiceIva codice = da == Da::Lista ? CodiceIva(m_articolo.iva) : r.iva;
    if (!scorporo() || codice.oltreTassati())
        return prezzo;
    const double aliquota = m_contesto.tabelle.aliquota(r.iva.numero());
    return m_contesto.valuta().arrotondaprezzo(prezzo * (aliquota + 100) / 100);
}

void RigheMerce::mettiTestoAggiuntivo(int n, int recart) {
    std::size_t posto = postoDaZero(n - 1);
    for (const QString& testo : testoAggiuntivo(m_contesto.archivio, recart)) {
        if (++posto >= m_righe.size()) {
            m_contesto.operatore.messaggio(
                u"Le righe del documento sono finite: il testo aggiuntivo dell'articolo non è completo"_s,
                u"Attenzione"_s, Icona::Stop);
            return;
        }
        Riga commento;
        commento.codice2 = m_righe[posto].codice2;
        commento.descrizione = testo;
        m_righe[posto] = commento;
    }
}

QString RigheMerce::stato(int n) {
    constexpr qsizetype larghezza = 140;
    const int recart = riga(n).recart;
    if (recart == 0)
        return {};
    leggiarticolo(m_contesto.archivio, recart, m_articolo);
    const QString testo = riempi(pulisci(m_articolo.codice.text()), 15) + u" - "_s +
                          riempi(pulisci(m_articolo.descrizione.text()), 80) + u" - Giacenza:"_s +
                          testoDecimale(m_articolo.giacenza) + u" - Impegnato:"_s +
                          testoDecimale(m_articolo.impegnato);
    return riempi(testo, larghezza) + QString::number(recart).rightJustified(5);
}

} // namespace bor
