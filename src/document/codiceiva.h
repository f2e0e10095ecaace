// The VAT code of a goods line, which says in one number whether the line is taxed and by which row of the
// tables.
#pragma once

#include "archive/tabelle.h"
#include "common/testo.h"

namespace bor {

/// 0 none, 1 to 12 the taxed row, 13 to 24 the exempt row of the code less 12. Records of the suite may hold
/// any other number; it is kept, and each user of the code decides what it counts as.
class CodiceIva {
public:
    static constexpr int ultimo = 2 * righeIva;

    /// A plain number is a code: that is how the files hold it.
    constexpr CodiceIva(int numero = 0) : m_numero(numero) {}
    static constexpr CodiceIva diEsente(int riga) { return righeIva + riga; }

    constexpr int numero() const { return m_numero; }
    constexpr bool nessuno() const { return m_numero == 0; }
    constexpr bool tassato() const { return m_numero >= 1 && m_numero <= righeIva; }
    constexpr bool esente() const { return oltreTassati() && m_numero <= ultimo; }
    constexpr bool valido() const { return tassato() || esente(); }
    /// Behind the taxed rows, also beyond the last exempt one.
    constexpr bool oltreTassati() const { return m_numero > righeIva; }
    /// The taxed or exempt row, from 1; of a code that is not `valido` a number that is no row of a document.
    constexpr int riga() const { return oltreTassati() ? m_numero - righeIva : m_numero; }
    /// Two digits, empty for none.
    QString testo() const { return nessuno() ? QString() : zeriDavanti(QString::number(m_numero), 2); }

    friend constexpr bool operator==(CodiceIva, CodiceIva) = default;

private:
    int m_numero;
};

} // namespace bor
