#include "document/righemerce.h"

#include "archive/contesto.h"
#include "common/numeri.h"
#include "common/posti.h"
#include "document/defaultcliente.h"
#include "document/totali.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace bor {

namespace {

constexpr qsizetype lunghezzaDescrizione = 60;
constexpr qsizetype lunghezzaUm = 2;

int sconto(const QString& testo) {
    using Limiti = std::numeric_limits<std::int16_t>;
    return std::clamp(valoreIntero(testo), int{Limiti::min()}, int{Limiti::max()});
}

/// Order of the lines by article code. Equal codes may change places among themselves: this is the exchange
/// sort of the suite, whose result its users know, and no sort of the library gives the same.
std::vector<std::size_t> ordinePerCodice(const TabellaRighe& righe) {
    struct Voce {
        QByteArray chiave;
        std::size_t riga;
    };
    std::vector<Voce> voci;
    voci.reserve(righe.size());
    for (std::size_t i = 0; i < righe.size(); ++i) {
        // Lines without a code go behind all others.
        voci.push_back({righe[i].codice.isEmpty() ? QByteArray(1, '\xFF') : inCp1252(righe[i].codice), i});
    }
    for (std::size_t i = 0; i < voci.size(); ++i) {
        for (std::size_t j = i + 1; j < voci.size(); ++j) {
            if (voci[i].chiave > voci[j].chiave)
                std::swap(voci[i], voci[j]);
        }
    }
    std::vector<std::size_t> ordine;
    ordine.reserve(voci.size());
    for (const Voce& voce : voci)
        ordine.push_back(voce.riga);
    return ordine;
}

} // namespace

RigheMerce::RigheMerce(Contesto& contesto, Documento& documento)
    : m_contesto(contesto), m_documento(documento), m_righe(righeMerce) {}

bool RigheMerce::prendi() {
    m_scorporo = m_documento.scorporo;
    const bool riprese = m_riprese.has_value();
    if (riprese) {
        m_righe = *std::exchange(m_riprese, std::nullopt);
    } else {
        m_righe = m_documento.ddd;
        // Loaded lines weigh what the article last read in this run weighs: exact weights come only from the
        // lines typed in this visit.
        for (Riga& r : m_righe)
            r.peso = r.recart >= 1 ? double{m_articolo.peso} : 0.0;
    }
    m_righe.resize(righeMerce);
    ricalcolaTutto();
    return riprese;
}

void RigheMerce::riporta() {
    ricalcolaTutto();
    if (m_contesto.impostazioni.gnr.pesoInTestata())
        riportaPeso();
    m_documento.scorporo = m_scorporo;
    riportaTotali(m_documento, m_totali.iva, m_totali.baserit, m_totali.importorit, m_contesto);
    m_documento.ddd = m_righe;
    for (Riga& r : m_documento.ddd) {
        for (QString* testo : {&r.codice2, &r.codice, &r.descrizione, &r.um})
            *testo = testo->trimmed();
        // Numbers pass to the document as their plain decimal text.
        r.quantita = valore(testoDecimale(r.quantita));
        r.prezzo = valore(testoDecimale(r.prezzo));
    }
}

QString RigheMerce::testo(int n, Campo campo) const {
    const Riga& r = riga(n);
    switch (campo) {
    case Campo::Artic:
        return r.codice;
    case Campo::Ds:
        return r.descrizione;
    case Campo::Um:
        return r.um;
    case Campo::Quantita:
        return testoCasella(r.quantita);
    case Campo::Sc1:
        return testoCasella(r.sconto1);
    case Campo::Sc2:
        return testoCasella(r.sconto2);
    case Campo::Prezzo:
        return testoCasella(r.prezzo);
    case Campo::Civ:
        return r.iva.testo();
    }
    return {};
}

QString RigheMerce::aliquota(int n) const {
    const Riga& r = riga(n);
    if (r.iva.nessuno() && r.prezzo == 0.0)
        return {};
    const CodiceIva codice = codiceContato(r);
    if (!codice.tassato())
        return QStringLiteral("es.");
    return m_contesto.tabelle.aliquote[codice.riga()].aliquota.trimmed() + u'%';
}

QString RigheMerce::importo(int n) const {
    const Valuta& valuta = m_contesto.valuta();
    return valuta.importotesto(importoRiga(riga(n), valuta));
}

void RigheMerce::cambiaScorporo(bool acceso) {
    m_scorporo = acceso;
    ricalcolaTutto();
}

void RigheMerce::cambia(int n, Campo campo, const QString& testo) {
    Riga& r = dove(n);
    switch (campo) {
    case Campo::Ds:
        r.descrizione = testo.left(lunghezzaDescrizione);
        return;
    case Campo::Um:
        r.um = testo.left(lunghezzaUm);
        return;
    case Campo::Quantita:
        r.quantita = valorevirgola(testo);
        break;
    case Campo::Sc1:
        r.sconto1 = sconto(testo);
        break;
    case Campo::Sc2:
        r.sconto2 = sconto(testo);
        break;
    case Campo::Prezzo:
        cambiaPrezzo(r, testo);
        break;
    case Campo::Artic:
    case Campo::Civ:
        return;
    }
    ricalcolaTutto();
}

void RigheMerce::cambiaPrezzo(Riga& r, const QString& testo) {
    r.prezzo = valorevirgola(testo);
    if (r.prezzo == 0.0 || !r.iva.nessuno())
        return;
    const CodiceIva forzata = ivaForzata(m_documento.cliente);
    r.iva = forzata.nessuno() ? CodiceIva(m_contesto.impostazioni.gnr.codiceIvaRighe()) : forzata;
}

void RigheMerce::cambiaIva(int n, CodiceIva codice) {
    dove(n).iva = codice;
    ricalcolaTutto();
}

void RigheMerce::proponiSconti(int n) {
    Riga& r = dove(n);
    const Riga prima = r;
    if (r.sconto1 == 0)
        r.sconto1 = m_documento.cliente.sconto1;
    if (r.sconto2 == 0)
        r.sconto2 = m_documento.cliente.sconto2;
    if (r != prima)
        ricalcolaTutto();
}

bool RigheMerce::sciogli(int n) {
    dove(n).codice.clear();
    return std::exchange(dove(n).recart, 0) != 0;
}

void RigheMerce::ordina() {
    TabellaRighe ordinate;
    ordinate.reserve(m_righe.size());
    for (const std::size_t i : ordinePerCodice(m_righe))
        ordinate.push_back(m_righe[i]);
    m_righe = std::move(ordinate);
    ricalcolaTutto();
}

void RigheMerce::rimetti(const TabellaRighe& righe) {
    m_righe = righe;
    ricalcolaTutto();
}

void RigheMerce::inserisci(int n) {
    const auto riga = m_righe.begin() + (n - 1);
    std::copy_backward(riga, m_righe.end() - 1, m_righe.end());
    // The second code is not of this screen, and stays at its place.
    Riga vuota;
    vuota.codice2 = riga->codice2;
    *riga = vuota;
    ricalcolaTutto();
}

bool RigheMerce::apri(int n, int quante) {
    const auto inUso = [](const Riga& r) { return r != Riga(); };
    if (n - 1 + quante > righeMerce || std::any_of(m_righe.end() - quante, m_righe.end(), inUso))
        return false;
    std::rotate(m_righe.begin() + (n - 1), m_righe.end() - quante, m_righe.end());
    return true;
}

void RigheMerce::elimina(int n) {
    const auto riga = m_righe.begin() + (n - 1);
    std::copy(riga + 1, m_righe.end(), riga);
    m_righe.back() = {};
    ricalcolaTutto();
}

void RigheMerce::ricalcolaTutto() {
    m_totali = ricalcola(m_righe, m_scorporo, m_contesto.tabelle, m_contesto.valuta());
}

void RigheMerce::riportaPeso() {
    constexpr int decimali = 3;
    QString peso = testoItaliano(m_totali.pesototale, decimali);
    while (peso.endsWith(u'0'))
        peso.chop(1);
    if (peso.endsWith(u','))
        peso.chop(1);
    m_documento.testata.trasporto.peso = peso;
}

} // namespace bor
