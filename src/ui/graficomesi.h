// Taxable amount and tax of the twelve months of a year, as bars.
#pragma once

#include <QWidget>

#include <array>

namespace bor {

/// What one month shows.
struct BarreMese {
    QString mese;
    double imponibile = 0;
    double imposta = 0;
};

class GraficoMesi : public QWidget {
public:
    explicit GraficoMesi(QWidget* parent = nullptr);

    /// `descrizione` tells the same in words.
    void mostra(const std::array<BarreMese, 12>& mesi, const QString& descrizione);

    QSize sizeHint() const override { return {600, 200}; }
    QSize minimumSizeHint() const override { return {300, 140}; }

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    std::array<BarreMese, 12> m_mesi;
};

} // namespace bor
