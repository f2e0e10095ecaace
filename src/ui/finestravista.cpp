#include "ui/finestravista.h"

#include "common/date.h"
#include "common/posti.h"
#include "ui/campi.h"
#include "ui/campodata.h"
#include "ui/vista.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int ruoloColonna = Qt::UserRole;
constexpr int ruoloLarghezza = Qt::UserRole + 1;

QComboBox* lista(const QString& nome, const QString& didascalia, const QStringList& voci) {
    auto* lista = new QComboBox;
    lista->setObjectName(nome);
    lista->setAccessibleName(didascalia);
    lista->addItems(voci);
    return lista;
}

} // namespace

FinestraVista::FinestraVista(const VistaRegistro& vista, const Bordata& bordata, QDate oggi, QWidget* parent)
    : QDialog(parent), m_vista(vista) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"finestraVista"_s);
    setWindowTitle(u"Vista del registro"_s);
    offriGuida(this, u"registro"_s);
    auto* layout = new QVBoxLayout(this);
    auto* parti = new QHBoxLayout;
    parti->addWidget(creaDocumenti(bordata), 1);
    parti->addWidget(creaColonne(), 1);
    layout->addLayout(parti, 1);
    m_avviso = new QLabel;
    m_avviso->setObjectName(u"avvisoVista"_s);
    m_avviso->setAccessibleName(u"Da correggere"_s);
    m_avviso->setProperty("avviso", true);
    layout->addWidget(m_avviso);
    auto* bottoni = new QDialogButtonBox;
    const auto bottone = [&](const QString& nome, const QString& testo, QDialogButtonBox::ButtonRole ruolo) {
        QPushButton* nuovo = bottoni->addButton(testo, ruolo);
        nuovo->setObjectName(nome);
        return nuovo;
    };
    QPushButton* prima = bottone(u"comePrima"_s, u"Come &prima"_s, QDialogButtonBox::ResetRole);
    prima->setToolTip(u"Tutti i documenti, con le colonne di sempre"_s);
    connect(prima, &QPushButton::clicked, this, [this] { comePrima(); });
    QPushButton* mostra = bottone(u"mostra"_s, u"&Mostra"_s, QDialogButtonBox::AcceptRole);
    bottone(u"annulla"_s, u"A&nnulla"_s, QDialogButtonBox::RejectRole);
    connect(bottoni, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(bottoni, &QDialogButtonBox::rejected, this, [this] { reject(); });
    layout->addWidget(bottoni);
    mostra->setDefault(true);
    mostraVista(vista, oggi);
    resize(720, 440);
}

QGroupBox* FinestraVista::creaDocumenti(const Bordata& bordata) {
    auto* gruppo = new QGroupBox(u"Documenti"_s);
    auto* colonna = new QVBoxLayout(gruppo);
    m_genere = lista(u"genere"_s, u"Genere"_s, generiDocumento());
    m_data = lista(u"dataPeriodo"_s, u"Data"_s, {u"Data del documento"_s, u"Data di registrazione"_s});
    m_eliminati = new QCheckBox(u"Mostra anche gli &eliminati"_s);
    m_eliminati->setObjectName(u"eliminati"_s);
    auto* griglia = new QGridLayout;
    riga(griglia, 0, u"&Genere"_s, m_genere);
    griglia->addWidget(m_eliminati, 1, 1);
    griglia->setRowMinimumHeight(2, 8);
    creaPeriodo(griglia, 3, bordata);
    colonna->addLayout(griglia);
    colonna->addStretch();
    return gruppo;
}

void FinestraVista::creaPeriodo(QGridLayout* griglia, int prima, const Bordata& bordata) {
    m_periodo = lista(u"periodo"_s, u"Periodo"_s,
                      {u"Tutti i giorni"_s, u"Un mese"_s, u"Un trimestre"_s, u"Un anno"_s, u"Dal - al"_s});
    m_mese = lista(u"mese"_s, u"Mese"_s, nomiMesi());
    m_trimestre = lista(u"trimestre"_s, u"Trimestre"_s,
                        {u"1º trimestre"_s, u"2º trimestre"_s, u"3º trimestre"_s, u"4º trimestre"_s});
    m_anno = new QSpinBox;
    m_anno->setObjectName(u"anno"_s);
    m_anno->setAccessibleName(u"Anno"_s);
    m_anno->setRange(1980, 2099);
    m_quale = new QStackedWidget;
    m_quale->addWidget(m_mese);
    m_quale->addWidget(m_trimestre);
    auto* dal = new CampoData(u"dal"_s, u"calendarioDal"_s, u"Dal"_s, bordata);
    auto* al = new CampoData(u"al"_s, u"calendarioAl"_s, u"Al"_s, bordata);
    m_dal = dal->campo();
    m_al = al->campo();
    riga(griglia, prima, u"Pe&riodo"_s, m_periodo);
    riga(griglia, prima + 1, u"&Quale"_s, m_quale);
    riga(griglia, prima + 2, u"Ann&o"_s, m_anno);
    riga(griglia, prima + 3, u"&Dal"_s, dal);
    riga(griglia, prima + 4, u"&Al"_s, al);
    riga(griglia, prima + 5, u"&Secondo la"_s, m_data);
    const auto mostra = [this, griglia, prima](int numero) {
        const auto genere = enumeratore<Periodo::Genere>(numero);
        const bool parte = genere == Periodo::Genere::Mese || genere == Periodo::Genere::Trimestre;
        const bool dalAl = genere == Periodo::Genere::DalAl;
        m_quale->setCurrentIndex(genere == Periodo::Genere::Trimestre ? 1 : 0);
        const auto abilita = [griglia, prima](int riga, bool si) {
            for (const int colonna : {0, 1})
                griglia->itemAtPosition(prima + riga, colonna)->widget()->setEnabled(si);
        };
        abilita(1, parte);
        abilita(2, parte || genere == Periodo::Genere::Anno);
        abilita(3, dalAl);
        abilita(4, dalAl);
        abilita(5, genere != Periodo::Genere::Tutto);
    };
    connect(m_periodo, &QComboBox::currentIndexChanged, this, mostra);
    mostra(0);
}

QGroupBox* FinestraVista::creaColonne() {
    auto* gruppo = new QGroupBox(u"Colonne"_s);
    auto* colonna = new QVBoxLayout(gruppo);
    m_colonne = new QListWidget;
    m_colonne->setObjectName(u"colonne"_s);
    m_colonne->setAccessibleName(u"Colonne, da sinistra a destra"_s);
    m_colonne->setToolTip(u"La barra spaziatrice mette e toglie una colonna"_s);
    auto* etichetta = didascalia(u"&Colonne, da sinistra a destra"_s, m_colonne);
    colonna->addWidget(etichetta);
    colonna->addWidget(m_colonne, 1);
    colonna->addWidget(creaMossa());
    return gruppo;
}

/// What can be done to the column of the list that has the cursor.
QWidget* FinestraVista::creaMossa() {
    auto* riquadro = new QWidget;
    auto* linea = new QHBoxLayout(riquadro);
    linea->setContentsMargins(0, 0, 0, 0);
    const auto freccia = [&](const QString& nome, const QString& testo, Qt::Key tasto, int verso) {
        auto* bottone = new QPushButton(testo);
        bottone->setObjectName(nome);
        bottone->setAutoDefault(false);
        const QKeySequence tasti(QKeyCombination(Qt::ControlModifier, tasto));
        bottone->setToolTip(u"Sposta la colonna (%1)"_s.arg(tasti.toString(QKeySequence::NativeText)));
        connect(bottone, &QPushButton::clicked, this, [this, verso] { sposta(verso); });
        auto* scorciatoia = new QShortcut(tasti, m_colonne);
        scorciatoia->setContext(Qt::WidgetShortcut);
        connect(scorciatoia, &QShortcut::activated, this, [this, verso] { sposta(verso); });
        linea->addWidget(bottone);
    };
    freccia(u"su"_s, u"S&u"_s, Qt::Key_Up, -1);
    freccia(u"giu"_s, u"G&iù"_s, Qt::Key_Down, 1);
    linea->addStretch();
    m_larghezza = new QSpinBox;
    m_larghezza->setObjectName(u"larghezza"_s);
    m_larghezza->setAccessibleName(u"Larghezza in caratteri"_s);
    m_larghezza->setRange(0, massimaLarghezzaColonna);
    m_larghezza->setSpecialValueText(u"automatica"_s);
    m_larghezza->setSuffix(u" caratteri"_s);
    linea->addWidget(didascalia(u"&Larghezza"_s, m_larghezza));
    linea->addWidget(m_larghezza);
    connect(m_larghezza, &QSpinBox::valueChanged, this, [this](int caratteri) {
        if (QListWidgetItem* voce = m_colonne->currentItem())
            voce->setData(ruoloLarghezza, caratteri);
    });
    connect(m_colonne, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* voce) {
        const QSignalBlocker zitta(m_larghezza);
        m_larghezza->setValue(voce ? voce->data(ruoloLarghezza).toInt() : 0);
    });
    return riquadro;
}

void FinestraVista::mostraVista(const VistaRegistro& vista, QDate oggi) {
    const DocumentiScelti& documenti = vista.documenti;
    const Periodo& periodo = documenti.periodo;
    m_genere->setCurrentIndex(ordinale(documenti.genere));
    m_eliminati->setChecked(documenti.eliminati);
    m_data->setCurrentIndex(ordinale(documenti.data));
    m_periodo->setCurrentIndex(ordinale(periodo.genere));
    const bool mese = periodo.genere == Periodo::Genere::Mese;
    const bool trimestre = periodo.genere == Periodo::Genere::Trimestre;
    m_mese->setCurrentIndex(mese ? std::clamp(periodo.quale, 1, 12) - 1 : oggi.month() - 1);
    m_trimestre->setCurrentIndex(trimestre ? std::clamp(periodo.quale, 1, 4) - 1 : (oggi.month() - 1) / 3);
    m_anno->setValue(periodo.anno > 0 ? periodo.anno : oggi.year());
    const auto scritta = [](QDate giorno) { return giorno.isValid() ? testoData(giorno) : QString(); };
    m_dal->setText(scritta(periodo.dalAl.dal));
    m_al->setText(scritta(periodo.dalAl.al));
    riempiColonne(vista.mostrate());
}

/// Those that are shown first, in their order, then the others.
void FinestraVista::riempiColonne(const std::vector<ColonnaScelta>& mostrate) {
    m_colonne->clear();
    const auto aggiungi = [this](ColonnaScelta scelta, bool mostrata) {
        auto* voce = new QListWidgetItem(datiColonna(scelta.colonna).nome.toString(), m_colonne);
        voce->setFlags(voce->flags() | Qt::ItemIsUserCheckable);
        voce->setCheckState(mostrata ? Qt::Checked : Qt::Unchecked);
        voce->setData(ruoloColonna, ordinale(scelta.colonna));
        voce->setData(ruoloLarghezza, scelta.caratteri);
    };
    for (const ColonnaScelta& scelta : mostrate)
        aggiungi(scelta, true);
    for (int i = 0; i < colonneElenco; ++i) {
        const auto colonna = enumeratore<Colonna>(i);
        if (std::ranges::find(mostrate, colonna, &ColonnaScelta::colonna) == mostrate.end())
            aggiungi({colonna, 0}, false);
    }
    m_colonne->setCurrentRow(0);
}

void FinestraVista::sposta(int verso) {
    const int da = m_colonne->currentRow();
    const int a = da + verso;
    if (da < 0 || a < 0 || a >= m_colonne->count())
        return;
    m_colonne->insertItem(a, m_colonne->takeItem(da));
    m_colonne->setCurrentRow(a);
}

void FinestraVista::comePrima() {
    m_vista = {};
    QDialog::accept();
}

void FinestraVista::accept() {
    for (QLineEdit* campo : {m_dal, m_al})
        campo->setText(completaData(campo->text()));
    QWidget* dove = nullptr;
    m_avviso->setText(difetto(dove));
    if (dove)
        return dove->setFocus();
    m_vista.documenti = documenti();
    m_vista.colonne = colonne();
    if (m_vista.colonne == VistaRegistro().mostrate())
        m_vista.colonne.clear();
    QDialog::accept();
}

QString FinestraVista::difetto(QWidget*& dove) const {
    if (enumeratore<Periodo::Genere>(m_periodo->currentIndex()) == Periodo::Genere::DalAl) {
        for (QLineEdit* campo : {m_dal, m_al}) {
            if (!campo->text().trimmed().isEmpty() && !dataValida(campo->text())) {
                dove = campo;
                return u"«%1» non è una data"_s.arg(campo->text());
            }
        }
        const Giorni giorni = documenti().periodo.dalAl;
        if (giorni.dal.isValid() && giorni.al.isValid() && giorni.dal > giorni.al) {
            dove = m_al;
            return u"Il periodo finisce prima di cominciare"_s;
        }
        if (giorni.tutti()) {
            dove = m_dal;
            return u"Manca una data"_s;
        }
    }
    if (colonne().empty()) {
        dove = m_colonne;
        return u"Serve almeno una colonna"_s;
    }
    return {};
}

DocumentiScelti FinestraVista::documenti() const {
    DocumentiScelti scelti;
    scelti.genere = enumeratore<GenereDocumento>(m_genere->currentIndex());
    scelti.eliminati = m_eliminati->isChecked();
    Periodo& periodo = scelti.periodo;
    periodo.genere = enumeratore<Periodo::Genere>(m_periodo->currentIndex());
    if (periodo.genere == Periodo::Genere::Tutto)
        return scelti;
    scelti.data = enumeratore<DataPeriodo>(m_data->currentIndex());
    if (periodo.genere == Periodo::Genere::DalAl) {
        periodo.dalAl = {dataValida(m_dal->text()).value_or(QDate()),
                         dataValida(m_al->text()).value_or(QDate())};
        return scelti;
    }
    periodo.anno = m_anno->value();
    if (periodo.genere == Periodo::Genere::Mese)
        periodo.quale = m_mese->currentIndex() + 1;
    else if (periodo.genere == Periodo::Genere::Trimestre)
        periodo.quale = m_trimestre->currentIndex() + 1;
    return scelti;
}

std::vector<ColonnaScelta> FinestraVista::colonne() const {
    std::vector<ColonnaScelta> scelte;
    for (int i = 0; i < m_colonne->count(); ++i) {
        const QListWidgetItem* voce = m_colonne->item(i);
        if (voce->checkState() == Qt::Checked)
            scelte.push_back(
                {enumeratore<Colonna>(voce->data(ruoloColonna).toInt()), voce->data(ruoloLarghezza).toInt()});
    }
    return scelte;
}

} // namespace bor
