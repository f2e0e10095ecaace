// The page that documents are printed on, in millimetres from the top left corner.
#pragma once

#include <QString>

namespace bor {

struct Carattere {
    QString nome;
    double punti = 9;
    bool grassetto = false;
    bool corsivo = false;
};

/// Port to the printer. A machine without one still measures text, so that right-aligned amounts stand where
/// they would on paper. Colours are 0x00BBGGRR.
class Stampante {
public:
    virtual ~Stampante();

    /// Begins a print job with this title; false when nothing can be printed (drawing calls then do nothing).
    virtual bool inizia(const QString& titolo) = 0;
    virtual double larghezza(const QString& testo, const Carattere& carattere) = 0;
    /// Text with its left edge at x and the top of its line at y.
    virtual void testo(double x, double y, const QString& testo, const Carattere& carattere, int colore) = 0;
    virtual void linea(double x1, double y1, double x2, double y2, int colore) = 0;
    virtual void riquadro(double x1, double y1, double x2, double y2, int colore, bool pieno) = 0;
    virtual void immagine(double x1, double y1, double x2, double y2, const QString& percorso) = 0;
    virtual void nuovaPagina() = 0;
    virtual void termina() = 0;
};

} // namespace bor
