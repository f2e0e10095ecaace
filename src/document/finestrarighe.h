// The rows of a document that a screen has room for: so many lines, moved along its table by a scroll bar.
#pragma once

#include <algorithm>

namespace bor {

/// A *linea* is a row on screen, counted from 0; a *riga* one of the document, counted from 1.
class FinestraRighe {
public:
    /// `ultima`: the last position of the scroll bar.
    constexpr FinestraRighe(int linee, int ultima) : m_linee(linee), m_ultima(ultima) {}

    int linee() const { return m_linee; }
    int ultima() const { return m_ultima; }
    /// The row in the first line, which is also the position of the scroll bar.
    int prima() const { return m_prima; }
    int riga(int linea) const { return m_prima + linea; }
    bool contiene(int linea) const { return linea >= 0 && linea < m_linee; }

    /// The position nearest to the present one that has the row in view.
    int primaCon(int riga) const { return std::clamp(m_prima, riga - m_linee + 1, riga); }
    /// The first row of the page before (-1) or after (1); it may lie beyond either end.
    int pagina(int verso) const { return m_prima + verso * m_linee; }
    /// A position beyond either end counts for the end.
    void scorri(int prima) { m_prima = std::clamp(prima, 1, m_ultima); }

private:
    int m_linee;
    int m_ultima;
    int m_prima = 1;
};

} // namespace bor
