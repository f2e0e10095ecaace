// The road of the keys through the lines, and what a visit to a box does.
#include "archive/contesto.h"
#include "document/borftex.h"

using namespace Qt::StringLiterals;

namespace bor {

void Borftex::entra(Cella cella) {
    if (cella.linea != m_lineafuoco)
        m_digitato.reset();
    m_lineafuoco = cella.linea;
    if (const QString stato = m_righe.stato(rigaFuoco()); !stato.isEmpty())
        m_listx = stato;
    m_listaIva = cella.campo == Campo::Civ;
    if (cella.campo == Campo::Ds) {
        // Whoever writes a description of his own writes a free line: the price stays, the article goes.
        m_righe.sciogli(rigaFuoco());
        m_digitato.reset();
    } else if (cella.campo == Campo::Sc1) {
        m_righe.proponiSconti(rigaFuoco());
    }
}

void Borftex::lascia(Cella cella) {
    if (cella.campo == Campo::Artic)
        m_digitato.reset();
    if (cella.campo == Campo::Civ)
        chiudiIva();
}

void Borftex::cambia(Cella cella, const QString& testo) {
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
    constexpr int ultima = linee - 1;
    if (linea < ultima) {
        vaiA(Campo::Artic, linea + 1);
    } else if (riga(ultima) <= m_finestra.ultima()) {
        // The keys reach row 490; the last ten rows are for the scroll bar.
        scorri(m_finestra.prima() + 1);
        vaiA(Campo::Artic, ultima);
    }
}

void Borftex::scegliIva(int posizione) {
    m_righe.cambiaIva(rigaFuoco(), posizione + 1);
    m_listaIva = false;
    vaiA(Campo::Prezzo, m_lineafuoco);
}

void Borftex::cambiaArticolo(int linea, const QString& testo) {
    m_lineafuoco = linea;
    m_digitato = testo;
    if (m_articoli.visibile() && !m_barcode)
        m_articoli.cerca(testo);
}

void Borftex::invioArticolo(int linea) {
    m_lineafuoco = linea;
    const QString cercato = testo({Campo::Artic, linea}).trimmed();
    if (cercato.isEmpty())
        return vaiA(Campo::Ds, linea);
    mettiArticolo(m_barcode ? cercabarcode(m_contesto.archivio, cercato) : m_articoli.cerca(cercato),
                  RigheMerce::Da::Casella);
}

void Borftex::scegliArticolo(int posizione) {
    if (const int recart = m_articoli.scegli(posizione); recart > 0)
        mettiArticolo(recart, RigheMerce::Da::Lista);
}

void Borftex::cercaDescrizione() {
    if (!m_articoli.visibile())
        return;
    const Archivio& archivio = m_contesto.archivio;
    const int trovato = cercadescrizione(archivio, m_righe.riga(rigaFuoco()).descrizione);
    if (trovato == 0)
        return articoloNonEsistente();
    if (const int recart = m_articoli.cerca(archivio.art.leggi(trovato).codice.text()); recart > 0)
        mettiArticolo(recart, RigheMerce::Da::Lista);
}

void Borftex::mettiArticolo(int recart, RigheMerce::Da da) {
    if (!m_righe.metti(rigaFuoco(), recart, da)) {
        articoloNonEsistente();
        return vaiA(Campo::Artic, m_lineafuoco);
    }
    m_digitato.reset();
    vaiA(Campo::Quantita, m_lineafuoco);
}

void Borftex::articoloNonEsistente() {
    m_contesto.operatore.messaggio(u"Articolo non esistente"_s, u"Attenzione"_s, Icona::Stop);
}

} // namespace bor
