// The documents that the operator has chosen in the register, one or many. They are kept as documents, not as
// rows: a sort, a search or a fill moves the rows under them.
#pragma once

#include "document/identita.h"

#include <vector>

namespace bor {

class ElencoFatture;

/// Rows one below the other, counted from 0; both ends belong to it.
struct TrattoRighe {
    int prima = 0;
    int ultima = 0;
};

class SceltaDocumenti {
public:
    explicit SceltaDocumenti(const ElencoFatture& elenco) : m_elenco(elenco) {}

    /// These rows are chosen, in place of those before; blank filler rows do not count.
    void scegli(const std::vector<TrattoRighe>& righe);
    /// Where the chosen documents stand by now, after a fill or a sort. One that is not in the list any more
    /// is no longer chosen.
    std::vector<TrattoRighe> ritrova();
    void dimentica() { m_documenti.clear(); }

    /// In the order of the list.
    const std::vector<Identita>& documenti() const { return m_documenti; }

private:
    const ElencoFatture& m_elenco;
    std::vector<Identita> m_documenti;
};

} // namespace bor
