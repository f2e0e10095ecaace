// Makes today's electronic invoice out of a document, the company's data and the program's own. Nothing is
// read or written here; the screen composes at each change, the generator once.
#pragma once

#include "archive/fpa.h"
#include "common/valuta.h"
#include "document/documento.h"
#include "fatturapa/datifel.h"
#include "fatturapa/fattura.h"
#include "xmlcheck/rilievo.h"

namespace bor {

struct Tabelle;

/// The program's own data that concern one document.
struct DatiFel {
    AziendaFel azienda;
    NatureFel nature;
    ClienteFel cliente;
    DocumentoFel documento;

    friend bool operator==(const DatiFel&, const DatiFel&) = default;
};

struct FontiFel {
    const Documento& documento;
    const Fpa& azienda;
    const Fpa* pa; ///< the document's data of the form of 2014; null when it has none
    const DatiFel& propri;
    const Tabelle& tabelle;
    Valuta valuta;
    QString progressivo; ///< of the file's name
};

struct Composta {
    FatturaElettronica fattura;
    /// Errors stop the file: what it would say could not be said at all. Hints do not. Each names the element
    /// of the file that it speaks of.
    std::vector<Rilievo> rilievi;

    bool rifiutata() const;
};

Composta componi(const FontiFel& fonti);

} // namespace bor
