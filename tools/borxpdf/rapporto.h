// The report file of a printed document, read whole: pages of drawing commands in millimetres.
// Used by the PDF, by the preview and by their tests.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace bor::pdf {

/// The numbers stand in the file and can never change.
enum class Codice { Immagine = 0, Linea = 1, Riquadro = 2, Testo = 3, FinePagina = 9 };

/// One drawing command. Coordinates are millimetres from the top left corner of the A4 page.
struct Elemento {
    Codice codice = Codice::Testo;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    double dimensione = 0;    // points, as written: a size below 2 is drawn as 2
    std::uint32_t colore = 0; // red in the low byte, then green, then blue
    QString testo;            // the text, or the picture's file name
    QString carattere;
    bool grassetto = false; // of a box: filled
    bool corsivo = false;
};

using Pagina = std::vector<Elemento>;

struct Rapporto {
    std::vector<Pagina> pagine; // at least one

    /// Reads the bytes of a report file. A file that is cut, out of step or larger than any print can be
    /// gives nothing, and `errore` says why in Italian: half a document must never reach a customer.
    static std::optional<Rapporto> leggi(QByteArrayView dati, QString& errore);
};

} // namespace bor::pdf
