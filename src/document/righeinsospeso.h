// Lines and head texts of new documents. A document's first save writes its records only; its lines file
// comes with the next one. Until then they are kept here, in the user's own folder, so that whenever the
// document is opened it shows them.
#pragma once

#include "document/bozza.h"
#include "document/cartellabozze.h"

#include <map>

namespace bor {

class RigheInSospeso {
public:
    /// Without a folder of this machine what is kept ends with the run.
    explicit RigheInSospeso(const QString& cartella = {}) : m_cartella(cartella) {}

    /// Keeps the lines, head texts and switches of the document under its creation stamp, which unlike its
    /// record number stays the same when the archive is put in order. False when the folder did not take
    /// them: then they end with the run.
    bool tieni(const Documento& documento);
    /// Puts what was kept back into the document; false when there is nothing.
    bool riprendi(Documento& documento) const;
    /// The document has its lines file now, or is deleted.
    void dimentica(const Documento& documento);

    const QString& cartella() const { return m_cartella.percorso(); }

private:
    CartellaBozze m_cartella;
    std::map<double, RigheSospese> m_documenti; ///< of this run
};

} // namespace bor
