// The text file with the detail lines and head texts of a stored document: one value a line, known only by
// its place. Opening a document reads it, saving one writes it.
#pragma once

#include "document/documento.h"

namespace bor {

class RigheInSospeso;

/// Fills lines, head texts and switches of the document from its lines file; from what the run still keeps of
/// a new one, also where another program has meanwhile stored it without lines; else from a file of the older
/// name, by number and year. A document without any has no lines, which is no failure; false when there is a
/// file that could not be read. Where the current file is missing the next save gives the document a new one.
bool leggedoc(Documento& documento, const Archivio& archivio, RigheInSospeso& sospese);

/// Writes the document's lines file, which must have a number, over an earlier one. False when it could not
/// be written: the earlier one is then still there.
bool scrividoc(const Documento& documento, Archivio& archivio);

/// The stored document has its lines file, or one of the older name.
bool righeSuFile(const Archivio& archivio, const Fte& fte);

/// A lines file: its path on this machine, and whether it has the older form.
struct FileRighe {
    QString percorso; ///< empty where there is none
    bool vecchio = false;
};

/// The lines file of the stored document, else one of the older name.
FileRighe trovaFileRighe(const Archivio& archivio, const Fte& fte);
/// Fills lines, head texts and switches of the document from the file; false when it could not be read.
bool leggiRighe(const FileRighe& file, Documento& documento);

/// DOS path of the document's lines file.
QString percorsoRighe(const Archivio& archivio, const Fte& fte);

} // namespace bor
