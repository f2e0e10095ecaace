// The page template: lines, boxes, texts and pictures that lie under the items of every page.
#pragma once

#include <QString>

#include <vector>

namespace bor {

class Archivio;
class Foglio;

struct OggettoModello {
    enum class Tipo { Nessuno = 0, Linea = 1, Riquadro = 2, Testo = 3, Immagine = 4 };

    Tipo tipo = Tipo::Nessuno;
    QString testo; ///< the text, or the picture's file
    QString carattere;
    double x1 = 0; ///< millimetres
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    int colore = 0;
    double misura = 0; ///< box: 1 for a filled one; text: font size in points
    bool grassetto = false;
    bool corsivo = false;
};

using Modello = std::vector<OggettoModello>;

/// Which template file: the company has one for each kind of page.
enum class CodiceModello {
    Fattura = 1,
    Riepilogo = 2,
    Parcella = 3,
    ParcellaB = 5,
    ParcellaO = 6,
    ParcellaV = 7,
    ParcellaG = 8
};

/// The objects of a template file, at most 500; none when it cannot be read.
Modello caricamodello(const Archivio& archivio, CodiceModello codice);

/// Draws pictures first, then filled boxes, then the rest. Objects are kept within an A4 page from then on:
/// the pictures of the first page alone stand where the file has them. In a credit note the text
/// "Fattura numero" becomes that of a credit note.
void disegnamodello(Modello& modello, bool notaCredito, Foglio& foglio);

} // namespace bor
