// The rows of the register: one for each issued document, kept small and turned into text only where they are
// shown.
#pragma once

#include "archive/archivio.h"
#include "archive/tabelle.h"
#include "common/posti.h"
#include "common/valuta.h"
#include "document/identita.h"
#include "document/importidocumento.h"
#include "register/colonneelenco.h"
#include "register/sommeelenco.h"

#include <chrono>
#include <functional>
#include <vector>

namespace bor {

/// What a list lacks of the documents that were asked for.
struct LetturaElenco {
    std::vector<int> nonLetti; ///< records that could not be read, or are not on file though they are counted
    int oltre = 0;             ///< documents that the list has no room for
    bool occupato = false;     ///< another program kept the company: its documents may be of two moments
};

class ElencoFatture {
public:
    /// `tabelle` names the payment types, and outlives the list.
    explicit ElencoFatture(const Tabelle& tabelle) : m_tabelle(tabelle) {}

    /// The most rows that the list can show; later documents are left out.
    static constexpr int massimoRighe = 31999;

    /// Tells whether a document, whose record number it gets, is to be in the list.
    using Passa = std::function<bool(int record, const Fte&, const F2e&)>;

    /// Fills the list with the documents from `primo` to `ultimo` that pass, in the order of their records. A
    /// broken reference to electronic invoice data is set to 0 on file, which is all that a fill writes.
    void carica(Archivio& archivio, int primo, int ultimo, const Passa& passa);
    /// The same for a program that only reads: nothing is written, and a document that cannot be read is left
    /// out. Waits up to five seconds while another program writes.
    LetturaElenco leggi(const Archivio& archivio, int primo, int ultimo, const Passa& passa);

    /// Sorts by record number, registration date or customer: ascending, documents that tie in their present
    /// order.
    void ordina(Colonna colonna);

    /// Leaves in the list the documents that answer to a text, as `CercaFatture` tells; an empty text brings
    /// all of them back. A fill and a sort keep it.
    void cerca(const QString& testo);

    int quante() const { return quantiIn(m_mostrate); }
    /// What the rows come to; those that do not exist count as nothing.
    SommeElenco somma(const std::vector<TrattoRighe>& tratti) const;
    /// The same of all that are shown.
    SommeElenco somma() const;
    /// The value of a cell, for a table that leaves the program.
    void cella(int riga, Colonna colonna, CelleRiga& celle) const;
    /// Text of a cell; rows count from 0. A row that does not exist is blank.
    QString testo(int riga, Colonna colonna, const Valuta& valuta) const;
    /// Record number of a row; 0 for a row that does not exist.
    int record(int riga) const;
    /// The document of a row; record 0 for a row that does not exist.
    Identita identita(int riga) const;
    /// The row of a record; -1 when it is not in the list.
    int rigaDi(int record) const;
    bool haPdf(int riga) const;
    /// Empty for a row without PDF.
    QString nomePdf(int riga) const;
    /// The document has the number of a lines file, and no such file.
    bool senzaRighe(int riga, const Archivio& archivio) const;
    /// The last document that the fill took in has a PDF.
    bool ultimaPdf() const { return m_ultimaPdf; }

private:
    /// How the records are read, and what comes of it.
    struct Scansione {
        std::chrono::milliseconds attesa; ///< for another program that writes
        bool anchePersi;                  ///< documents that cannot be read are blank rows
        LetturaElenco esito = {};
        std::vector<int> guasti = {}; ///< records with a broken reference to electronic invoice data
    };
    struct Riga {
        Text<10> numero;
        Text<8> datareg;
        Text<8> datadoc;
        std::int16_t record;
        std::int16_t cliente;
        std::int16_t pdf;       ///< index in `m_pdf`; -1 none
        std::int16_t pagamento; ///< number of the payment type; 0 none
        double stamp;
        float nfile;
        bool parcella;
        bool pa;
        bool annullata;
        ImportiDocumento importi;
        Text<8> scadenza; ///< of the first instalment, `yyyymmdd`; blank without one
    };

    bool esiste(int riga) const { return riga >= 0 && riga < quante(); }
    const Riga& mostrata(int riga) const { return m_righe[elemento(m_mostrate, riga)]; }
    QString testo(const Riga& riga, Colonna colonna, const Valuta& valuta) const;
    void scegliMostrate();
    void scorri(const Archivio& archivio, int primo, int ultimo, const Passa& passa, Scansione& scansione);
    void aggiungi(int record, const Fte& fte, const F2e& f2e);
    void leggiNomi(const Archivio& archivio);
    const QString& nomeCliente(const Riga& riga) const;
    const QString& nomePagamento(const Riga& riga) const;
    QString nomePdf(const Riga& riga) const;

    const Tabelle& m_tabelle;
    std::vector<Riga> m_righe;           ///< all that the fill took in
    std::vector<std::size_t> m_mostrate; ///< indices of those that answer to `m_cercato`
    QString m_cercato;
    std::vector<Text<60>> m_pdf;
    std::vector<QString> m_nomi; ///< first name line of the customers, by record number
    bool m_ultimaPdf = false;
};

} // namespace bor
