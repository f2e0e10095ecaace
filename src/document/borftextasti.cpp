// The road of the keys through the grid, and what a visit to a box does.
#include "archive/contesto.h"
#include "common/numeri.h"
#include "document/borftex.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr qsizetype lunghezzaDescrizione = 60;
constexpr qsizetype lunghezzaUm = 2;

int sconto(const QString& testo) {
    using Limiti = std::numeric_limits<std::int16_t>;
    return std::clamp(valoreIntero(testo), int{Limiti::min()}, int{Limiti::max()});
}

} // namespace

void Borftex::entra(Cella cella) {
    if (cella.r != m_rigafocus)
        m_digitato.reset();
    m_rigafocus = cella.r;
    mostraStato();
    m_combo1 = cella.campo == Campo::Civ;
    Riga& r = rigaDi(cella.r);
    if (cella.campo == Campo::Ds) {
        // Whoever writes a description of his own writes a free line: the price stays, the article goes.
        r.recart = 0;
        r.codice.clear();
        m_digitato.reset();
    } else if (cella.campo == Campo::Sc1) {
        proponiSconti(r);
    }
}

void Borftex::lascia(Cella cella) {
    if (cella.campo == Campo::Artic)
        m_digitato.reset();
    if (cella.campo == Campo::Civ)
        chiudiIva();
}

void Borftex::proponiSconti(Riga& r) {
    const Riga prima = r;
    if (r.sconto1 == 0)
        r.sconto1 = m_documento.cliente.sconto1;
    if (r.sconto2 == 0)
        r.sconto2 = m_documento.cliente.sconto2;
    if (r != prima)
        ricalcolaTutto();
}

void Borftex::cambia(Cella cella, const QString& testo) {
    Riga& r = rigaDi(cella.r);
    switch (cella.campo) {
    case Campo::Artic:
        cambiaArticolo(cella.r, testo);
        return;
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
    case Campo::Civ:
        return;
    }
    ricalcolaTutto();
}

void Borftex::cambiaPrezzo(Riga& r, const QString& testo) {
    r.prezzo = valorevirgola(testo);
    if (r.prezzo != 0.0 && r.iva == 0)
        r.iva = ivaPredefinita();
}

int Borftex::ivaPredefinita() const {
    const int forzata = m_documento.cliente.ivaForzata();
    return forzata != 0 ? forzata : valoreIntero(m_contesto.impostazioni.gnr.righemodulo.text());
}

void Borftex::invio(Cella cella) {
    switch (cella.campo) {
    case Campo::Artic:
        invioArticolo(cella.r);
        break;
    case Campo::Ds:
        m_fuoco = Cella{Campo::Um, cella.r};
        break;
    case Campo::Um:
        m_fuoco = Cella{Campo::Quantita, cella.r};
        break;
    case Campo::Quantita:
        m_fuoco = Cella{Campo::Sc1, cella.r};
        break;
    case Campo::Sc1:
        m_fuoco = Cella{Campo::Sc2, cella.r};
        break;
    case Campo::Sc2:
        m_fuoco = Cella{Campo::Prezzo, cella.r};
        break;
    case Campo::Prezzo:
        prossimaRiga(cella.r);
        break;
    case Campo::Civ:
        m_combo1 = true;
        break;
    }
}

void Borftex::prossimaRiga(int r) {
    constexpr int ultima = righeVisibili - 1;
    if (r < ultima) {
        m_fuoco = Cella{Campo::Artic, r + 1};
    } else if (ultima + m_primariga - 1 < ultimaPrimariga) {
        // The keys reach line 490; the last ten lines are for the scroll bar.
        scorri(m_primariga + 1);
        m_fuoco = Cella{Campo::Artic, ultima};
    }
}

void Borftex::scegliIva(int posizione) {
    rigaDi(m_rigafocus).iva = posizione + 1;
    m_combo1 = false;
    m_fuoco = Cella{Campo::Prezzo, m_rigafocus};
    ricalcolaTutto();
}

void Borftex::mostraStato() {
    constexpr qsizetype larghezza = 140;
    const int recart = riga(m_rigafocus).recart;
    if (recart == 0)
        return;
    leggiarticolo(m_contesto.archivio, recart, m_articolo);
    const QString testo = riempi(pulisci(m_articolo.codice.text()), 15) + u" - "_s +
                          riempi(pulisci(m_articolo.descrizione.text()), 80) + u" - Giacenza:"_s +
                          testoDecimale(m_articolo.giacenza) + u" - Impegnato:"_s +
                          testoDecimale(m_articolo.impegnato);
    m_listx = riempi(testo, larghezza) + QString::number(recart).rightJustified(5);
}

} // namespace bor
