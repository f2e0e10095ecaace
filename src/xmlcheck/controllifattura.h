// The checks on the tree of an electronic invoice, each adding its findings; the file itself was read before.
#pragma once

#include "xmlcheck/letturaxml.h"
#include "xmlcheck/tracciato.h"

#include <QDate>

namespace bor {

/// A check under way.
struct Controllo {
    Versione versione;
    QDate oggi; ///< invalid: the day of the invoice is not compared with it
    std::vector<Rilievo>& rilievi;

    /// A finding at an element, with the place where the element is entered behind `azione`.
    void errore(const QString& codice, const QString& percorso, const Nodo& nodo, const QString& motivo,
                const QString& azione);
    void avviso(const QString& percorso, const Nodo& nodo, const QString& motivo, const QString& azione);
};

/// Elements missing, unknown, repeated or out of order, and values that have not the form the layout asks.
void controllaTracciato(Controllo& c, const Nodo& radice);

/// What elements owe each other in the header: recipient, names, identities, check digits.
void controllaSoggetti(Controllo& c, const Nodo& radice);

/// Kind, day and number of one invoice body, and what its kind asks of seller and buyer.
void controllaDocumento(Controllo& c, const Nodo& testata, const Nodo& corpo);

/// Amounts of one invoice body: lines, summary against lines, withholding, instalments.
void controllaConti(Controllo& c, const Nodo& corpo);

/// The descendant at the end of that path; null when a step is missing.
const Nodo* discendente(const Nodo& nodo, std::initializer_list<QStringView> passi);

} // namespace bor
