// What the lists over all documents have in common on screen: they are read in slices when they come into
// view, shown when all is read, and leave the program as a table.
#pragma once

#include "archive/contesto.h"
#include "common/tabella.h"
#include "prospetti/letturadocumenti.h"

namespace bor {

class Prospetto {
public:
    virtual ~Prospetto();
    Prospetto(const Prospetto&) = delete;
    Prospetto& operator=(const Prospetto&) = delete;

    /// The screen comes into view, or the operator wants the list anew: the reading begins.
    void attiva();
    const LetturaDocumenti& lettura() const { return m_lettura; }
    /// Reads on for about this time; the list is there when all is read.
    void prosegui(std::chrono::milliseconds tempo);
    /// Stops the reading, and otherwise goes back to the register.
    void esci();

    virtual int righe() const = 0;
    /// The row, counted from 0, adds up others.
    virtual bool totale(int riga) const = 0;
    /// The list as it stands; it asks this object for its rows.
    virtual Tabella tabella() const = 0;
    /// Grows with every change of the list.
    int edizione() const { return m_edizione; }

protected:
    explicit Prospetto(Contesto& contesto);

    /// Shows the choice anew, once all is read.
    void mostra();

    Contesto& contesto;

private:
    virtual void svuota() = 0;
    virtual void prendi(int record, const Fte& fte, const F2e& f2e) = 0;
    /// All documents are taken in.
    virtual void completa() = 0;
    virtual void scegli() = 0;

    LetturaDocumenti m_lettura;
    int m_edizione = 0;
};

} // namespace bor
