#include "ui/colonneregistro.h"

#include "common/posti.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableView>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace bor {

namespace {

/// Each as it stands where it is shown, in the order of `Colonna`.
constexpr std::array<ColonnaGriglia, colonneElenco> disegnate = {{
    {u"Registr.", 1000, Qt::AlignRight},
    {u"Data", 1000},
    {u"Fattura", 1000},
    {u"Data", 1000},
    {u"Cliente", 7230, Qt::AlignLeft, 1500},
    {u"Importo", 1300, Qt::AlignRight},
    {u"PA", 800, Qt::AlignHCenter},
    {u"PDF", ColonnaGriglia::elastica, Qt::AlignHCenter},
    {u"File PDF", 3000, Qt::AlignLeft, 1500},
    {u"Chiave", 1000},
    {u"Imponibile", 1300, Qt::AlignRight},
    {u"Imposta", 1200, Qt::AlignRight},
    {u"Esente", 1200, Qt::AlignRight},
    {u"Ritenuta", 1200, Qt::AlignRight},
    {u"Prima scad.", 1000},
    {u"Pagamento", 1900},
}};

} // namespace

ColonneRegistro::ColonneRegistro(QObject* parent) : QObject(parent), m_colonne(disegnate) {}

void ColonneRegistro::segui(QTableView* elenco, Cambiate cambiate) {
    m_elenco = elenco;
    m_cambiate = std::move(cambiate);
    elenco->horizontalHeader()->setSectionsMovable(true);
    elenco->horizontalHeader()->viewport()->installEventFilter(this);
}

void ColonneRegistro::mostra(const VistaRegistro& vista) {
    for (ColonnaGriglia& colonna : m_colonne)
        colonna.larghezza = ColonnaGriglia::nascosta;
    for (const ColonnaScelta& scelta : vista.mostrate()) {
        ColonnaGriglia& colonna = elemento(m_colonne, scelta.colonna);
        colonna.larghezza = elemento(disegnate, scelta.colonna).larghezza;
        colonna.caratteri = scelta.caratteri;
    }
    QHeaderView* testata = m_elenco->horizontalHeader();
    int posto = 0;
    for (const ColonnaScelta& scelta : vista.mostrate())
        testata->moveSection(testata->visualIndex(ordinale(scelta.colonna)), posto++);
    disponiColonne(m_elenco, m_colonne, !vista.colonne.empty());
}

int ColonneRegistro::cursore() const {
    const int sua = ordinale(Colonna::DataRegistrazione);
    const QHeaderView* testata = m_elenco->horizontalHeader();
    return testata->isSectionHidden(sua) ? testata->logicalIndex(0) : sua;
}

bool ColonneRegistro::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::MouseButtonPress)
        m_premute = larghezze();
    else if (evento->type() == QEvent::MouseButtonRelease)
        // The heading has to take the release first.
        QTimer::singleShot(0, this, [this, prima = m_premute] { m_cambiate(comeStanno(prima)); });
    return QObject::eventFilter(oggetto, evento);
}

std::vector<int> ColonneRegistro::larghezze() const {
    std::vector<int> punti;
    punti.reserve(colonneElenco);
    for (int i = 0; i < colonneElenco; ++i)
        punti.push_back(m_elenco->horizontalHeader()->sectionSize(i));
    return punti;
}

std::vector<ColonnaScelta> ColonneRegistro::comeStanno(const std::vector<int>& prima) const {
    const QHeaderView* testata = m_elenco->horizontalHeader();
    const std::vector<int> ora = larghezze();
    std::vector<ColonnaScelta> mostrate;
    for (int posto = 0; posto < testata->count(); ++posto) {
        const int colonna = testata->logicalIndex(posto);
        if (testata->isSectionHidden(colonna))
            continue;
        const bool tirata = testata->sectionResizeMode(colonna) == QHeaderView::Interactive &&
                            quantiIn(prima) == colonneElenco &&
                            elemento(ora, colonna) != elemento(prima, colonna);
        mostrate.push_back(
            {enumeratore<Colonna>(colonna),
             tirata ? std::clamp(caratteriIn(m_elenco, elemento(ora, colonna)), 1, massimaLarghezzaColonna)
                    : elemento(m_colonne, colonna).caratteri});
    }
    return mostrate;
}

} // namespace bor
