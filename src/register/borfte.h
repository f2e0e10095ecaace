// The register of issued documents, home of the program: every other screen returns here, and leaving it ends
// the run.
#pragma once

#include "archive/contesto.h"
#include "archive/diagnosi.h"
#include "document/documento.h"
#include "register/aperturadocumenti.h"
#include "register/comandoriordino.h"
#include "register/elencofatture.h"
#include "register/opzioniregistro.h"
#include "register/sceltadocumenti.h"

#include <optional>
#include <unordered_map>

namespace bor {

class Borfte {
public:
    Borfte(Contesto& contesto, Documento& documento);

    /// The start of the program: options restored from the stored preference, then the list filled.
    void carica();
    /// The first half of it, which takes no time.
    void prepara();
    /// The second half. Tells the operator nothing and may run in a thread of its own, during which the form
    /// answers only for its options.
    void riempi();
    /// The screen comes back into view: after a save elsewhere the list fills itself again, where the
    /// settings say so.
    void attiva();

    void esci();
    void rileggi();
    void riordino(TipoRiordino tipo);
    /// Click on the label over a column; only those of number, date and customer sort.
    void ordina(Colonna colonna);
    /// The cell that has the operator's cursor; rows count from 0, as in `elenco()`.
    void cellaCorrente(int riga, Colonna colonna);

    const ElencoFatture& elenco() const { return m_elenco; }
    QString testo(int riga, Colonna colonna) const;
    /// The list as it is shown. Refers to it: to be written before anything else happens to the register.
    Tabella tabella() const;
    /// What rows of the list come to, credit notes subtracted, deleted ones left out.
    QString totali(const SommeElenco& somme) const;
    /// Background of a cell as 0x00BBGGRR; nothing for the grid's own.
    std::optional<int> colore(int riga, Colonna colonna) const;
    /// What the operator should know of the document of a row: its lines are not on file, its movement does
    /// not agree with it. Empty for nothing. The movement is told only where the filter is on it.
    QString nota(int riga) const;
    /// Rows on screen, blank filler rows included.
    int righeGriglia() const;
    /// The row, counted from 0, of the document that has the operator's cursor, also after a fill or a sort.
    /// Where it is not in the list any more, the one at which the list opens.
    int rigaCorrente() const;
    /// The row, counted from 0, that the list shows first; nothing where the list stays as it stands and only
    /// has to show the current row: after a sort, a search, on the way back from a document.
    std::optional<int> primaRigaVisibile() const { return m_primaRiga; }
    /// Grows with every fill and sort.
    int edizione() const { return m_edizione; }

    /// Of the company and this run, taken now.
    Diagnosi informazioni() const;
    /// The same as a text for who helps, without names and amounts.
    QString testoInformazioni(const Diagnosi& diagnosi) const;
    OpzioniRegistro& opzioni() { return m_opzioni; }
    AperturaDocumenti& apertura() { return m_apertura; }
    /// The rows that the operator has chosen.
    SceltaDocumenti& scelta() { return m_scelta; }
    ComandoRiordino& comandoRiordino() { return m_riordino; }

private:
    struct Cella {
        int riga = 0;
        Colonna colonna = Colonna::DataRegistrazione;

        friend bool operator==(const Cella&, const Cella&) = default;
    };
    /// The one cell that a fill has coloured, and its colour.
    struct CellaColorata {
        Cella cella;
        int colore;
    };

    void opzioniCambiate(OpzioniRegistro::Effetto effetto);
    void leggiConteggio();
    void caricalista();
    ElencoFatture::Passa filtroScelto();
    bool colorata() const;

    Contesto& m_contesto;
    Documento& m_documento;
    ComandoRiordino m_riordino;
    ElencoFatture m_elenco;
    OpzioniRegistro m_opzioni;
    AperturaDocumenti m_apertura;
    SceltaDocumenti m_scelta;
    int m_numero = 0; ///< documents counted when the counter was last read
    std::optional<int> m_primaRiga;
    int m_edizione = 0;
    Cella m_cellaCorrente;
    int m_recordCorrente = 0;                   ///< `fte` record of the row with the cursor; 0 for none
    std::unordered_map<int, QString> m_difetti; ///< of the movements by `fte` record, while the filter asks
    mutable std::unordered_map<int, bool> m_senzaRighe; ///< by `fte` record, as far as rows were looked at
    std::optional<CellaColorata> m_cellaColorata;
};

} // namespace bor
