#include "ui/finestralotto.h"

#include "ui/vista.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bor {

namespace {

constexpr int perVolta = 20; ///< milliseconds of work before the window has its turn
constexpr int attesa = 1;    ///< milliseconds until an answer is looked for again
constexpr int larghezza = 560;

QLabel* daLeggere(const QString& nome) {
    auto* etichetta = new QLabel;
    etichetta->setObjectName(nome);
    etichetta->setTextFormat(Qt::PlainText);
    etichetta->setWordWrap(true);
    return etichetta;
}

} // namespace

FinestraLotto::FinestraLotto(std::unique_ptr<Lotto> lotto, Finito finito, QWidget* parent)
    : QDialog(parent), m_lotto(std::move(lotto)), m_finito(std::move(finito)), m_pagine(new QStackedWidget) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"finestraLotto"_s);
    setWindowTitle(m_lotto->titolo());
    offriGuida(this, u"scelti"_s);
    m_pagine->addWidget(creaDomanda());
    m_pagine->addWidget(creaAvanzamento());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_pagine);
    setMinimumWidth(larghezza);
    m_passo.setSingleShot(true);
    connect(&m_passo, &QTimer::timeout, this, [this] { lavora(); });
}

QWidget* FinestraLotto::creaDomanda() {
    auto* pagina = new QWidget;
    auto* layout = new QVBoxLayout(pagina);
    layout->setContentsMargins({});
    QLabel* domanda = daLeggere(u"domanda"_s);
    domanda->setText(m_lotto->domanda());
    layout->addWidget(domanda);
    for (OpzioneLotto& opzione : m_lotto->opzioni()) {
        auto* casella = new QCheckBox(opzione.testo);
        casella->setObjectName(opzione.nome);
        casella->setChecked(opzione.scelta);
        connect(casella, &QCheckBox::toggled, this, [&opzione](bool scelta) { opzione.scelta = scelta; });
        layout->addWidget(casella);
    }
    layout->addStretch();
    auto* bottoni = new QDialogButtonBox;
    QPushButton* procedi = bottoni->addButton(u"&Procedi"_s, QDialogButtonBox::AcceptRole);
    procedi->setObjectName(u"procedi"_s);
    procedi->setDefault(true);
    QPushButton* annulla = bottoni->addButton(u"&Annulla"_s, QDialogButtonBox::RejectRole);
    annulla->setObjectName(u"annulla"_s);
    connect(procedi, &QPushButton::clicked, this, [this] { this->procedi(); });
    connect(annulla, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(bottoni);
    return pagina;
}

QWidget* FinestraLotto::creaAvanzamento() {
    auto* pagina = new QWidget;
    auto* layout = new QVBoxLayout(pagina);
    layout->setContentsMargins({});
    m_inMano = daLeggere(u"inMano"_s);
    m_barra = new QProgressBar;
    m_barra->setObjectName(u"avanzamento"_s);
    m_barra->setAccessibleName(m_lotto->titolo());
    m_barra->setRange(0, std::max(m_lotto->quanti(), 1));
    m_barra->setFormat(u"%v di %m"_s);
    auto* bottoni = new QDialogButtonBox;
    m_interrompi = bottoni->addButton(u"&Interrompi"_s, QDialogButtonBox::RejectRole);
    m_interrompi->setObjectName(u"interrompi"_s);
    connect(m_interrompi, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(m_inMano);
    layout->addWidget(m_barra);
    layout->addStretch();
    layout->addWidget(bottoni);
    return pagina;
}

void FinestraLotto::procedi() {
    if (m_iniziato)
        return;
    m_iniziato = true;
    m_pagine->setCurrentIndex(1);
    m_interrompi->setFocus();
    m_lotto->inizia();
    m_passo.start(0);
}

void FinestraLotto::lavora() {
    QElapsedTimer orologio;
    orologio.start();
    Lotto::Passo passo = Lotto::Passo::Avanza;
    while (passo == Lotto::Passo::Avanza && orologio.elapsed() < perVolta)
        passo = m_lotto->passo();
    mostraAvanzamento();
    if (passo != Lotto::Passo::Finito)
        return m_passo.start(passo == Lotto::Passo::Attende ? attesa : 0);
    const RapportoLotto rapporto = m_lotto->rapporto();
    const Finito finito = m_finito;
    m_lotto.reset();
    done(Accepted);
    finito(rapporto);
}

void FinestraLotto::mostraAvanzamento() {
    m_barra->setValue(m_lotto->finiti());
    if (!m_lotto->inMano().isEmpty() && m_interrompi->isEnabled())
        m_inMano->setText(m_lotto->inMano());
}

void FinestraLotto::reject() {
    if (!m_iniziato)
        return QDialog::reject();
    if (!m_lotto || !m_interrompi->isEnabled())
        return;
    m_interrompi->setEnabled(false);
    m_inMano->setText(u"Si finisce il documento in corso…"_s);
    m_lotto->interrompi();
}

} // namespace bor
