// Reads a finished electronic invoice with the eyes of the receiving system and lists what it would refuse,
// for the screen of the electronic invoice and for the program that checks a file. It never changes the file.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace bor {

/// One thing the receiving system would refuse.
struct Rilievo {
    QString elemento; ///< path below the root, "FatturaElettronicaBody/DatiGenerali/..."; empty for the whole
                      ///< file
    int riga = 0;     ///< line in the file from 1; 0 when it has none
    QString valore;   ///< what stands there, empty when nothing does
    QString motivo;   ///< what is wrong with it
    QString rimedio;  ///< what to change, and on which screen
};

/// Findings in the order of the file; empty when nothing speaks against sending it. `nomeFile` is the bare
/// name, checked too. Any bytes are good input: a file too broken for a check is read as far as it goes.
/// Beyond 500 findings the rest is only counted, in a last one.
std::vector<Rilievo> controllaXml(const QByteArray& contenuto, const QString& nomeFile);

/// The finding as a paragraph of a few lines.
QString testoRilievo(const Rilievo& rilievo);

} // namespace bor
