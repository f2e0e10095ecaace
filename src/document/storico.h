// What a customer has had: his documents with their totals, and the last sales to him of one article. The
// documents come from the records, the sales from the lines files, of which each is read once.
#pragma once

#include "archive/archivio.h"
#include "document/indicestorico.h"

#include <QDate>

#include <optional>
#include <vector>

namespace bor {

struct Contesto;
struct Valuta;
class RigheInSospeso;

/// A live document of the customer; amounts of a credit note are below 0.
struct DocumentoStorico {
    int record = 0; ///< `fte` record
    QDate data;     ///< of issue; invalid where the record has none
    QString numero;
    bool notaCredito = false;
    bool parcella = false;
    double imponibile = 0; ///< exempt amounts included
    double imposta = 0;
    double totale = 0;
};

/// A line of an invoice with the article.
struct VenditaStorica {
    QDate data;
    QString numero; ///< of the invoice
    RigaVenduta riga;
    bool conIva = false; ///< the price includes VAT
};

/// Whose history, and the sales of what.
struct DomandaStorico {
    int cliente = 0; ///< `cli` record
    int recart = 0;  ///< `art` record; 0 for no article
    int documento =
        0; ///< `fte` record of the open document, whose own lines are no sales of before; 0 for none
};

class Storico {
public:
    /// `indice` names a file of the user's cache, which need not exist; an empty name keeps nothing between
    /// runs.
    Storico(const Contesto& contesto, const RigheInSospeso& sospese, QString indice)
        : m_contesto(contesto), m_sospese(sospese), m_percorso(std::move(indice)) {}
    /// Keeps what was read.
    ~Storico() { conserva(); }
    Storico(const Storico&) = delete;
    Storico& operator=(const Storico&) = delete;

    /// The customer's documents, newest first. The sales follow as `avanza` is called.
    void apri(const DomandaStorico& domanda);
    /// Looks at lines files for about so long, and reads those that are new or changed. True when none is
    /// left; then the sales are complete, newest first.
    bool avanza(int millisecondi);
    /// Leaves the rest unread.
    void interrompi();

    const DomandaStorico& domanda() const { return m_domanda; }
    const std::vector<DocumentoStorico>& documenti() const { return m_documenti; }
    const std::vector<VenditaStorica>& vendite() const { return m_vendite; }
    /// Sum of the documents, and of those of a year; 0 for all years.
    double totale(int anno = 0) const;
    int guardati() const { return static_cast<int>(m_prossimo); } ///< lines files looked at
    int daGuardare() const { return static_cast<int>(m_conRighe.size()); }
    const Valuta& valuta() const;
    QString nomeCliente() const;
    QString nomeArticolo() const; ///< code and description; empty for none

private:
    struct ConRighe {
        int record;
        Fte fte;
    };

    void aggiungi(int record, const Fte& fte);
    const VenditeFile* venditeDi(const Fte& fte);
    const VenditeFile* venditeInSospeso(const Fte& fte);
    void prendiVendite(const ConRighe& documento);
    void conservaSeMolto();
    void conserva();

    const Contesto& m_contesto;
    const RigheInSospeso& m_sospese;
    QString m_percorso;
    std::optional<IndiceStorico> m_indice; ///< read when it is first wanted
    int m_nuovi = 0;                       ///< files read since the index was written
    DomandaStorico m_domanda;
    std::vector<DocumentoStorico> m_documenti;
    std::vector<VenditaStorica> m_vendite;
    std::vector<ConRighe> m_conRighe; ///< invoices of goods, newest first
    std::size_t m_prossimo = 0;
    VenditeFile m_sospeso; ///< lines that have no file yet
};

} // namespace bor
