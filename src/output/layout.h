// The look of printed documents as the company has set it: where each item stands, and the texts for PDF and
// e-mail.
#pragma once

#include "common/posti.h"
#include "common/stampante.h"

#include <QString>

#include <array>

namespace bor {

class Archivio;

/// One item of a page.
struct VoceLayout {
    QString posizione; ///< six digits: x and y in whole millimetres; 0 leaves the item out
    Carattere carattere;
    int colore = 0;

    double x() const;
    double y() const;
};

/// `borlano.lyf` (invoice) or `borlano.lyp` (fee bill): items 1 to 100, index 0 unused.
struct Layout {
    std::array<VoceLayout, 101> voci;
    bool modello = false; ///< the page template is drawn under the items

    const VoceLayout& voce(int numero) const { return elemento(voci, numero); }
};

/// A layout file that cannot be read whole gives a page on which no item has a place.
Layout caricaLayout(const Archivio& archivio, bool parcella);

/// `borlano.pdf`: rows 1 to 20 with columns 0 to 3.
struct TestiPdf {
    std::array<std::array<QString, 4>, 21> righe;

    /// Folder of the PDF files, without closing backslash.
    QString cartella() const;
    /// Text of the e-mail; empty for none.
    QString testo(bool parcella) const;
};

TestiPdf caricaTestiPdf(const Archivio& archivio);

} // namespace bor
