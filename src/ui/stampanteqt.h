// The real printer: Qt's printing with a millimetre scale. It is looked for when it is first used: what
// prints on a machine takes longer to load than a window to open.
#pragma once

#include "common/stampante.h"

#include <memory>

class QPainter;
class QPrinter;

namespace bor {

class StampanteQt : public Stampante {
public:
    StampanteQt();
    ~StampanteQt() override;

    /// False when the machine has no printer; texts are measured all the same.
    bool inizia(const QString& titolo) override;
    double larghezza(const QString& testo, const Carattere& carattere) override;
    void testo(double x, double y, const QString& testo, const Carattere& carattere, int colore) override;
    void linea(double x1, double y1, double x2, double y2, int colore) override;
    void riquadro(double x1, double y1, double x2, double y2, int colore, bool pieno) override;
    void immagine(double x1, double y1, double x2, double y2, const QString& percorso) override;
    void nuovaPagina() override;
    void termina() override;

private:
    QPrinter& stampante() const;
    /// The pen on the page in progress.
    QPainter& penna();
    double punti(double millimetri) const;

    mutable std::unique_ptr<QPrinter> m_stampante; ///< none before its first use
    std::unique_ptr<QPainter> m_penna;
    bool m_paginaDovuta = false; ///< a page ends only where another one begins, so none comes out blank
};

} // namespace bor
