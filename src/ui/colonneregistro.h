// The columns of the register on screen: which are shown, in which order and how wide, and what the operator
// changes of it with the mouse on their headings.
#pragma once

#include "register/vistaregistro.h"
#include "ui/griglia.h"

#include <QObject>

#include <array>

namespace bor {

class ColonneRegistro : public QObject {
public:
    using Cambiate = std::function<void(const std::vector<ColonnaScelta>& mostrate)>;

    explicit ColonneRegistro(QObject* parent);

    /// All that the register knows, by their number.
    std::span<const ColonnaGriglia> tutte() const { return m_colonne; }
    /// Begins to look after a grid that shows them. `cambiate` hears of each column moved or widened by hand.
    void segui(QTableView* elenco, Cambiate cambiate);
    void mostra(const VistaRegistro& vista);
    /// The column where the cursor stands after a fill: that of the registration date, or the first shown.
    int cursore() const;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    std::vector<int> larghezze() const;
    /// As they stand; a width counts where it is not the one in `prima`.
    std::vector<ColonnaScelta> comeStanno(const std::vector<int>& prima) const;

    std::array<ColonnaGriglia, colonneElenco> m_colonne;
    QTableView* m_elenco = nullptr;
    Cambiate m_cambiate;
    std::vector<int> m_premute; ///< widths when the mouse button went down
};

} // namespace bor
