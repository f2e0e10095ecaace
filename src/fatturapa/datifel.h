// What today's electronic invoice needs and the suite's records have no place for: of the company, of a
// customer, of a document. Kept in `borlano.fel` by fatturapa/archiviofel.h; the screens edit these values.
#pragma once

#include <QString>

#include <array>
#include <utility>

namespace bor {

/// Ticks are texts: "SI" or empty.
struct AziendaFel {
    QString iban;            ///< of the seller, for bank transfers
    QString cassaci;         ///< kind of fund of the contribution C.I., "TC01" to "TC22"
    QString cassacp;         ///< kind of fund of the contribution C.P.; empty counts as "TC22"
    QString naturaci;        ///< nature of the contribution C.I., which bears no VAT
    QString tiporitenuta;    ///< "RT01" to "RT06"; empty: RT01 for a person, RT02 for a company
    QString causaleritenuta; ///< reason of the withholding, "A", "L1", ...
    QString allegapdf;       ///< tick: the PDF of the document goes into the file

    friend bool operator==(const AziendaFel&, const AziendaFel&) = default;
};

struct ClienteFel {
    QString codice;           ///< seven characters, of the recipient's channel
    QString pec;              ///< certified mail, for a recipient without code
    QString splitpayment;     ///< tick: the customer pays the tax to the state himself
    QString intento;          ///< protocol of the declaration of intent, "08060120341234567-000001"
    QString intentoricezione; ///< day of its receipt, "dd/mm/yyyy"

    friend bool operator==(const ClienteFel&, const ClienteFel&) = default;
};

/// Dates are "dd/mm/yyyy". Empty is the proposal that the document itself makes.
struct DocumentoFel {
    QString file;     ///< progressive of the file's name, given out once
    QString scartati; ///< progressives of refused files, with blanks between them: never given out again
    QString tipo;     ///< "TD01" to "TD29"
    QString bollo;    ///< "SI" stamp duty, "NO" none; empty: by the exempt amounts
    QString collegatanumero; ///< invoice that a credit note corrects
    QString collegatadata;
    QString ordinenumero; ///< purchase order; empty: the order of the head
    QString ordinedata;
    QString contrattonumero;
    QString contrattodata;
    QString cup;
    QString cig;
    QString ddtdata; ///< day of the transport document
    QString tiporitenuta;
    QString causaleritenuta;
    QString modalita; ///< "MP01" to "MP23"

    friend bool operator==(const DocumentoFel&, const DocumentoFel&) = default;
};

/// Nature of a VAT code, with its subcode ("N3.1"): index 1 to 24, empty where the suite's own digit will do.
using NatureFel = std::array<QString, 25>;

/// Each field under its key in the file.
template <class F>
void campiFel(AziendaFel& a, F f) {
    f(u"iban", a.iban);
    f(u"cassaci", a.cassaci);
    f(u"cassacp", a.cassacp);
    f(u"naturaci", a.naturaci);
    f(u"tiporitenuta", a.tiporitenuta);
    f(u"causaleritenuta", a.causaleritenuta);
    f(u"allegapdf", a.allegapdf);
}

template <class F>
void campiFel(ClienteFel& c, F f) {
    f(u"codice", c.codice);
    f(u"pec", c.pec);
    f(u"splitpayment", c.splitpayment);
    f(u"intento", c.intento);
    f(u"intentoricezione", c.intentoricezione);
}

template <class F>
void campiFel(DocumentoFel& d, F f) {
    f(u"file", d.file);
    f(u"scartati", d.scartati);
    f(u"tipo", d.tipo);
    f(u"bollo", d.bollo);
    f(u"collegatanumero", d.collegatanumero);
    f(u"collegatadata", d.collegatadata);
    f(u"ordinenumero", d.ordinenumero);
    f(u"ordinedata", d.ordinedata);
    f(u"contrattonumero", d.contrattonumero);
    f(u"contrattodata", d.contrattodata);
    f(u"cup", d.cup);
    f(u"cig", d.cig);
    f(u"ddtdata", d.ddtdata);
    f(u"tiporitenuta", d.tiporitenuta);
    f(u"causaleritenuta", d.causaleritenuta);
    f(u"modalita", d.modalita);
}

} // namespace bor
