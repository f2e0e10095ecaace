// Puts the rows of a text among those of a document, and tells row by row what became of each. The lines
// forms first do it on a copy, so that the operator reads it before anything is put in.
//
// A row of goods takes its article where the code is one, with price, VAT code, unit and additional text as
// the article is chosen by hand; whatever else stands in the row then goes over it. A row without such a code
// is one without article. A text without any tab is a code where it is one, and a description otherwise.
#pragma once

#include "document/righe.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace bor {

class RigheMerce;

/// What a row of the text comes to.
struct RigaIncollata {
    int linea = 0;       ///< of the text, counted from 1
    bool dentro = false; ///< it goes in
    QStringList celle;   ///< as it stands in the document then, or in the text if it does not go in
    QStringList rilievi; ///< what was not understood, and what stands in its place; why it does not go in
};

struct Incollate {
    QList<RigaIncollata> righe; ///< empty lines of the text make none
    int inserite = 0;           ///< rows of the document, additional texts of articles included

    bool conRilievi() const;
};

struct ArticoloTrovato {
    int recart = 0;    ///< `art` record; 0 for none
    QStringList testi; ///< the lines of text that go with it
};

/// The article of a code as it is on file, case aside.
using TrovaArticolo = std::function<ArticoloTrovato(const QString& codice)>;

/// Inserts in front of row `posto`, counted from 1; rows in use that would not fit any more keep others out.
Incollate incollaMerce(RigheMerce& righe, int posto, const QString& testo, const TrovaArticolo& articolo);
Incollate incollaParcella(TabellaRighep& righe, int posto, const QString& testo);

} // namespace bor
