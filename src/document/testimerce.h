// The texts around the goods lines: heading, totals, items of the VAT list. The goods lines form holds them
// for its screen; they change nothing.
#pragma once

#include <QStringList>

namespace bor {

struct Contesto;
struct Documento;
class RigheMerce;

class TestiMerce {
public:
    /// What stands under the lines.
    enum class Totale { Imponibile, Complessivo, Pezzi, AliquotaRitenuta, Ritenuta };

    TestiMerce(const Contesto& contesto, const Documento& documento, const RigheMerce& righe)
        : m_contesto(contesto), m_documento(documento), m_righe(righe) {}

    QString titolo() const;
    QString numfat() const;             ///< number of the document
    QString link() const;               ///< number of the document's detail-lines file; empty for none
    QString totale(Totale quale) const; ///< the first three have a blank in front
    QStringList vociIva() const;        ///< items of `Combo1`; item k is code k + 1

private:
    const Contesto& m_contesto;
    const Documento& m_documento;
    const RigheMerce& m_righe;
};

} // namespace bor
