// The electronic invoice to a public administration as a file. The form of the electronic invoice makes it;
// the bytes are those that the receiving system has accepted from this suite all along.
#pragma once

#include "archive/fpa.h"
#include "document/documento.h"
#include "einvoice/riepilogofpa.h"

namespace bor {

/// What an invoice is made of. Kind, withholding, ticks and payment stand in `documento`.
struct DatiXml {
    const Fpa& azienda;
    const Fpa& documento;
    const Cli& cliente;
    const TabellaRighe& righepa;
    const RiepilogoFpa& riepilogo;
    const Scadenze& scadenze;
    QString coordinate; ///< bank coordinates of the head form; an IBAN when they have its length
    const Tabelle& tabelle;
    Valuta valuta;
};

/// The bytes of the file.
QByteArray generaxml(const DatiXml& dati);

/// DOS path of the company's folder of XML files, with its closing backslash.
QString cartellaXml(const Fpa& azienda);

/// Name of the file of a document: country, code of the transmitter, document number.
QString nomeXml(const Fpa& azienda, const QString& numero);

/// Path of this machine of a document's file; empty when the number is no part of a file name or the folder
/// is no folder of the program.
QString percorsoXml(const Archivio& archivio, const Fpa& azienda, const QString& numero);

} // namespace bor
