#include "ui/finestrarapporto.h"

#include "common/posti.h"
#include "common/tabella.h"
#include "ui/griglia.h"
#include "ui/stampatabella.h"
#include "ui/vista.h"

#include <QBuffer>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

enum class ColonnaRapporto { Documento, Cliente, Esito, Testo };

constexpr std::array<ColonnaGriglia, 4> colonne = {{{u"Documento", 3000},
                                                    {u"Cliente", 2400},
                                                    {u"Esito", 1000},
                                                    {u"Che cosa è stato fatto, o perché no", 5200}}};

} // namespace

FinestraRapporto::FinestraRapporto(RapportoLotto rapporto, Apri apri, QWidget* parent)
    : QDialog(parent), m_rapporto(std::move(rapporto)), m_apri(std::move(apri)),
      m_modello(new ModelloGriglia(colonne,
                                   {[this] { return quantiIn(m_mostrate); },
                                    [this](int riga, int colonna) { return cella(riga, colonna); },
                                    [](int, int) { return std::optional<int>(); }},
                                   this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"finestraRapporto"_s);
    setWindowTitle(m_rapporto.titolo);
    offriGuida(this, u"scelti"_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* conto = new QLabel(u"Esito: "_s + m_rapporto.conto());
    conto->setObjectName(u"conto"_s);
    m_soloRilievi = new QCheckBox(u"Solo i documenti da &guardare"_s);
    m_soloRilievi->setObjectName(u"soloRilievi"_s);
    connect(m_soloRilievi, &QCheckBox::toggled, this, [this] { scegliMostrate(); });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(conto);
    layout->addWidget(m_soloRilievi);
    layout->addWidget(creaElenco(), 1);
    layout->addWidget(m_intero);
    layout->addWidget(creaBottoni());
    resize(900, 460);
    scegliMostrate();
    m_elenco->setFocus();
}

QWidget* FinestraRapporto::creaElenco() {
    m_elenco = new QTableView;
    m_elenco->setObjectName(u"elencoRapporto"_s);
    m_elenco->setAccessibleName(m_rapporto.titolo);
    m_elenco->setModel(m_modello);
    preparaElenco(m_elenco, colonne, [this] { return quantiIn(m_mostrate); });
    m_intero = new QLabel;
    m_intero->setObjectName(u"testoIntero"_s);
    m_intero->setAccessibleName(u"Documento scelto"_s);
    m_intero->setTextFormat(Qt::PlainText);
    m_intero->setWordWrap(true);
    m_intero->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_intero->setMinimumHeight(3 * fontMetrics().lineSpacing());
    m_intero->setAlignment(Qt::AlignTop);
    connect(m_elenco, &QTableView::doubleClicked, this, [this] { apriCorrente(); });
    connect(m_elenco->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& corrente) {
                m_intero->setText(cella(corrente.row(), ordinale(ColonnaRapporto::Testo)));
            });
    return m_elenco;
}

QWidget* FinestraRapporto::creaBottoni() {
    auto* bottoni = new QDialogButtonBox;
    const auto bottone = [&](const QString& testo, const QString& nome, const QString& tasto,
                             const std::function<void()>& azione) {
        QPushButton* nuovo = bottoni->addButton(testo, QDialogButtonBox::ActionRole);
        nuovo->setObjectName(nome);
        nuovo->setToolTip(tasto);
        connect(nuovo, &QPushButton::clicked, this, azione);
        return nuovo;
    };
    const auto conTasto = [&](const QString& testo, const QString& nome, const QString& tasto,
                              const std::function<void()>& azione) {
        bottone(testo, nome, tasto, azione);
        auto* scorciatoia = new QShortcut(QKeySequence(tasto), this);
        connect(scorciatoia, &QShortcut::activated, this, azione);
    };
    bottone(u"&Apri il documento"_s, u"apri"_s, u"Invio"_s, [this] { apriCorrente(); })->setDefault(true);
    conTasto(u"&Copia"_s, u"copia"_s, u"Ctrl+C"_s, [this] { copia(); });
    conTasto(u"&Stampa"_s, u"stampa"_s, u"Ctrl+P"_s, [this] { stampaTabella(tabella(), this); });
    conTasto(u"&Esporta"_s, u"esporta"_s, u"Ctrl+T"_s,
             [this] { esportaTabella(tabella(), u"rapporto"_s, this); });
    bottone(u"C&hiudi"_s, u"chiudi"_s, u"Esc"_s, [this] { reject(); });
    return bottoni;
}

void FinestraRapporto::scegliMostrate() {
    m_mostrate.clear();
    for (std::size_t i = 0; i < m_rapporto.righe.size(); ++i)
        if (!m_soloRilievi->isChecked() || m_rapporto.righe[i].esito != EsitoRiga::Fatta)
            m_mostrate.push_back(i);
    m_modello->rinnova();
    m_intero->clear();
    if (!m_mostrate.empty())
        m_elenco->setCurrentIndex(m_modello->index(0, 0));
}

QString FinestraRapporto::cella(int riga, int colonna) const {
    if (riga < 0 || riga >= quantiIn(m_mostrate))
        return {};
    const RigaLotto& r = m_rapporto.righe[elemento(m_mostrate, riga)];
    switch (enumeratore<ColonnaRapporto>(colonna)) {
    case ColonnaRapporto::Documento:
        return r.nome;
    case ColonnaRapporto::Cliente:
        return r.cliente;
    case ColonnaRapporto::Esito:
        return nomeEsito(r.esito);
    case ColonnaRapporto::Testo:
        return r.testo;
    }
    return {};
}

void FinestraRapporto::apriCorrente() {
    const int riga = m_elenco->currentIndex().row();
    if (riga >= 0 && riga < quantiIn(m_mostrate))
        m_apri(m_rapporto.righe[elemento(m_mostrate, riga)].documento);
}

/// The rows shown, with tabulators: a spreadsheet takes them as columns.
void FinestraRapporto::copia() const {
    QString testo = m_rapporto.titolo + u": "_s + m_rapporto.conto() + u'\n';
    for (int riga = 0; riga < quantiIn(m_mostrate); ++riga) {
        QStringList celle;
        for (int colonna = 0; colonna < quantiIn(colonne); ++colonna)
            celle.append(cella(riga, colonna));
        testo += celle.join(u'\t') + u'\n';
    }
    QGuiApplication::clipboard()->setText(testo);
}

Tabella FinestraRapporto::tabella() const {
    Tabella tabella{.titolo = m_rapporto.titolo, .filtro = m_rapporto.conto()};
    constexpr std::array caratteri{30, 26, 10, 60};
    for (int colonna = 0; colonna < quantiIn(colonne); ++colonna)
        tabella.colonne.push_back({.didascalia = elemento(colonne, colonna).intestazione.toString(),
                                   .caratteri = elemento(caratteri, colonna)});
    tabella.righe = quantiIn(m_mostrate);
    tabella.riga = [this](int riga, CelleRiga& celle) {
        for (int colonna = 0; colonna < quantiIn(colonne); ++colonna)
            celle.testo(cella(riga, colonna));
    };
    return tabella;
}

} // namespace bor
