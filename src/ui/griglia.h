// The grids that list records: their columns, and the rows of a form as they show them, of which nothing is
// copied.
#pragma once

#include <QAbstractTableModel>
#include <QColor>

#include <functional>
#include <optional>
#include <span>

class QTableView;

namespace bor {

struct ColonnaGriglia {
    static constexpr int elastica = -1; ///< takes the room that the other columns leave
    static constexpr int nascosta = 0;

    QStringView intestazione;
    int larghezza = nascosta; ///< 1000 for a date and some room; from 2000 on, its share among the texts
    Qt::Alignment allineamento = Qt::AlignLeft;
    int minima = 0;    ///< what an elastic column has at least, and a text where the grid scrolls
    int caratteri = 0; ///< chosen by the operator: exactly so wide
};

/// Where the cells come from. Rows and columns count from 0.
struct CelleGriglia {
    std::function<int()> righe; ///< blank filler rows included
    std::function<QString(int riga, int colonna)> testo;
    /// Background as the archive has it, 0x00BBGGRR; nothing for the grid's own.
    std::function<std::optional<int>(int riga, int colonna)> colore;
    /// What is to be known of a row, which then bears a mark at the column `segnata`; without it no row does.
    std::function<QString(int riga)> nota = {};
    int segnata = 0;
    /// Rows that may be chosen, the first ones; without it all may.
    std::function<int()> scegliibili = {};
    /// Rows in bold; without it there are none.
    std::function<bool(int riga)> grassetto = {};
};

class ModelloGriglia : public QAbstractTableModel {
public:
    /// `colonne` outlives the model.
    ModelloGriglia(std::span<const ColonnaGriglia> colonne, CelleGriglia celle, QObject* parent = nullptr);

    /// The list was filled or sorted.
    void rinnova();

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;
    QVariant data(const QModelIndex& indice, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation orientamento, int ruolo) const override;

private:
    QString nota(int riga) const;
    std::optional<QColor> fondoDi(const QModelIndex& indice) const;

    std::span<const ColonnaGriglia> m_colonne;
    CelleGriglia m_celle;
    int m_righe = 0;
};

/// Gives the columns of a grid their widths anew, after what is in `colonne` has changed. Where it is
/// `scorrevole`, no column gives way to the others, and the grid scrolls sideways when not all have room.
void disponiColonne(QTableView* elenco, std::span<const ColonnaGriglia> colonne, bool scorrevole);

/// A width in pixels in characters, rounded.
int caratteriIn(const QTableView* elenco, int punti);

/// Makes a grid that has its model a list of whole rows to choose from, with its columns, which outlive it.
/// Home and End go to the first row and to the last one of `righe`, which leaves the blank filler rows out.
void preparaElenco(QTableView* elenco, std::span<const ColonnaGriglia> colonne,
                   const std::function<int()>& righe);

} // namespace bor
