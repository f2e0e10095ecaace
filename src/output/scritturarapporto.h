// Writes the report file: everything that a print draws, for the tool that makes PDFs and previews of it.
#pragma once

#include "common/rapporto.h"
#include "common/stampante.h"

#include <QByteArray>

namespace bor {

/// Collects the records of one print. Coordinates are millimetres from the top left corner of the page.
class ScritturaRapporto {
public:
    ScritturaRapporto();

    void immagine(double x1, double y1, double x2, double y2, const QString& file);
    void linea(double x1, double y1, double x2, double y2, int colore);
    void riquadro(double x1, double y1, double x2, double y2, int colore, bool pieno);
    void testo(double x, double y, const QString& testo, const Carattere& carattere, int colore);
    void finePagina();

    const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

} // namespace bor
