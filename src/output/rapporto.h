// Writes the report file: everything that a print draws, for the tool that makes PDFs and previews of it.
// docs/moduli.md tells its format.
#pragma once

#include "common/stampante.h"

#include <QByteArray>

namespace bor {

/// Collects the records of one print. Coordinates are millimetres from the top left corner of the page.
class Rapporto {
public:
    Rapporto();

    void immagine(double x1, double y1, double x2, double y2, const QString& file);
    void linea(double x1, double y1, double x2, double y2, int colore);
    void riquadro(double x1, double y1, double x2, double y2, int colore, bool pieno);
    void testo(double x, double y, const QString& testo, const Carattere& carattere, int colore);
    void finePagina();

    const QByteArray& bytes() const { return m_bytes; }

private:
    /// The commands of the format. They are on file and can never change.
    enum class Codice { Immagine = 0, Linea = 1, Riquadro = 2, Testo = 3, FinePagina = 9 };

    struct Record {
        Codice codice;
        double x1 = 0;
        double y1 = 0;
        double x2 = 0;
        double y2 = 0;
        double dimensione = 0;
        int colore = 0;
        QString testo;
        QString carattere;
        int grassetto = 0;
        int corsivo = 0;
    };

    void scrivi(const Record& record);
    void linea(const QString& testo);

    QByteArray m_bytes;
};

/// DOS path of the report file; each print replaces it.
inline constexpr QStringView fileRapporto = u"c:\\bordoc.rto";

} // namespace bor
