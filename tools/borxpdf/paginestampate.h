// The report file of a printed document, read whole: pages of drawing commands in millimetres.
// Used by the PDF, by the preview and by their tests.
#pragma once

#include "common/rapporto.h"

#include <QByteArrayView>
#include <QString>

#include <optional>
#include <vector>

namespace bor::pdf {

using Pagina = std::vector<RecordRapporto>;

struct PagineStampate {
    std::vector<Pagina> pagine; // at least one

    /// Reads the bytes of a report file. Coordinates and sizes are held within what can be drawn. A file that
    /// is cut, out of step or larger than any print can be gives nothing, and `errore` says why in Italian:
    /// half a document must never reach a customer.
    static std::optional<PagineStampate> leggi(QByteArrayView dati, QString& errore);
};

} // namespace bor::pdf
