// Whether the accounting movement of a document on file agrees with it. The register shows the documents of
// which it does not; the check of the archive names them.
#pragma once

#include "archive/archivio.h"
#include "archive/tabelle.h"

#include <unordered_map>

namespace bor {

/// `x` less `y`; 0 where the two sums agree to the cent.
double scarto(double x, double y);

/// Debit and credit of a movement.
struct SommeMovimento {
    double dare = 0;
    double avere = 0;
};
SommeMovimento somme(const Gio& movimento);

/// What the movement carries on the customer's side less what the document asks for; 0 when they agree to the
/// cent. The advances of a fee bill are in its lines alone: more than the document's records say is no
/// difference.
double differenzaMovimento(const SommeMovimento& movimento, const CoppiaFte& coppia, const Tabelle& tabelle);

/// The live movements of the journal by the document that they belong to, as they were when this was made.
class MovimentiDocumenti {
public:
    explicit MovimentiDocumenti(const Archivio& archivio);

    /// What is wrong with a live document's movement, for the operator; empty where nothing is. In a journal
    /// that has no movement of any document none is missed.
    QString difetto(const CoppiaFte& coppia, const Tabelle& tabelle) const;

private:
    std::unordered_map<double, SommeMovimento> m_movimenti; ///< by stamp; of several movements their sum
};

} // namespace bor
