// The report file, in which the module leaves everything that a print drew for the PDF tool: where it is, and
// the writing and reading of its records. docs/moduli.md tells the format.
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>

namespace bor {

/// DOS path of the report file, which each print replaces; a second program of the same user has one of its
/// own beside it.
inline constexpr QStringView fileRapporto = u"c:\\bordoc.rto";

/// The first line of the file, without its end.
inline constexpr QByteArrayView firmaRapporto = "#FILEFORMAT=QLM-RTO";

/// Lines of one record.
inline constexpr std::size_t lineeRecordRapporto = 11;

/// The numbers are on file and can never change.
enum class ComandoRapporto { Immagine = 0, Linea = 1, Riquadro = 2, Testo = 3, FinePagina = 9 };

/// One drawing command. Coordinates are millimetres from the top left corner of the page.
struct RecordRapporto {
    ComandoRapporto comando = ComandoRapporto::Testo;
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    double dimensione = 0; ///< points
    int colore = 0;        ///< 0x00BBGGRR
    QString testo;         ///< the text, or the picture's file
    QString carattere;
    bool grassetto = false; ///< of a box: filled
    bool corsivo = false;
};

/// The lines of a record, each with its end. A line end within a text becomes a blank: it would put every
/// following line of the file out of its place.
QByteArray scriviRecord(const RecordRapporto& record);

/// A record from its lines, without their ends; an empty line of a number is 0. A colour beyond 24 bits, one
/// of the desktop's own palette, is read as black. Nothing when a line is out of place.
std::optional<RecordRapporto> leggiRecord(const std::array<QByteArrayView, lineeRecordRapporto>& linee);

} // namespace bor
