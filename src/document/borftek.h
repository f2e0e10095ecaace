// The lines of a fee bill: twelve lines on two hundred rows, each with a date, a description and three
// amounts.
#pragma once

#include "archive/contesto.h"
#include "common/posti.h"
#include "document/appuntirighe.h"
#include "document/cella.h"
#include "document/documento.h"
#include "document/finestrarighe.h"
#include "document/storico.h"

#include <optional>
#include <utility>

namespace bor {

class Borftek {
public:
    static constexpr int linee = 12;

    /// The fields of a row, in the order of the screen.
    enum class Campo { Data, Descrizione, Anticipazioni, Spese, Onorari };
    using Cella = CellaDi<Campo>;

    Borftek(Contesto& contesto, Documento& documento);

    /// Takes the rows from the document; a screen still open stays as it is.
    void attiva();
    /// The next activation takes these lines in place of the document's: they were typed and not confirmed
    /// when a run was interrupted.
    void riprendi(TabellaRighep righe) { m_riprese = std::move(righe); }
    /// As they stand on screen.
    const TabellaRighep& righe() const { return m_righe; }
    QString titolo() const;
    Bordata bordata() const { return m_contesto.bordata(); }

    QString testo(Cella cella) const; ///< an amount of 0 is empty
    /// Why a box is marked; empty for one that nothing is wrong with.
    QString avviso(Cella cella) const;
    void cambia(Cella cella, const QString& testo);
    void entra(Cella cella);
    /// The rows scroll on where the last line is left.
    void invio(Cella cella);
    /// The box that the last event sends the operator to; asking takes the wish away.
    std::optional<Cella> prendiFuoco() { return std::exchange(m_fuoco, std::nullopt); }

    const FinestraRighe& finestra() const { return m_finestra; } ///< `VScroll1`
    void scorri(int prima);

    /// Descriptions of the services, empty ones included.
    QStringList prestazioni() const;
    /// Grows with every filling of that list.
    int edizione() const { return m_edizione; }
    /// Puts a service into the row with the focus and those below it; its amounts go to the last of them.
    void scegliPrestazione(int indice);

    /// Rows that are chosen, copied and pasted.
    AppuntiRighe& appunti() { return m_appunti; }

    DomandaStorico storico() const { return {.cliente = m_documento.recordcliente}; }

    void inserisciRiga();
    void eliminaRiga();
    /// Hands the bill over to the document and returns to it.
    void conferma();
    /// Returns to the document and hands nothing over; asks first where something was typed.
    void lascia();

    /// Number of the document as far as it is one.
    QString numfat() const;
    QString totale(Campo colonna) const; ///< `tota`: of an amount column

private:
    Rigap& riga(int linea) { return elemento(m_righe, m_finestra.riga(linea) - 1); }
    const Rigap& riga(int linea) const { return elemento(m_righe, m_finestra.riga(linea) - 1); }
    int rigaFuoco() const { return m_finestra.riga(m_lineafuoco); }
    AppuntiRighe::Form perAppunti();
    void vaiARiga(int riga);
    void modificato();
    void vaiAllInizio() { m_fuoco = Cella{Campo::Data, m_lineafuoco}; }
    void salvarighe() { m_documento.dddp = m_righe; }

    Contesto& m_contesto;
    Documento& m_documento;
    TabellaRighep m_righe = TabellaRighep(righeParcella);
    std::optional<TabellaRighep> m_riprese;
    AppuntiRighe m_appunti{perAppunti()};
    QList<Prestazione> m_prestazioni;
    FinestraRighe m_finestra{linee, righeParcella - linee + 1};
    std::optional<Cella> m_fuoco;
    int m_lineafuoco = 0; ///< the line last entered
    int m_edizione = 0;
    bool m_modificato = false; ///< something was typed since the lines were opened
};

} // namespace bor
