// The article list beside the goods lines: open or not, read when it is first wanted, with the article where
// it stands.
#pragma once

#include "document/articoli.h"

namespace bor {

struct Contesto;

class ElencoArticoli {
public:
    explicit ElencoArticoli(Contesto& contesto) : m_contesto(contesto) {}

    /// The next opening reads the articles anew.
    void dimentica();
    /// False, and nothing opens, when the archive has no articles.
    bool apri();
    void chiudi() { m_visibile = false; }

    bool visibile() const { return m_visibile; }
    const ListaArticoli& lista() const { return m_lista; }
    int posizione() const { return m_posizione; } ///< -1 for none
    /// Grows with every filling of the list.
    int edizione() const { return m_edizione; }

    /// Moves to the first article that begins with the text. Its `art` record; 0, and the list stays, when
    /// there is none or the list was not read.
    int cerca(QStringView inizio);
    /// `art` record of the whole code, case aside; the list is read for it and stays where it is. 0 for none.
    int perCodice(const QString& codice);
    /// Moves to a position. Its `art` record; 0 where there is none.
    int scegli(int posizione);

private:
    bool carica();

    Contesto& m_contesto;
    ListaArticoli m_lista;
    int m_posizione = -1;
    int m_edizione = 0;
    bool m_caricata = false;
    bool m_visibile = false;
};

} // namespace bor
