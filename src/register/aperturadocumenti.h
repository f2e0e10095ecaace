// The ways from the register to a document: a new one, that of a row, its PDF, its electronic invoice.
#pragma once

#include "archive/contesto.h"
#include "document/documento.h"
#include "document/identita.h"
#include "register/comandoriordino.h"
#include "register/elencofatture.h"

namespace bor {

/// While a reorder is chosen or runs, nothing opens. Rows count from 0; a row that does not exist opens
/// nothing.
class AperturaDocumenti {
public:
    /// `documento` becomes the one that the operator chooses, which the document form then opens.
    AperturaDocumenti(Contesto& contesto, Documento& documento, const ElencoFatture& elenco,
                      const ComandoRiordino& riordino)
        : m_contesto(contesto), m_documento(documento), m_elenco(elenco), m_riordino(riordino) {}

    /// Starts an invoice (0) or a credit note (1).
    void nuovo(int tipo);
    /// Double click on a cell: its PDF, or its document.
    void cella(int riga, Colonna colonna);
    /// Enter on a row: its document.
    void documento(int riga);
    /// A document that a report names; another one in its place by now is told.
    void documento(const Identita& quale);
    /// Tells that documents are opened from the register only.
    void avvisaInMano() const;
    void fatturaElettronica(int riga);
    /// A new document made from that of a row.
    void copia(int riga, Copia come);
    /// The document saved last in this run.
    void ultimo();
    /// A list over all documents.
    void prospetto(Schermo quale);

private:
    void apri(int record, Schermo schermo);

    Contesto& m_contesto;
    Documento& m_documento;
    const ElencoFatture& m_elenco;
    const ComandoRiordino& m_riordino;
};

} // namespace bor
