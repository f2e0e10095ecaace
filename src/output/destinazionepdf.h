// What the PDF tool is told about a document beside its pages: the name of the PDF, the layout, the address.
// The print of one document and that of many take the same.
#pragma once

#include "document/documento.h"

namespace bor {

struct TestiPdf;

/// Path of this machine of the tool.
QString strumentoPdf(const Archivio& archivio);

/// DOS path of the tool's layout for a fee bill, or for invoices.
QString layoutStrumento(bool parcella, const Archivio& archivio);

/// DOS path of a document's PDF, by what its number is worth: two numbers may share it.
QString nomePdf(QStringView numero, bool parcella, const TestiPdf& testi);

/// Why no PDF can have this name, as a sentence without its full stop: the folder is none, or the document's
/// record would cut the name. Empty for a good name.
QString nomeRifiutato(const QString& pdf, const Archivio& archivio, const TestiPdf& testi);

/// The same of a file that was chosen: only its length counts.
QString lunghezzaRifiutata(const QString& nome);

/// The customer's mail address, without the places never written. It may be none.
QString indirizzoPosta(const Cli& cliente);

} // namespace bor
