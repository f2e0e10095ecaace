// The register of issued documents, home of the program: every other screen returns here, and leaving it ends
// the run.
#pragma once

#include "archive/contesto.h"
#include "document/documento.h"
#include "register/elencofatture.h"
#include "register/riordino.h"

#include <array>
#include <functional>
#include <optional>

namespace bor {

class Borfte {
public:
    /// `documento` becomes the one that the operator chooses, which the document form then opens;
    /// `righeInSospeso` tells whether lines typed for new documents would be lost with the run.
    Borfte(Contesto& contesto, Documento& documento, std::function<bool()> righeInSospeso);

    /// The start of the program: options restored from the stored preference, then the list filled.
    void carica();
    /// The screen comes back into view: after a save elsewhere the list fills itself again, where the
    /// settings say so.
    void attiva();

    void esci();
    void rileggi();
    void scegliRiordino();
    void riordino(TipoRiordino tipo);
    /// Starts an invoice (0) or a credit note (1).
    void nuovoDocumento(int tipo);
    void cambiaFiltro(FiltroFatture filtro);
    /// How many records to scan: 0 all, 1 the last 1000, 2 the last 5000.
    void cambiaSelvis(int indice);
    /// Where the list opens: 0 at its first row, 1 at its last.
    void cambiaVisua(int indice);
    /// Click on the label over a column; only the columns 0, 1 and 4 sort.
    void ordina(int colonna);
    /// The cell that has the operator's cursor; rows count from 0, as in `elenco()`.
    void cellaCorrente(int riga, int colonna);
    /// Double click or Enter on a cell: its PDF, or its document.
    void apri(int riga, int colonna);

    const ElencoFatture& elenco() const { return m_elenco; }
    QString testo(int riga, Colonna colonna) const;
    /// Background of a cell as 0x00BBGGRR; nothing for the grid's own.
    std::optional<int> colore(int riga, int colonna) const;
    /// Rows on screen, blank filler rows included.
    int righeGriglia() const;
    /// The row, counted from 0, that the list shows first after a fill.
    int primaRigaVisibile() const { return m_primaRiga; }
    /// Each goes up by one: at every fill, at every sort.
    int riempimenti() const { return m_riempimenti; }
    int ordinamenti() const { return m_ordinamenti; }

    FiltroFatture filtro() const { return m_filtro; }
    int selvis() const { return m_selvis; }
    int visua() const { return m_visua; }
    bool sceltaRiordino() const { return m_stato == Stato::SceltaRiordino; }
    /// A reorder is running: no command may be given.
    bool occupato() const { return m_stato == Stato::Riordino; }
    const QString& etichetta() const { return m_etichetta; } ///< `Label3`
    bool etichettaVisibile() const { return m_stato != Stato::Riordino; }
    int avanzamento() const { return m_avanzamento; }
    /// 0 until the operator has said yes to the reorder.
    int massimoAvanzamento() const { return m_massimoAvanzamento; }
    /// Called while a reorder runs, so that the bar is drawn.
    void suAvanzamento(std::function<void()> funzione) { m_suAvanzamento = std::move(funzione); }

private:
    enum class Stato { Normale, SceltaRiordino, Riordino };

    void leggiConteggio();
    void caricalista();
    void avanza(int fatti);
    void ripristinavista();
    void salvaVista();
    void mostraErroreRiordino(const EsitoRiordino& esito);
    bool colorata() const;

    Contesto& m_contesto;
    Documento& m_documento;
    std::function<bool()> m_righeInSospeso;
    std::function<void()> m_suAvanzamento;
    ElencoFatture m_elenco;
    Stato m_stato = Stato::Normale;
    QString m_etichetta = QStringLiteral("Inserisci:");
    FiltroFatture m_filtro = FiltroFatture::Tutte;
    int m_selvis = -1; ///< -1: no option is chosen, after a stored preference that names none
    int m_visua = -1;
    int m_numero = 0; ///< documents counted when the counter was last read
    int m_primaRiga = 0;
    int m_riempimenti = 0;
    int m_ordinamenti = 0;
    int m_avanzamento = 0;
    int m_massimoAvanzamento = 0;
    std::array<int, 2> m_cellaCorrente{0, 1};
    /// The one cell that a fill has coloured, and its colour.
    struct CellaColorata {
        std::array<int, 2> cella;
        int colore;
    };
    std::optional<CellaColorata> m_cellaColorata;
};

} // namespace bor
