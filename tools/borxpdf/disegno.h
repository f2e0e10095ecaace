// Draws the pages of a report: the one drawing code behind the PDF, the preview and the pictures of the
// tests.
#pragma once

#include "borxpdf/paginestampate.h"

#include <QFont>
#include <QHash>
#include <QImage>

#include <functional>
#include <memory>

class QPainter;
class QRectF;
class QSvgRenderer;

namespace bor::pdf {

/// Lengths on the page are given to the painter in this many units an inch: fine enough for any text.
inline constexpr int kUnitaPollice = 1440;

constexpr double unitaDaMillimetri(double millimetri) {
    return millimetri * kUnitaPollice / 25.4;
}

class Disegnatore {
public:
    /// Gives the real file of a picture's name in a report; empty when there is none.
    using TrovaImmagine = std::function<QString(const QString&)>;

    explicit Disegnatore(TrovaImmagine trovaImmagine);
    ~Disegnatore();

    /// The painter's units must be 1/1440 of an inch, its origin the top left corner of the sheet.
    /// A picture that is missing or cannot be read leaves its place blank.
    void disegna(QPainter& pittore, const Pagina& pagina);

private:
    struct Carattere {
        QFont tipo;
        double ascendente = 0; // from the top of a line of text to its base line, in units
    };
    struct Immagine {
        QImage punti;
        std::unique_ptr<QSvgRenderer> vettori;
        bool senzaPerdita = true;
    };

    void disegnaTesto(QPainter& pittore, const RecordRapporto& elemento);
    void disegnaImmagine(QPainter& pittore, const QString& nome, const QRectF& posto);
    const Carattere& carattere(const RecordRapporto& elemento);
    const Immagine& immagine(const QString& nome);

    TrovaImmagine m_trovaImmagine;
    QHash<QString, Carattere> m_caratteri;
    QHash<QString, std::shared_ptr<Immagine>> m_immagini;
};

} // namespace bor::pdf
