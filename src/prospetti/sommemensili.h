// What was invoiced by month and VAT register: the sums of the records of the documents, by date of
// registration.
#pragma once

#include "archive/archivio.h"

#include <QList>

#include <map>

namespace bor {

/// Sums of documents, those of credit notes subtracted.
struct SommeDocumenti {
    int documenti = 0;
    double imponibile = 0;
    double imposta = 0;
    double esente = 0;
    double ritenuta = 0;

    double totale() const { return imponibile + imposta + esente; }
    SommeDocumenti& operator+=(const SommeDocumenti& altre);
};

class SommeMensili {
public:
    /// VAT registers 0 to 9; a document that names another one is in 0, as its screen shows it.
    static constexpr int registri = 10;
    /// In place of year and month, for documents whose date of registration is no date.
    static constexpr int nessuno = 0;

    void svuota() { m_somme.clear(); }
    /// Takes in a document that is not deleted. One without amounts and without a date is left out.
    void aggiungi(const Fte& fte, const F2e& f2e);

    /// Years with documents, the latest first.
    QList<int> anni() const;
    /// VAT registers with documents in the year or without a date.
    QList<int> registriDi(int anno) const;
    /// Zeros where there is nothing.
    SommeDocumenti somme(int anno, int mese, int registro) const;

private:
    static int chiave(int anno, int mese, int registro) { return (anno * 100 + mese) * registri + registro; }

    std::map<int, SommeDocumenti> m_somme; ///< by year, month and register
};

} // namespace bor
