// The road of the keys through the lines, and what a visit to a box does.
#include "archive/contesto.h"
#include "document/articoli.h"
#include "document/borftex.h"

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString codiceDi(const Archivio& archivio, int recart) {
    return archivio.art.leggi(recart).codice.text();
}

/// The list has the article of this record, as it has all but the deleted ones.
bool inElenco(const Archivio& archivio, const ElencoArticoli& articoli, int recart) {
    return articoli.lista().cerca(codiceDi(archivio, recart)) >= 0;
}

/// The next article of the list whose description fits; 0 for no other than the last one found.
int altroTrovato(const Archivio& archivio, const ElencoArticoli& articoli, const QString& testo,
                 int trovato) {
    const auto prossimo = [&](int dopo) {
        do
            dopo = cercadescrizione(archivio, testo, dopo);
        while (dopo > 0 && !inElenco(archivio, articoli, dopo));
        return dopo;
    };
    int altro = prossimo(trovato);
    if (altro == 0)
        altro = prossimo(0); // behind the last one comes the first
    return altro == trovato ? 0 : altro;
}

/// The row of the last additional text of the row's article that still stands below it; the row itself for
/// none.
int ultimaDelTesto(const RigheMerce& righe, int n, const Archivio& archivio) {
    const qsizetype testi = testoAggiuntivo(archivio, righe.riga(n).recart).size();
    const auto commento = [&righe](int m) {
        const Riga& r = righe.riga(m);
        return r.recart == 0 && r.quantita == 0.0 && r.prezzo == 0.0 && !r.descrizione.isEmpty();
    };
    int ultima = n;
    while (ultima - n < testi && ultima < righeMerce && commento(ultima + 1))
        ++ultima;
    return ultima;
}

} // namespace

void Borftex::entra(Cella cella) {
    if (cella != Cella{m_campofuoco, m_lineafuoco})
        m_appunti.lascia();
    if (cella.linea != m_lineafuoco) {
        m_digitato.reset();
        m_ricerca.reset();
    }
    m_lineafuoco = cella.linea;
    m_campofuoco = cella.campo;
    if (const QString stato = m_righe.stato(rigaFuoco()); !stato.isEmpty())
        m_listx = stato;
    m_listaIva = cella.campo == Campo::Civ;
    if (cella.campo == Campo::Ds) {
        // Whoever writes a description of his own writes a free line: the price stays, the article goes.
        if (m_righe.sciogli(rigaFuoco()))
            m_listx = u"Riga senza articolo: non muoverà il magazzino"_s;
        m_digitato.reset();
    } else if (cella.campo == Campo::Sc1) {
        m_righe.proponiSconti(rigaFuoco());
    }
}

void Borftex::lascia(Cella cella) {
    if (cella.campo == Campo::Artic)
        m_digitato.reset();
    if (cella.campo == Campo::Civ)
        m_listaIva = false;
    if (m_errata == cella)
        m_errata.reset();
}

void Borftex::cambia(Cella cella, const QString& testo) {
    modificato();
    m_errata.reset();
    if (cella.campo == Campo::Artic)
        cambiaArticolo(cella.linea, testo);
    else
        m_righe.cambia(riga(cella.linea), cella.campo, testo);
}

void Borftex::invio(Cella cella) {
    switch (cella.campo) {
    case Campo::Artic:
        return invioArticolo(cella.linea);
    case Campo::Ds:
        return vaiA(Campo::Um, cella.linea);
    case Campo::Um:
        return vaiA(Campo::Quantita, cella.linea);
    case Campo::Quantita:
        return vaiA(Campo::Sc1, cella.linea);
    case Campo::Sc1:
        return vaiA(Campo::Sc2, cella.linea);
    case Campo::Sc2:
        return vaiA(Campo::Prezzo, cella.linea);
    case Campo::Prezzo:
        return prossimaLinea(cella.linea);
    case Campo::Civ:
        m_listaIva = true;
        return;
    }
}

void Borftex::prossimaLinea(int linea) {
    const int prossima = ultimaDelTesto(m_righe, riga(linea), m_contesto.archivio) + 1;
    // Enter brings row 490 into view; the last ten rows are for the scroll bar.
    if (m_finestra.contiene(prossima - m_finestra.prima()) || prossima <= m_finestra.ultima() + 1)
        vaiARiga(Campo::Artic, prossima);
}

void Borftex::muovi(int verso) {
    const int vicina = rigaFuoco() + verso;
    if (vicina >= 1 && vicina <= righeMerce)
        vaiARiga(m_campofuoco, vicina);
}

void Borftex::vaiARiga(Campo campo, int riga) {
    if (const int prima = m_finestra.primaCon(riga); prima != m_finestra.prima())
        scorri(prima);
    const Cella cella{campo, riga - m_finestra.prima()};
    // The box may have the focus already, and show another row now.
    entra(cella);
    vaiA(cella.campo, cella.linea);
}

void Borftex::modificato() {
    m_modificato = true;
    m_appunti.lascia();
    m_digitato.reset();
    m_ricerca.reset();
}

void Borftex::scegliIva(int posizione) {
    modificato();
    m_righe.cambiaIva(rigaFuoco(), posizione + 1);
    m_listaIva = false;
    vaiA(Campo::Prezzo, m_lineafuoco);
}

void Borftex::cambiaArticolo(int linea, const QString& testo) {
    m_lineafuoco = linea;
    m_digitato = testo;
    if (m_articoli.visibile() && !m_barcode && m_articoli.cerca(testo) == 0 && !testo.trimmed().isEmpty())
        m_errata = Cella{Campo::Artic, linea};
}

void Borftex::invioArticolo(int linea) {
    m_lineafuoco = linea;
    const Riga& r = m_righe.riga(rigaFuoco());
    // A code that nobody typed is no choice: the article in the row stays as it is.
    if (!m_digitato && (r.recart != 0 || !r.codice.isEmpty()))
        return vaiA(Campo::Quantita, linea);
    const QString cercato = testo({Campo::Artic, linea}).trimmed();
    if (cercato.isEmpty())
        return vaiA(Campo::Ds, linea);
    mettiArticolo(m_barcode ? cercabarcode(m_contesto.archivio, cercato) : m_articoli.cerca(cercato),
                  RigheMerce::Da::Casella);
}

void Borftex::scegliArticolo(int posizione) {
    m_ricerca.reset();
    if (const int recart = m_articoli.scegli(posizione); recart > 0)
        mettiArticolo(recart, RigheMerce::Da::Lista);
}

void Borftex::cercaDescrizione() {
    if (!m_articoli.visibile() || (!m_ricerca && m_campofuoco != Campo::Ds))
        return;
    const Archivio& archivio = m_contesto.archivio;
    if (!m_ricerca) {
        const QString testo = m_righe.riga(rigaFuoco()).descrizione;
        const int primo = cercadescrizione(archivio, testo);
        if (primo == 0)
            return articoloNonEsistente(Campo::Ds);
        m_ricerca = Ricerca{testo, primo, m_righe.tutte()};
        // The first one that fits may be a deleted article, which the list does not have.
        if (!inElenco(archivio, m_articoli, primo)) {
            m_listx = u"L'articolo trovato è eliminato: F1 cerca il seguente"_s;
            return;
        }
    } else if (const int altro = altroTrovato(archivio, m_articoli, m_ricerca->testo, m_ricerca->trovato);
               altro > 0) {
        m_ricerca->trovato = altro;
    } else {
        m_listx = u"Nessun altro articolo comincia con questa descrizione"_s;
        return;
    }
    // The additional text of the article found before goes with it.
    m_righe.rimetti(m_ricerca->prima);
    mettiArticolo(m_articoli.cerca(codiceDi(archivio, m_ricerca->trovato)), RigheMerce::Da::Lista);
}

void Borftex::mettiArticolo(int recart, RigheMerce::Da da) {
    m_modificato = true;
    if (!m_righe.metti(rigaFuoco(), recart, da)) {
        articoloNonEsistente(Campo::Artic);
        return vaiA(Campo::Artic, m_lineafuoco);
    }
    m_digitato.reset();
    m_errata.reset();
    vaiA(Campo::Quantita, m_lineafuoco);
}

void Borftex::articoloNonEsistente(Campo campo) {
    m_errata = Cella{campo, m_lineafuoco};
    m_contesto.operatore.messaggio(u"Articolo non esistente"_s, u"Attenzione"_s, Icona::Stop);
}

} // namespace bor
