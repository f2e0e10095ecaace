// The register of issued documents, home of the program: every other screen returns here, and leaving it ends
// the run.
#pragma once

#include "archive/contesto.h"
#include "archive/diagnosi.h"
#include "document/documento.h"
#include "register/comandoriordino.h"
#include "register/elencofatture.h"
#include "register/sceltadocumenti.h"

#include <optional>
#include <unordered_map>

namespace bor {

/// How many records the list scans.
enum class Selvis { Tutte, Ultime1000, Ultime5000 };
/// Where the list opens: at its first row or at its last.
enum class Visua { DallaPrima, DallUltima };

/// Which documents the list shows, and from where on.
struct SceltaVista {
    FiltroFatture filtro = FiltroFatture::Tutte;
    /// Nothing is chosen after a stored preference that names none.
    std::optional<Selvis> selvis;
    std::optional<Visua> visua;
    QString cercato;
};

class Borfte {
public:
    /// `documento` becomes the one that the operator chooses, which the document form then opens.
    Borfte(Contesto& contesto, Documento& documento);

    /// The start of the program: options restored from the stored preference, then the list filled.
    void carica();
    /// The screen comes back into view: after a save elsewhere the list fills itself again, where the
    /// settings say so.
    void attiva();

    void esci();
    void rileggi();
    void riordino(TipoRiordino tipo);
    /// Starts an invoice (0) or a credit note (1).
    void nuovoDocumento(int tipo);
    void cambiaFiltro(FiltroFatture filtro);
    void cambiaSelvis(Selvis scelta);
    void cambiaVisua(Visua scelta);
    /// Click on the label over a column; only those of number, date and customer sort.
    void ordina(Colonna colonna);
    /// The cell that has the operator's cursor; rows count from 0, as in `elenco()`.
    void cellaCorrente(int riga, Colonna colonna);
    /// The rows that the operator has chosen, that of the cursor among them or not; blank filler rows do not
    /// count.
    void scegli(const std::vector<TrattoRighe>& righe) { m_scelta.scegli(m_elenco, righe); }
    /// The rows of the chosen documents after a fill or a sort; those that left the list are no longer
    /// chosen.
    std::vector<TrattoRighe> righeScelte() { return m_scelta.ritrova(m_elenco); }
    const std::vector<Identita>& scelti() const { return m_scelta.documenti(); }
    /// Double click on a cell: its PDF, or its document.
    void apri(int riga, Colonna colonna);
    /// Enter on a row: its document.
    void apriDocumento(int riga);
    /// The electronic invoice of a row's document.
    void fatturaElettronica(int riga);
    /// The document saved last in this run.
    void riapriUltimo();
    /// Leaves in the list the documents that answer to the text, as `CercaFatture` tells.
    void cerca(const QString& testo);

    const ElencoFatture& elenco() const { return m_elenco; }
    QString testo(int riga, Colonna colonna) const;
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
    const SceltaVista& scelte() const { return m_scelte; }
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

    void apriRecord(int record, Schermo schermo = Schermo::Borftea);
    void leggiConteggio();
    void caricalista();
    ElencoFatture::Passa filtroScelto();
    void ripristinavista();
    void salvaVista();
    bool colorata() const;

    Contesto& m_contesto;
    Documento& m_documento;
    ComandoRiordino m_riordino;
    ElencoFatture m_elenco;
    SceltaVista m_scelte;
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
