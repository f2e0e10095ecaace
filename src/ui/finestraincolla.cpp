#include "ui/finestraincolla.h"

#include "common/posti.h"
#include "document/testorighe.h"
#include "ui/legami.h"
#include "ui/vista.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

QString conto(const Incollate& incollate) {
    const auto entrano = std::ranges::count(incollate.righe, true, &RigaIncollata::dentro);
    const auto conRilievi = std::ranges::count_if(
        incollate.righe, [](const RigaIncollata& riga) { return !riga.rilievi.isEmpty(); });
    return u"Righe del testo: %1; con rilievi: %2; entrano nel documento: %3."_s.arg(incollate.righe.size())
        .arg(conRilievi)
        .arg(entrano);
}

/// At once where nothing in the rows is to be told.
void incollaRighe(Legami& legami, AppuntiRighe& appunti, std::span<const ColonnaGriglia> colonne,
                  QWidget* schermo) {
    constexpr qsizetype moltoTesto = 2'000'000; // the rows of any document end long before
    const QString testo = QGuiApplication::clipboard()->text().left(moltoTesto);
    Incollate esito;
    legami.esegui([&] { esito = appunti.prova(testo); });
    const auto metti = [&legami, &appunti, testo] { legami.esegui([&] { appunti.incolla(testo); }); };
    if (!esito.conRilievi())
        return metti();
    auto* finestra = new FinestraIncolla(std::move(esito), colonne, schermo);
    QObject::connect(finestra, &QDialog::accepted, schermo, metti);
    finestra->open();
}

} // namespace

bool tastoRighe(const QKeyEvent& tasto, const QLineEdit& campo, Legami& legami, AppuntiRighe& appunti,
                std::span<const ColonnaGriglia> colonne, QWidget* schermo) {
    const bool maiuscole = (tasto.modifiers() & ~Qt::KeypadModifier) == Qt::ShiftModifier;
    if (maiuscole && (tasto.key() == Qt::Key_Up || tasto.key() == Qt::Key_Down)) {
        legami.esegui([&] { appunti.scegli(tasto.key() == Qt::Key_Up ? -1 : 1); });
        return true;
    }
    if (tasto.matches(QKeySequence::Copy) &&
        (campo.property(proprietaScelta).toBool() || !campo.hasSelectedText())) {
        QGuiApplication::clipboard()->setText(appunti.copia());
        return true;
    }
    if (tasto.matches(QKeySequence::Paste) && testoDiRighe(QGuiApplication::clipboard()->text())) {
        incollaRighe(legami, appunti, colonne, schermo);
        return true;
    }
    return false;
}

QList<TastoSchermo> tastiRighe() {
    return {{u"Maiusc+Su, Maiusc+Giù"_s, u"Sceglie più righe"_s},
            {u"Ctrl+C"_s, u"Copia le righe scelte, o quella in cui si è, anche per un foglio di calcolo"_s},
            {u"Ctrl+V"_s,
             u"Incolla le righe copiate, anche da un foglio di calcolo, sopra quella in cui si è"_s}};
}

FinestraIncolla::FinestraIncolla(Incollate incollate, std::span<const ColonnaGriglia> colonne,
                                 QWidget* parent)
    : QDialog(parent), m_incollate(std::move(incollate)), m_colonne(colonne), m_rilievi(new QLabel) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"incolla"_s);
    setWindowTitle(u"Righe da incollare"_s);
    offriGuida(this, u"righe"_s);
    auto* modello =
        new ModelloGriglia(colonne,
                           {.righe = [this] { return quantiIn(m_incollate.righe); },
                            .testo = [this](int riga, int colonna) { return testo(riga, colonna); },
                            .colore = [](int, int) { return std::nullopt; },
                            .nota = [this](int riga) { return m_incollate.righe[riga].rilievi.join(u'\n'); }},
                           this);
    modello->rinnova();
    auto* elenco = new QTableView;
    elenco->setObjectName(u"righeDaIncollare"_s);
    elenco->setAccessibleName(windowTitle());
    elenco->setModel(modello);
    preparaElenco(elenco, colonne, [this] { return quantiIn(m_incollate.righe); });
    m_rilievi->setObjectName(u"rilieviRiga"_s);
    m_rilievi->setAccessibleName(u"Rilievi della riga"_s);
    m_rilievi->setTextFormat(Qt::PlainText);
    m_rilievi->setWordWrap(true);
    m_rilievi->setMinimumHeight(3 * fontMetrics().lineSpacing());
    m_rilievi->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    connect(elenco->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& cella) { mostraRilievi(cella.row()); });
    auto* bottoni = new QDialogButtonBox;
    auto* inserisci = bottoni->addButton(u"&Inserisci"_s, QDialogButtonBox::AcceptRole);
    inserisci->setObjectName(u"inserisci"_s);
    inserisci->setEnabled(m_incollate.inserite > 0);
    inserisci->setDefault(true);
    bottoni->addButton(u"&Annulla"_s, QDialogButtonBox::RejectRole);
    connect(bottoni, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(bottoni, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(conto(m_incollate)));
    layout->addWidget(elenco, 1);
    layout->addWidget(m_rilievi);
    layout->addWidget(bottoni);
    resize(parent->size().boundedTo(QSize(960, 520)));
    const auto conRilievi = [](const RigaIncollata& riga) { return !riga.rilievi.isEmpty(); };
    const auto prima = std::find_if(m_incollate.righe.cbegin(), m_incollate.righe.cend(), conRilievi);
    elenco->setCurrentIndex(
        modello->index(static_cast<int>(std::distance(m_incollate.righe.cbegin(), prima)), 0));
    elenco->setFocus();
}

QString FinestraIncolla::testo(int riga, int colonna) const {
    const RigaIncollata& r = m_incollate.righe[riga];
    if (colonna == 0)
        return QString::number(r.linea);
    if (colonna + 1 == std::ssize(m_colonne))
        return r.rilievi.join(u"; "_s);
    return r.celle.value(colonna - 1);
}

void FinestraIncolla::mostraRilievi(int riga) {
    m_rilievi->setText(m_incollate.righe.value(riga).rilievi.join(u'\n'));
}

} // namespace bor
