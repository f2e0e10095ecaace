// Prints a document: on the printer, into the report file, or both.
#pragma once

#include "document/documento.h"
#include "output/foglio.h"

namespace bor {

/// What a print left behind.
enum class EsitoStampa {
    Niente,
    SoloCarta,  ///< an invoice that integrates a supplier's one goes to the printer alone
    ConRapporto ///< a report file that a PDF can be made of; on paper too, where there is a printer
};

/// Asks, then prints the goods invoice, credit note or fee bill. A missing printer, a document without lines
/// and a report file that could not be written are told.
EsitoStampa stampaDocumento(const Documento& documento, const Contesto& contesto, Stampante& stampante);

/// What became of a print of which nobody was asked and nobody told.
enum class SuCarta { Stampato, SenzaRighe, SenzaStampante };

/// Prints the document without a question, a message or a report file.
SuCarta stampaSuCarta(const Documento& documento, const Contesto& contesto, Stampante& stampante);

/// The bytes of the report file that a print would leave, of which nothing is written; empty for a document
/// without lines.
QByteArray componiRapporto(const Documento& documento, const Contesto& contesto, Stampante& stampante);

/// Writes the report file without printing, for the preview; nothing is asked. False when the document has no
/// line to print or the file could not be written.
bool preparaRapporto(const Documento& documento, const Contesto& contesto, Stampante& stampante);

} // namespace bor
