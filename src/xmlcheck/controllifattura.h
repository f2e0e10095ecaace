// The checks on the tree of an electronic invoice, each adding its findings; the file itself was read before.
#pragma once

#include "xmlcheck/letturaxml.h"
#include "xmlcheck/tracciato.h"

#include <QDate>

namespace bor {

/// A check under way. The remedy of a finding is `azione` and the place where the element is entered.
struct Controllo {
    Versione versione;
    QDate oggi; ///< invalid: the day of the invoice is not compared with it
    std::vector<Rilievo>& rilievi;
    std::size_t altri = 0; ///< findings that are only counted, when there are thousands

    void errore(const QString& codice, const Nodo& nodo, const QString& motivo, const QString& azione);
    /// `codice`: under which the receiving system refuses what is only suspected here.
    void avviso(const Nodo& nodo, const QString& motivo, const QString& azione, const QString& codice = {});
    /// A child that is not there.
    void manca(const QString& codice, const Nodo& nodo, QStringView figlio, const QString& motivo,
               const QString& azione);
    /// What no form writes, so that only the file itself can be mended.
    void nelFile(const Nodo& nodo, const QString& motivo);

private:
    void aggiungi(const Nodo& nodo, QStringView figlio, Rilievo rilievo, const QString& azione);
};

/// Code of everything that is not of the form which the layout asks.
inline const QString codiceForma = QStringLiteral("00200");

/// Elements missing, unknown, repeated or out of order, and values that have not the form the layout asks.
void controllaTracciato(Controllo& c, const Nodo& radice);

/// What elements owe each other in the header: recipient, names, identities, check digits.
void controllaSoggetti(Controllo& c, const Nodo& radice);

/// Kind, day and number of each invoice body, and what its kind asks of seller and buyer.
void controllaDocumenti(Controllo& c, const Nodo& radice);

/// Amounts of one invoice body: lines, summary against lines, withholding, instalments.
void controllaConti(Controllo& c, const Nodo& corpo);

/// The descendant at the end of that path; null when a step is missing.
const Nodo* discendente(const Nodo& nodo, std::initializer_list<QStringView> passi);

} // namespace bor
