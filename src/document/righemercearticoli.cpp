// How an article comes into a row.
#include "archive/contesto.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/articoli.h"
#include "document/defaultcliente.h"
#include "document/indicestorico.h"
#include "document/righemerce.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString pulito(QByteArrayView campo) {
    return puliscitesto(daCp1252(campo));
}

/// The lines of text that go with an article, without the empty ones.
QStringList testoAggiuntivo(const Archivio& archivio, int recart) {
    const Prx prx = archivio.prx.leggi(recart);
    QStringList testi;
    if (prx.marca != Prx::marcaValida)
        return testi;
    for (const auto& campo : prx.riga) {
        if (const QString testo = pulito(campo.raw()); !testo.isEmpty())
            testi.append(testo);
    }
    return testi;
}

} // namespace

QStringList RigheMerce::testiDi(int recart) const {
    return recart > 0 ? testoAggiuntivo(m_contesto.archivio, recart) : QStringList();
}

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

void RigheMerce::prendi(int n, const RigaVenduta& vendita, bool conIva) {
    // The price proposes a VAT code to a row that has none.
    cambia(n, Campo::Prezzo, testoDecimale(vendita.prezzo));
    const CodiceIva codice = codiceContato(riga(n));
    if (conIva != scorporo() && codice.tassato()) {
        const double conImposta = m_contesto.tabelle.aliquota(codice.numero()) + 100;
        const double prezzo = conIva ? vendita.prezzo * 100 / conImposta : vendita.prezzo * conImposta / 100;
        cambia(n, Campo::Prezzo, testoDecimale(m_contesto.valuta().arrotondaprezzo(prezzo)));
    }
    cambia(n, Campo::Sc1, QString::number(vendita.sconto1));
    cambia(n, Campo::Sc2, QString::number(vendita.sconto2));
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

int RigheMerce::ultimaDelTesto(int n) const {
    if (riga(n).recart == 0)
        return n;
    const qsizetype testi = testoAggiuntivo(m_contesto.archivio, riga(n).recart).size();
    const auto commento = [this](int m) {
        const Riga& r = riga(m);
        return r.recart == 0 && r.quantita == 0.0 && r.prezzo == 0.0 && !r.descrizione.isEmpty();
    };
    int ultima = n;
    while (ultima - n < testi && ultima < righeMerce && commento(ultima + 1))
        ++ultima;
    return ultima;
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
