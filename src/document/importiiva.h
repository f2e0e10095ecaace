// The VAT rows of the document form: eight of the twelve in view, their captions, and the sums under them.
#pragma once

#include "document/finestrarighe.h"
#include "document/righeiva.h"

#include <QString>

namespace bor {

struct Contesto;
struct Documento;

/// Lines of the screen count from 0.
class ImportiIva {
public:
    static constexpr int linee = 8;

    /// The sums under the rows.
    enum class Totale { Imponibile, Imposta, Esente, Documento };

    ImportiIva(Contesto& contesto, Documento& documento) : m_contesto(contesto), m_documento(documento) {}

    const FinestraRighe& finestra() const { return m_finestra; } ///< `VScroll1`
    void scorri(int prima) { m_finestra.scorri(prima); }

    /// `es` before an exempt amount, `iv` before the others.
    QString etichetta(int linea, VoceIva voce) const;
    /// What an amount is read out by, behind its heading: " 22%", and the row where captions are the same.
    QString nome(int linea, VoceIva voce) const;
    QString testo(int linea, VoceIva voce) const;
    /// The operator typed an amount: instalments and sums follow it.
    void cambia(int linea, VoceIva voce, const QString& testo);

    QString totale(Totale quale) const; ///< with a blank in front

private:
    Contesto& m_contesto;
    Documento& m_documento;
    FinestraRighe m_finestra{linee, righeIva - linee + 1};
};

} // namespace bor
