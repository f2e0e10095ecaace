// The open document: the whole working state of the document on screen. The forms are editors over it;
// saving, loading, posting, printing and the electronic invoice are functions over it.
#pragma once

#include "archive/archivio.h"
#include "document/righe.h"
#include "document/testata.h"

namespace bor {

inline constexpr int ultimoRegistro = 9; ///< the VAT registers of a company are 0 to 9

/// Numbers, dates and revenue split. Boxes whose raw text a rule reads are kept as text; list positions count
/// from 0, and -1 is no selection.
struct Estremi {
    QString numero;       ///< `Text2(0)`
    QString data;         ///< `text3(1)`: date of issue, "dd/mm/yyyy" or whatever was typed
    QString datareg;      ///< `text3(2)`: date of registration
    QString protocollo;   ///< `Text2(3)`
    int registro = 0;     ///< `Combo5`: 0 to `ultimoRegistro`
    bool esig = false;    ///< deferred VAT
    int voce1 = -1;       ///< `Combo2`: main revenue item
    int voce2 = -1;       ///< `Combo3`
    int voce3 = -1;       ///< `Combo4`
    QString quota2;       ///< `Text2(5)`: amount split off to the second revenue item
    QString quota3;       ///< `Text2(6)`
    QString pdf;          ///< name of the document's PDF
    bool postael = false; ///< send by e-mail

    friend bool operator==(const Estremi&, const Estremi&) = default;
};

/// One of the six instalments.
struct Rata {
    QString scadenza; ///< `dsca`
    QString importo;  ///< `sca`

    friend bool operator==(const Rata&, const Rata&) = default;
};

/// The commission rate is kept as it was typed, in a field of this many characters.
inline constexpr int caratteriProvvigione = 4;

/// Payment, instalments and the agent's commission.
struct Scadenze {
    int pagamento = -1; ///< `Combo1`: row of the payment table less 1
    std::array<Rata, 6> rate;
    bool rib = false; ///< bank receipts (Ri.Ba.)
    QString provaliq; ///< `pro(0)`: commission rate, up to `caratteriProvvigione`
    QString provimp;  ///< `pro(1)`: commission

    friend bool operator==(const Scadenze&, const Scadenze&) = default;
};

/// One row of the withholding panel.
struct Ritenuta {
    QString raimpo; ///< base
    QString raimp;  ///< amount
    QString rascad; ///< to be paid by
    QString ravers; ///< paid on

    friend bool operator==(const Ritenuta&, const Ritenuta&) = default;
};

/// One row of the deferred-VAT panel.
struct IvaDifferita {
    QString mese;
    QString anno;
    QString pagato; ///< `timp`
    QString quota;  ///< `tiva`: tax that became due

    friend bool operator==(const IvaDifferita&, const IvaDifferita&) = default;
};

/// The panels beside the VAT rows.
struct Prospetti {
    std::array<Ritenuta, 4> ritenute;
    int tributo = -1; ///< `Combo6`: position in the list of tax codes
    std::array<IvaDifferita, 8> differita;
    QString terminemese;        ///< `tmese(8)`
    QString termineanno;        ///< `tanno(8)`
    bool spesometro = false;    ///< `xxiva(0)`
    bool noleggio = false;      ///< `xxiva(1)`
    int classenoleggio = -1;    ///< `Combo7`
    bool ivanonesp = false;     ///< `xxiva(2)`
    bool autofattura = false;   ///< `xxiva(3)`
    bool riepilogativo = false; ///< `xxiva(4)`

    friend bool operator==(const Prospetti&, const Prospetti&) = default;
};

/// What the line above the command bar says of a document that integrates a supplier's invoice.
enum class Integrata { No, ReverseCharge, Intracomunitaria };

/// The invoice that a credit note corrects, for its electronic invoice.
struct Collegata {
    QString numero; ///< empty for none
    QString data;   ///< "dd/mm/yyyy"
};

struct Documento {
    int recordfattura = 0; ///< `fte` record; 0 for a new document
    int recordcliente = 0; ///< `cli` record of the chosen customer, stored by the next save; 0 for none yet
    double recordfpa = 0;  ///< number of the electronic invoice's data, stored by the next save; 0 for none
    CoppiaFte coppia = vuoto<CoppiaFte>();
    Cli cliente = vuoto<Cli>();
    Testata testata;
    Estremi estremi;
    Scadenze scadenze;
    Prospetti prospetti;
    TabellaRighe ddd = TabellaRighe(righeMerce);
    TabellaRighep dddp = TabellaRighep(righeParcella);
    bool scorporo = false; ///< prices of the goods lines include VAT
    Integrata integrata = Integrata::No;
    Collegata collegata; ///< waits for the first save, which gives the document the stamp it is kept under

    /// 0 invoice or fee bill, 1 credit note. It never changes once the document is begun, so the kind on
    /// screen and the kind read (`tipodocumentoletto`) are one.
    int tipodocumento() const { return coppia.fte.tipo; }
    bool notaCredito() const { return tipodocumento() == 1; }
    int tipoparcella() const { return coppia.fte.parcella; } ///< non-zero for a fee bill
    bool parcella() const { return tipoparcella() != 0; }
    bool fatturaPa() const { return coppia.f2e.fatturaPa(); }
};

} // namespace bor
