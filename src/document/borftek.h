// The lines of a fee bill: a window of twelve rows on two hundred lines, each with a date, a description and
// three amounts.
#pragma once

#include "archive/contesto.h"
#include "document/documento.h"

#include <optional>

namespace bor {

class Borftek {
public:
    static constexpr int righeSchermo = 12;
    static constexpr int ultimaPosizione = 189; ///< of the scroll bar

    /// The fields of a row, in the order of the screen.
    enum class Campo { Data, Descrizione, Anticipazioni, Spese, Onorari };

    Borftek(Contesto& contesto, Documento& documento);

    /// True when the lines were taken from the document anew; a screen still open stays as it is.
    bool attiva();
    QString titolo() const;

    /// Content of a field; rows of the screen count from 0. An amount of 0 is empty.
    QString testo(int riga, Campo campo) const;
    void cambia(int riga, Campo campo, const QString& testo);
    /// The operator moved to a field of this row.
    void entra(int riga) { m_rigafocus = riga; }
    /// Row and field that Enter leads to; the list scrolls on where the last row is left. Nothing at its end.
    struct Posto {
        int riga;
        Campo campo;
    };
    std::optional<Posto> invio(int riga, Campo campo);

    int primariga() const { return m_primariga; }
    void scorri(int primariga);
    int rigafocus() const { return m_rigafocus; }

    /// Descriptions of the services, empty ones included.
    QStringList prestazioni() const;
    /// Puts a service into the row with the focus and the lines below it; its amounts go to the last of them.
    void scegliPrestazione(int indice);

    void inserisciRiga();
    void eliminaRiga();
    /// Hands the bill over to the document and returns to it.
    void conferma();
    /// Returns to the document and hands nothing over.
    void lascia();

    /// Number of the document as far as it is one.
    QString numfat() const;
    QString totale(Campo colonna) const; ///< `tota`: of an amount column

private:
    Rigap& linea(int riga) { return m_righe[static_cast<std::size_t>(m_primariga + riga - 1)]; }
    const Rigap& linea(int riga) const { return m_righe[static_cast<std::size_t>(m_primariga + riga - 1)]; }
    bool rigaValida(int riga) const { return riga >= 0 && riga < righeSchermo; }
    void salvarighe() { m_documento.dddp = m_righe; }

    Contesto& m_contesto;
    Documento& m_documento;
    TabellaRighep m_righe = TabellaRighep(righeParcella);
    QList<Prestazione> m_prestazioni;
    int m_primariga = 1; ///< `VScroll1`
    int m_rigafocus = 0;
};

} // namespace bor
