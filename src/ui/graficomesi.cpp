#include "ui/graficomesi.h"

#include "common/numeri.h"
#include "common/posti.h"
#include "ui/tinte.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int tacche = 4; ///< lines between nothing and the highest amount, at the most

struct Colori {
    QColor imponibile;
    QColor imposta;
    QColor linea;
};

Colori coloriPer(Tono tono) {
    if (tono == Tono::Scuro)
        return {{0x5A, 0xA9, 0xE6}, {0xF0, 0xB3, 0x5A}, {0x4A, 0x54, 0x5F}};
    return {{0x1F, 0x6F, 0xB2}, {0xC8, 0x6A, 0x12}, {0xC3, 0xCB, 0xD5}};
}

/// A round step of one, two or five that divides a range into few parts.
double passoTondo(double ampiezza) {
    const double grezzo = std::max(ampiezza, 1.0) / tacche;
    const double decina = std::pow(10, std::floor(std::log10(grezzo)));
    for (const double volte : {1.0, 2.0, 5.0}) {
        if (decina * volte >= grezzo)
            return decina * volte;
    }
    return decina * 10;
}

/// Where the amounts stand on the drawing.
struct Scala {
    double passo = 1;
    int sotto = 0; ///< steps below nothing, 0 or less
    int sopra = 1;
    QRectF posto;

    double y(double importo) const {
        return posto.bottom() - (importo / passo - sotto) / (sopra - sotto) * posto.height();
    }
};

Scala scalaDi(const DodiciMesi& mesi) {
    double minimo = 0;
    double massimo = 0;
    for (const BarreMese& mese : mesi) {
        for (const double importo : {mese.imponibile, mese.imposta}) {
            // What no sum of invoices can be would leave the others without height.
            if (std::fabs(importo) < 1e15) {
                minimo = std::min(minimo, importo);
                massimo = std::max(massimo, importo);
            }
        }
    }
    Scala scala;
    scala.passo = passoTondo(massimo - minimo);
    scala.sotto = static_cast<int>(std::floor(minimo / scala.passo));
    scala.sopra = std::max(static_cast<int>(std::ceil(massimo / scala.passo)), scala.sotto + 1);
    return scala;
}

void disegnaLegenda(QPainter& penna, const Colori& colori, const QColor& testo, QPointF dove) {
    const double lato = penna.fontMetrics().height() * 0.7;
    for (const auto& [nome, colore] :
         {std::pair{u"Imponibile"_s, colori.imponibile}, {u"Imposta"_s, colori.imposta}}) {
        penna.fillRect(QRectF(dove.x(), dove.y() - lato, lato, lato), colore);
        penna.setPen(testo);
        penna.drawText(QPointF(dove.x() + lato * 1.5, dove.y()), nome);
        dove.rx() += lato * 3.5 + penna.fontMetrics().horizontalAdvance(nome);
    }
}

void disegnaTacche(QPainter& penna, const Scala& scala, const QColor& linea, const QColor& testo) {
    for (int n = scala.sotto; n <= scala.sopra; ++n) {
        const double y = scala.y(n * scala.passo);
        penna.setPen(n == 0 ? testo : linea);
        penna.drawLine(QPointF(scala.posto.left(), y), QPointF(scala.posto.right(), y));
        const double alta = penna.fontMetrics().height();
        penna.setPen(testo);
        penna.drawText(QRectF(0, y - alta / 2, scala.posto.left() - alta * 0.4, alta),
                       Qt::AlignRight | Qt::AlignVCenter, testoItaliano(n * scala.passo, 0));
    }
}

/// Where a month stands on the drawing.
struct PostoMese {
    double x;
    double larghezza;
};

void disegnaBarre(QPainter& penna, const Scala& scala, const Colori& colori, const BarreMese& mese,
                  PostoMese posto) {
    const double barra = posto.larghezza * 0.34;
    double da = posto.x + posto.larghezza * 0.14;
    for (const auto& [importo, colore] :
         {std::pair{mese.imponibile, colori.imponibile}, {mese.imposta, colori.imposta}}) {
        if (std::fabs(importo) < 1e15)
            penna.fillRect(
                QRectF(QPointF(da, scala.y(0)), QPointF(da + barra, scala.y(importo))).normalized(), colore);
        da += barra * 1.04;
    }
}

} // namespace

GraficoMesi::GraficoMesi(QWidget* parent) : QWidget(parent) {
    setObjectName(u"grafico"_s);
    setAccessibleName(u"Grafico: imponibile e imposta per mese"_s);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void GraficoMesi::mostra(const DodiciMesi& mesi, const QString& descrizione) {
    m_mesi = mesi;
    setAccessibleDescription(descrizione);
    update();
}

void GraficoMesi::paintEvent(QPaintEvent*) {
    QPainter penna(this);
    disegnaMesi(penna, rect(), m_mesi, palette());
}

void disegnaMesi(QPainter& penna, const QRectF& posto, const DodiciMesi& mesi, const QPalette& tavolozza) {
    penna.save();
    penna.translate(posto.topLeft());
    penna.setRenderHint(QPainter::Antialiasing);
    const Colori colori = coloriPer(tonoDi(tavolozza));
    const QColor testo = tavolozza.color(QPalette::WindowText);
    const QFontMetricsF misure(penna.font(), penna.device());
    const double alta = misure.height();
    Scala scala = scalaDi(mesi);
    const double sinistra =
        alta * 0.75 + std::max(misure.horizontalAdvance(testoItaliano(scala.sopra * scala.passo, 0)),
                               misure.horizontalAdvance(testoItaliano(scala.sotto * scala.passo, 0)));
    scala.posto =
        QRectF(sinistra, alta * 1.8, posto.width() - sinistra - alta / 4, posto.height() - alta * 3.4);
    disegnaTacche(penna, scala, colori.linea, testo);
    disegnaLegenda(penna, colori, testo, QPointF(sinistra, alta));
    const double larga = scala.posto.width() / quantiIn(mesi);
    for (int i = 0; i < quantiIn(mesi); ++i) {
        const double x = scala.posto.left() + larga * i;
        disegnaBarre(penna, scala, colori, elemento(mesi, i), {x, larga});
        penna.setPen(testo);
        penna.drawText(QRectF(x, posto.height() - alta * 1.3, larga, alta), Qt::AlignCenter,
                       elemento(mesi, i).mese);
    }
    penna.restore();
}

} // namespace bor
