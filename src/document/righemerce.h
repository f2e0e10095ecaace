// The goods lines of a document while they are edited, with their totals always up to date. They reach the
// document when they are handed over.
#pragma once

#include "archive/art.h"
#include "common/posti.h"
#include "document/documento.h"
#include "document/totaliriga.h"

#include <QString>

#include <optional>
#include <utility>

namespace bor {

struct Contesto;

/// Rows count from 1 to 500.
class RigheMerce {
public:
    /// The fields of a row, in Tab order.
    enum class Campo { Artic, Ds, Um, Quantita, Sc1, Sc2, Prezzo, Civ };
    /// Where an article was chosen.
    enum class Da { Casella, Lista };

    RigheMerce(Contesto& contesto, Documento& documento);

    /// Takes the rows of the document anew, or those of a draft; true for a draft, which nobody confirmed.
    bool prendi();
    /// The next `prendi` takes these rows instead.
    void riprendi(TabellaRighe righe) { m_riprese = std::move(righe); }
    /// Puts rows and totals into the document.
    void riporta();

    const TabellaRighe& tutte() const { return m_righe; }
    /// Puts back what `tutte` gave.
    void rimetti(const TabellaRighe& righe);
    const Riga& riga(int n) const { return elemento(m_righe, n - 1); }
    QString testo(int n, Campo campo) const;
    QString aliquota(int n) const; ///< "22%", or "es." for an exempt code; empty where nothing is taxed
    QString importo(int n) const;  ///< quantity by price less the discounts; empty for 0
    const TotaliRighe& totali() const { return m_totali; }
    int listino() const { return m_listino; } ///< 1 or 2
    void cambiaListino(int listino) { m_listino = listino; }
    bool scorporo() const { return m_scorporo; }
    void cambiaScorporo(bool acceso);

    /// Any field but the article and the VAT code, which are chosen.
    void cambia(int n, Campo campo, const QString& testo);
    void cambiaIva(int n, CodiceIva codice);
    /// The customer's discounts, where the row has none.
    void proponiSconti(int n);
    /// The row keeps its texts and its price, and loses its article. True when it had one.
    bool sciogli(int n);

    void inserisci(int n);
    /// Empty rows in front of row n. False, and nothing changes, where rows in use would be lost.
    bool apri(int n, int quante);
    void elimina(int n);
    void ordina();

    /// Puts an article into a row and its additional text below. False when there is no such article.
    bool metti(int n, int recart, Da da);
    /// What the status line says of the row's article; empty for a row without one.
    QString stato(int n);

private:
    Riga& dove(int n) { return elemento(m_righe, n - 1); }
    void ricalcolaTutto();
    void riportaPeso();
    void cambiaPrezzo(Riga& riga, const QString& testo);
    double prezzoListino(const Riga& riga, Da da) const;
    void mettiTestoAggiuntivo(int n, int recart);

    Contesto& m_contesto;
    Documento& m_documento;
    TabellaRighe m_righe;
    std::optional<TabellaRighe> m_riprese;
    TotaliRighe m_totali;
    Art m_articolo = vuoto<Art>(); ///< the article last read
    int m_listino = 1;
    bool m_scorporo = false;
};

} // namespace bor
