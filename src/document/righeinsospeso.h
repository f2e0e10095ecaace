// Lines and head texts of new documents. A document's first save writes its records only; its lines file
// comes with the next one. Until then the run keeps here what was typed, so that reopening the document shows
// it.
#pragma once

#include "document/documento.h"

#include <map>

namespace bor {

class RigheInSospeso {
public:
    /// Keeps the lines, head texts and switches of the document under its creation stamp, which unlike its
    /// record number stays the same when the archive is put in order.
    void tieni(const Documento& documento);
    /// Puts what was kept back into the document; false when there is nothing.
    bool riprendi(Documento& documento) const;
    /// The document has its lines file now, or is deleted.
    void dimentica(const Documento& documento) { m_documenti.erase(documento.coppia.fte.stamp); }
    /// False while lines are kept; head texts alone do not count.
    bool vuoto() const;

private:
    struct Sospesi {
        TabellaRighe ddd; ///< without the empty lines at the end
        TabellaRighep dddp;
        Trasporto trasporto;
        Pratica pratica;
        bool scorporo;
    };

    std::map<double, Sospesi> m_documenti;
};

} // namespace bor
