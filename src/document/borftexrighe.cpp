// What moves whole lines: insert, delete, sort, and the hand-over to the document.
#include "archive/contesto.h"
#include "common/numeri.h"
#include "document/borftex.h"
#include "document/totali.h"

#include <algorithm>

namespace bor {

namespace {

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

void Borftex::riordina() {
    m_digitato.reset();
    TabellaRighe ordinate;
    ordinate.reserve(m_righe.size());
    for (const std::size_t i : ordinePerCodice(m_righe))
        ordinate.push_back(m_righe[i]);
    m_righe = std::move(ordinate);
    m_fuoco = Cella{Campo::Artic, 0};
    ricalcolaTutto();
}

void Borftex::inserisciRiga() {
    m_digitato.reset();
    const auto riga = m_righe.begin() + static_cast<std::ptrdiff_t>(indice(m_rigafocus));
    std::copy_backward(riga, m_righe.end() - 1, m_righe.end());
    // The second code is not of this screen, and stays at its place.
    Riga vuota;
    vuota.codice2 = riga->codice2;
    *riga = vuota;
    m_fuoco = Cella{Campo::Artic, m_rigafocus};
    ricalcolaTutto();
}

void Borftex::eliminaRiga() {
    m_digitato.reset();
    const auto riga = m_righe.begin() + static_cast<std::ptrdiff_t>(indice(m_rigafocus));
    std::copy(riga + 1, m_righe.end(), riga);
    m_righe.back() = {};
    m_fuoco = Cella{Campo::Artic, m_rigafocus};
    ricalcolaTutto();
}

void Borftex::conferma() {
    ricalcolaTutto();
    riportaTotali(m_documento, m_totali.iva, m_totali.baserit, m_totali.importorit, m_contesto);
    salvarighe();
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

void Borftex::salvarighe() {
    m_documento.ddd = m_righe;
    for (Riga& r : m_documento.ddd) {
        for (QString* testo : {&r.codice2, &r.codice, &r.descrizione, &r.um})
            *testo = testo->trimmed();
        // Numbers pass to the document as their plain decimal text.
        r.quantita = valore(testoDecimale(r.quantita));
        r.prezzo = valore(testoDecimale(r.prezzo));
    }
}

void Borftex::indietro() {
    m_contesto.navigatore.mostra(Schermo::Borftea);
}

} // namespace bor
