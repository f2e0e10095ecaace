// The documents that the operator has chosen in the register, one or many. They are kept as documents, not as
// rows: a sort, a search or a fill moves the rows under them.
#pragma once

#include "register/elencofatture.h"

#include <vector>

namespace bor {

class SceltaDocumenti {
public:
    explicit SceltaDocumenti(const ElencoFatture& elenco) : m_elenco(elenco) {}

    /// These rows are chosen, in place of those before; blank filler rows do not count.
    void scegli(const std::vector<TrattoRighe>& righe);
    /// Where the chosen documents stand by now, after a fill or a sort. One that is not in the list any more
    /// is no longer chosen.
    const std::vector<TrattoRighe>& ritrova();
    void dimentica();

    /// In the order of the list.
    const std::vector<Identita>& documenti() const { return m_documenti; }
    /// Their rows, as of the last `scegli` or `ritrova`.
    const std::vector<TrattoRighe>& righe() const { return m_righe; }

private:
    const ElencoFatture& m_elenco;
    std::vector<Identita> m_documenti;
    std::vector<TrattoRighe> m_righe;
};

} // namespace bor
