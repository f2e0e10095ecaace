// How an article comes into a line: from its code box, by barcode, from the list, by description.
#include "archive/contesto.h"
#include "common/numeri.h"
#include "document/borftex.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int primoEsente = 13;

QString pulito(QByteArrayView campo) {
    return puliscitesto(daCp1252(campo));
}

} // namespace

void Borftex::cambiaArticolo(int r, const QString& testo) {
    m_rigafocus = r;
    m_digitato = testo;
    if (!m_listaVisibile || m_barcode)
        return;
    const int trovato = m_lista.cerca(testo);
    if (trovato >= 0)
        m_posizioneLista = trovato;
}

void Borftex::invioArticolo(int r) {
    m_rigafocus = r;
    const QString cercato = testo({Campo::Artic, r}).trimmed();
    if (cercato.isEmpty()) {
        m_fuoco = Cella{Campo::Ds, r};
        return;
    }
    int recart = 0;
    if (m_barcode) {
        recart = cercabarcode(m_contesto.archivio, cercato);
    } else if (m_listaCaricata) {
        const int trovato = m_lista.cerca(cercato);
        if (trovato >= 0) {
            m_posizioneLista = trovato;
            recart = m_lista.recart(trovato);
        }
    }
    mettiArticolo(recart, Da::Casella);
}

void Borftex::scegliArticolo(int posizione) {
    if (!m_listaCaricata || posizione < 0 || posizione >= m_lista.quanti())
        return;
    m_posizioneLista = posizione;
    mettiArticolo(m_lista.recart(posizione), Da::Lista);
}

void Borftex::cercaDescrizione() {
    if (!m_listaVisibile)
        return;
    const int recart = cercadescrizione(m_contesto.archivio, riga(m_rigafocus).descrizione);
    if (recart == 0) {
        m_contesto.operatore.messaggio(u"Articolo non esistente"_s, u"Attenzione"_s, Icona::Stop);
        return;
    }
    scegliArticolo(m_lista.cerca(m_contesto.archivio.art.leggi(recart).codice.text()));
}

void Borftex::mettiArticolo(int recart, Da da) {
    if (!leggiarticolo(m_contesto.archivio, recart, m_articolo)) {
        articoloNonEsistente();
        return;
    }
    Riga& r = rigaDi(m_rigafocus);
    r.recart = recart;
    r.codice = pulito(m_articolo.codice.raw());
    r.descrizione = pulito(m_articolo.descrizione.raw());
    r.peso = m_articolo.peso;
    const int forzata = m_documento.cliente.ivaForzata();
    r.iva = forzata != 0 ? forzata : int{m_articolo.iva};
    r.prezzo = prezzoListino(r, da);
    r.um = pulito(m_articolo.um.raw());
    mettiTestoAggiuntivo(recart);
    m_digitato.reset();
    m_fuoco = Cella{Campo::Quantita, m_rigafocus};
    ricalcolaTutto();
}

double Borftex::prezzoListino(const Riga& r, Da da) const {
    const double prezzo = m_listino == 1 ? m_articolo.listino1 : m_articolo.listino2;
    // The list goes by the article's own code, the box by the code that the customer forces on the line.
    const int codice = da == Da::Lista ? int{m_articolo.iva} : r.iva;
    if (!scorporo() || codice >= primoEsente)
        return prezzo;
    const double aliquota = m_contesto.tabelle.aliquota(r.iva);
    return m_contesto.valuta().arrotondaprezzo(prezzo * (aliquota + 100) / 100);
}

void Borftex::mettiTestoAggiuntivo(int recart) {
    const Prx prx = m_contesto.archivio.prx.leggi(recart);
    if (prx.marca != Prx::marcaValida)
        return;
    std::size_t dove = indice(m_rigafocus);
    for (const auto& campo : prx.riga) {
        const QString testo = pulito(campo.raw());
        if (testo.isEmpty())
            continue;
        if (++dove >= m_righe.size()) {
            m_contesto.operatore.messaggio(
                u"Le righe del documento sono finite: il testo aggiuntivo dell'articolo non è completo"_s,
                u"Attenzione"_s, Icona::Stop);
            return;
        }
        Riga commento;
        commento.codice2 = m_righe[dove].codice2;
        commento.descrizione = testo;
        m_righe[dove] = commento;
    }
}

void Borftex::articoloNonEsistente() {
    m_contesto.operatore.messaggio(u"Articolo non esistente"_s, u"Attenzione"_s, Icona::Stop);
    m_fuoco = Cella{Campo::Artic, m_rigafocus};
}

} // namespace bor
