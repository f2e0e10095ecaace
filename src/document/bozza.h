// What is kept of documents outside the archive, in files of the user's own: the one that is being written,
// and the lines of new ones that have no lines file yet. docs/bozze.md tells the format.
#pragma once

#include "document/documento.h"

#include <QDateTime>

#include <optional>

namespace bor {

/// An open document as it is on screen.
struct Bozza {
    QDateTime scritta;
    Documento documento;
    CoppiaFte suFile = vuoto<CoppiaFte>(); ///< its records when it was opened; of no meaning in a new one
    bool inTestata = false; ///< a new document whose head form, the first screen, has not been left
    /// The lines as they stand in their form, while that is in view: the document has them when the operator
    /// confirms.
    std::optional<TabellaRighe> righe;
    std::optional<TabellaRighep> righep;
};

/// Lines, head texts and switches of a stored document.
struct RigheSospese {
    TabellaRighe ddd = TabellaRighe(righeMerce);
    TabellaRighep dddp = TabellaRighep(righeParcella);
    Trasporto trasporto;
    Pratica pratica;
    bool scorporo = false;
};

/// The bytes of a file: a mark with the version, a checksum, and every member.
QByteArray codifica(const Bozza& bozza);
QByteArray codifica(const RigheSospese& righe);

/// What a file holds; nothing when it is of another version, torn or garbled. Numbers and list positions come
/// out within what the screens know, whatever the bytes are.
std::optional<Bozza> decodificaBozza(QByteArrayView bytes);
std::optional<RigheSospese> decodificaRighe(QByteArrayView bytes);

} // namespace bor
