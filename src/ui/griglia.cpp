#include "ui/griglia.h"

#include <QColor>
#include <QEvent>
#include <QHeaderView>
#include <QIcon>
#include <QShortcut>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace bor {

namespace {

/// Colours of the archive are 0x00BBGGRR.
QColor coloreQt(int bgr) {
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

void vaiARiga(QTableView* elenco, int riga) {
    elenco->setCurrentIndex(elenco->model()->index(riga, std::max(elenco->currentIndex().column(), 0)));
}

/// Where a grid is too narrow for all of its columns, the widest one gives way, so that none is out of sight.
class ColonnaCedevole : public QObject {
public:
    ColonnaCedevole(QTableView* elenco, int colonna, int larghezza)
        : QObject(elenco), m_elenco(elenco), m_colonna(colonna), m_larghezza(larghezza) {
        elenco->viewport()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() == QEvent::Resize)
            adatta();
        return QObject::eventFilter(oggetto, evento);
    }

private:
    void adatta() {
        QHeaderView* testata = m_elenco->horizontalHeader();
        int altre = 0;
        for (int i = 0; i < testata->count(); ++i) {
            if (i == m_colonna || testata->isSectionHidden(i))
                continue;
            altre += testata->sectionResizeMode(i) == QHeaderView::Stretch ? testata->sectionSizeHint(i)
                                                                           : testata->sectionSize(i);
        }
        const int minima = testata->sectionSizeHint(m_colonna);
        testata->resizeSection(
            m_colonna, std::max(minima, std::min(m_larghezza, m_elenco->viewport()->width() - altre)));
    }

    QTableView* m_elenco;
    int m_colonna;
    int m_larghezza;
};

} // namespace

ModelloGriglia::ModelloGriglia(std::span<const ColonnaGriglia> colonne, CelleGriglia celle, QObject* parent)
    : QAbstractTableModel(parent), m_colonne(colonne), m_celle(std::move(celle)) {}

void ModelloGriglia::rinnova() {
    beginResetModel();
    m_righe = m_celle.righe();
    endResetModel();
}

int ModelloGriglia::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : m_righe;
}

int ModelloGriglia::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(m_colonne.size());
}

QVariant ModelloGriglia::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid())
        return {};
    switch (ruolo) {
    case Qt::DisplayRole:
        return m_celle.testo(indice.row(), indice.column());
    case Qt::TextAlignmentRole:
        return headerData(indice.column(), Qt::Horizontal, ruolo);
    case Qt::BackgroundRole:
        if (const auto colore = m_celle.colore(indice.row(), indice.column()))
            return coloreQt(*colore);
        return {};
    case Qt::DecorationRole: {
        static const QIcon segno(QStringLiteral(":/icone/nota.svg"));
        return indice.column() == m_celle.segnata && !nota(indice.row()).isEmpty() ? QVariant(segno)
                                                                                   : QVariant();
    }
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return nota(indice.row());
    default:
        return {};
    }
}

QString ModelloGriglia::nota(int riga) const {
    return m_celle.nota ? m_celle.nota(riga) : QString();
}

QVariant ModelloGriglia::headerData(int sezione, Qt::Orientation orientamento, int ruolo) const {
    if (orientamento != Qt::Horizontal || sezione < 0 || sezione >= columnCount())
        return {};
    const ColonnaGriglia& colonna = m_colonne[static_cast<std::size_t>(sezione)];
    if (ruolo == Qt::DisplayRole)
        return colonna.intestazione.toString();
    if (ruolo == Qt::TextAlignmentRole)
        return QVariant(colonna.allineamento | Qt::AlignVCenter);
    return {};
}

void preparaElenco(QTableView* elenco, std::span<const ColonnaGriglia> colonne,
                   const std::function<int()>& righe) {
    const auto tasto = [elenco](Qt::Key quale, const std::function<void()>& azione) {
        auto* scorciatoia = new QShortcut(QKeySequence(quale), elenco);
        scorciatoia->setContext(Qt::WidgetShortcut);
        QObject::connect(scorciatoia, &QShortcut::activated, elenco, azione);
    };
    tasto(Qt::Key_Home, [elenco] { vaiARiga(elenco, 0); });
    tasto(Qt::Key_End, [elenco, righe] { vaiARiga(elenco, std::max(righe() - 1, 0)); });
    elenco->setSelectionMode(QAbstractItemView::SingleSelection);
    elenco->setSelectionBehavior(QAbstractItemView::SelectRows);
    elenco->setEditTriggers(QAbstractItemView::NoEditTriggers);
    elenco->setTabKeyNavigation(false);
    elenco->setWordWrap(false);
    elenco->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    elenco->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    elenco->verticalHeader()->hide();
    elenco->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    elenco->verticalHeader()->setDefaultSectionSize(elenco->fontMetrics().height() + 5);
    QHeaderView* testata = elenco->horizontalHeader();
    testata->setHighlightSections(false);
    constexpr double ingrandimento = 1.2;
    const auto punti = [elenco](int larghezza) {
        return static_cast<int>(larghezza * ingrandimento * elenco->logicalDpiX() / 1440);
    };
    for (int i = 0; i < std::ssize(colonne); ++i) {
        const int larghezza = colonne[static_cast<std::size_t>(i)].larghezza;
        if (larghezza == ColonnaGriglia::nascosta)
            elenco->hideColumn(i);
        else if (larghezza == ColonnaGriglia::elastica)
            testata->setSectionResizeMode(i, QHeaderView::Stretch);
        else
            testata->resizeSection(i, punti(larghezza));
    }
    const auto larga = std::ranges::max_element(colonne, {}, &ColonnaGriglia::larghezza);
    new ColonnaCedevole(elenco, static_cast<int>(larga - colonne.begin()), punti(larga->larghezza));
}

} // namespace bor
