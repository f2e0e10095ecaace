// Taxable amount and tax of the twelve months of a year, as bars.
#pragma once

#include <QPalette>
#include <QWidget>

#include <array>

namespace bor {

/// What one month shows.
struct BarreMese {
    QString mese;
    double imponibile = 0;
    double imposta = 0;
};

using DodiciMesi = std::array<BarreMese, 12>;

/// Draws them into `posto` with the pen's font, on a ground of this palette.
void disegnaMesi(QPainter& penna, const QRectF& posto, const DodiciMesi& mesi, const QPalette& tavolozza);

class GraficoMesi : public QWidget {
public:
    explicit GraficoMesi(QWidget* parent = nullptr);

    /// `descrizione` tells the same in words.
    void mostra(const DodiciMesi& mesi, const QString& descrizione);

    const DodiciMesi& mesi() const { return m_mesi; }

    QSize sizeHint() const override { return {600, 200}; }
    QSize minimumSizeHint() const override { return {300, 140}; }

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    DodiciMesi m_mesi;
};

} // namespace bor
