#include "ui/barraintestazioni.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QShortcut>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace bor {

BarraIntestazioni::BarraIntestazioni(QTableView* griglia, const std::vector<Comando>& comandi,
                                     const std::function<void(int)>& ordina)
    : m_griglia(griglia) {
    constexpr double piccolo = 0.9;
    for (const Comando& comando : comandi) {
        auto* bottone = new QToolButton(this);
        bottone->setObjectName(u"srx(%1)"_s.arg(comando.colonna));
        bottone->setText(comando.didascalia);
        const QString intestazione =
            griglia->model()->headerData(comando.colonna, Qt::Horizontal, Qt::DisplayRole).toString();
        bottone->setAccessibleName(comando.didascalia + u": "_s + intestazione);
        auto* tasto = new QShortcut(comando.tasto, this, bottone, &QToolButton::click);
        tasto->setAutoRepeat(false);
        tasto->setWhatsThis(u"Ordina l'elenco: "_s + intestazione);
        bottone->setToolTip(u"Ordina l'elenco (%1)"_s.arg(comando.tasto.toString(QKeySequence::NativeText)));
        bottone->setFocusPolicy(Qt::NoFocus);
        bottone->setAutoRaise(true);
        bottone->setProperty("intestazione", true);
        QFont carattere = font();
        carattere.setPointSizeF(carattere.pointSizeF() * piccolo);
        bottone->setFont(carattere);
        connect(bottone, &QToolButton::clicked, this,
                [ordina, colonna = comando.colonna] { ordina(colonna); });
        m_bottoni.emplace_back(comando.colonna, bottone);
    }
    setFixedHeight(fontMetrics().height() + 4);
    connect(griglia->horizontalHeader(), &QHeaderView::sectionResized, this, [this] { disponi(); });
    connect(griglia->horizontalHeader(), &QHeaderView::geometriesChanged, this, [this] { disponi(); });
    connect(griglia->horizontalHeader(), &QHeaderView::sectionMoved, this, [this] { disponi(); });
    connect(griglia->horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { disponi(); });
}

void BarraIntestazioni::resizeEvent(QResizeEvent*) {
    disponi();
}

void BarraIntestazioni::disponi() {
    const QHeaderView* testata = m_griglia->horizontalHeader();
    for (const auto& [colonna, bottone] : m_bottoni) {
        bottone->setVisible(!testata->isSectionHidden(colonna));
        bottone->setGeometry(testata->sectionViewportPosition(colonna) + m_griglia->frameWidth(), 0,
                             testata->sectionSize(colonna), height());
    }
}

} // namespace bor
