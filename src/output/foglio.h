// One print in progress: each item goes to the printer and into the report file.
#pragma once

#include "archive/contesto.h"
#include "common/stampante.h"
#include "output/scritturarapporto.h"

namespace bor {

class Foglio {
public:
    /// A print without report file goes to the printer alone; one without printer only measures its texts
    /// there.
    enum class Uscita { StampanteERapporto, SoloStampante, SoloRapporto };

    Foglio(const Contesto& contesto, Stampante& stampante, Uscita uscita, const QString& titolo);

    void testo(double x, double y, const QString& testo, const Carattere& carattere, int colore);
    /// The right edge of the text stands at x.
    void testoADestra(double x, double y, const QString& testo, const Carattere& carattere, int colore);
    void linea(double x1, double y1, double x2, double y2, int colore);
    void riquadro(double x1, double y1, double x2, double y2, int colore, bool pieno);
    /// `file` is a DOS path.
    void immagine(double x1, double y1, double x2, double y2, const QString& file);
    void finePagina();
    /// The printer takes part.
    bool suCarta() const { return m_stampa; }
    /// Ends the print and writes the report file. False when that could not be written.
    bool termina();
    /// What the report file would hold so far.
    const QByteArray& rapporto() const { return m_rapporto.bytes(); }

private:
    QString percorso(const QString& file) const;

    const Contesto& m_contesto;
    Stampante& m_stampante;
    Uscita m_uscita;
    bool m_stampa;
    ScritturaRapporto m_rapporto;
};

} // namespace bor
