#include "lanciatore/scelta.h"

#include "archive/promemoria.h"
#include "borcopia/appunti.h"
#include "common/testo.h"
#include "lanciatore/pannellocopia.h"
#include "ui/adattatori.h"
#include "ui/guida.h"
#include "ui/icona.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace bor::lancia {

using namespace Qt::StringLiterals;

namespace {

constexpr int colonnaCodice = 0;
constexpr int colonnaNome = 1;
constexpr int colonnaCopia = 2;

QLabel* titolo(const QString& testo) {
    auto* label = new QLabel(testo);
    QFont carattere = label->font();
    carattere.setPointSizeF(carattere.pointSizeF() * 1.6);
    label->setFont(carattere);
    return label;
}

/// `icona` names a picture of the module's screens.
QPushButton* bottone(const QString& nome, const QString& testo, const QString& icona,
                     const QString& suggerimento) {
    auto* nuovo = new QPushButton(bor::icona(icona), testo);
    nuovo->setObjectName(nome);
    nuovo->setToolTip(suggerimento);
    nuovo->setMinimumSize(nuovo->sizeHint() + QSize(20, 8));
    return nuovo;
}

QString testoCopia(const std::optional<copia::Appunti>& copia) {
    if (!copia)
        return u"mai"_s;
    const QString quando = copia->quando.toLocalTime().toString(u"dd/MM/yyyy HH:mm");
    return copia->errori == 0 ? quando : u"%1 (errori: %2)"_s.arg(quando).arg(copia->errori);
}

} // namespace

SceltaAzienda::SceltaAzienda(const QString& unita, const QString& cartellaProgrammi, Apri apri)
    : m_percorsi(Percorsi::predefiniti(unita)), m_cartellaProgrammi(cartellaProgrammi),
      m_apri(std::move(apri)) {
    setWindowTitle(u"Borlano - Aziende"_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_pagine = new QStackedWidget;
    m_pagine->addWidget(costruisciElenco());
    m_pagine->addWidget(costruisciInvito());
    auto* disposizione = new QVBoxLayout(this);
    disposizione->setContentsMargins(18, 16, 18, 16);
    disposizione->setSpacing(12);
    disposizione->addWidget(costruisciTestata());
    disposizione->addWidget(m_pagine, 1);
    disposizione->addWidget(costruisciCopia());
    disposizione->addWidget(costruisciComandi());
    resize(620, 420);

    auto* ricarica = new QShortcut(QKeySequence::Refresh, this);
    connect(ricarica, &QShortcut::activated, this, &SceltaAzienda::aggiorna);
    auto* aiuto = new QShortcut(Qt::Key_F1, this);
    aiuto->setAutoRepeat(false);
    connect(aiuto, &QShortcut::activated, this, &SceltaAzienda::mostraGuida);
    connect(&m_borcrea, &QProcess::finished, this, [this](int codice, QProcess::ExitStatus stato) {
        finitaDimostrazione(stato == QProcess::NormalExit && codice == 0);
    });
    connect(&m_borcrea, &QProcess::errorOccurred, this, [this](QProcess::ProcessError errore) {
        if (errore == QProcess::FailedToStart)
            finitaDimostrazione(false);
    });
    cambiaUnita(unita);
}

SceltaAzienda::~SceltaAzienda() {
    // A company half made would be worse than a window that closes a moment later.
    m_borcrea.waitForFinished();
}

QWidget* SceltaAzienda::costruisciTestata() {
    auto* testata = new QWidget;
    auto* disposizione = new QVBoxLayout(testata);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->setSpacing(2);
    disposizione->addWidget(titolo(u"Scegli l'azienda"_s));
    m_unita = new QLabel;
    m_unita->setObjectName(u"unita"_s);
    m_unita->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_unita->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_unita->setForegroundRole(QPalette::PlaceholderText);
    disposizione->addWidget(m_unita);
    return testata;
}

QWidget* SceltaAzienda::costruisciElenco() {
    m_elenco = new QTreeWidget;
    m_elenco->setObjectName(u"elenco"_s);
    m_elenco->setAccessibleName(u"Aziende"_s);
    m_elenco->setHeaderLabels({u"Codice"_s, u"Azienda"_s, u"Ultima copia"_s});
    m_elenco->setRootIsDecorated(false);
    m_elenco->setUniformRowHeights(true);
    m_elenco->setAlternatingRowColors(true);
    m_elenco->setAllColumnsShowFocus(true);
    m_elenco->header()->setStretchLastSection(false);
    m_elenco->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_elenco->header()->setSectionResizeMode(colonnaNome, QHeaderView::Stretch);
    m_elenco->setStyleSheet(u"QTreeWidget::item { padding: 5px 8px; }"_s);
    connect(m_elenco, &QTreeWidget::itemDoubleClicked, this, &SceltaAzienda::apriScelta);
    return m_elenco;
}

QWidget* SceltaAzienda::costruisciInvito() {
    auto* invito = new QWidget;
    m_invito = new QLabel;
    m_invito->setObjectName(u"invito"_s);
    m_invito->setWordWrap(true);
    m_invito->setAlignment(Qt::AlignCenter);
    m_crea = bottone(u"crea"_s, u"&Crea l'azienda dimostrativa"_s, u"inserisci"_s,
                     u"Crea l'azienda 001 in questa unità"_s);
    connect(m_crea, &QPushButton::clicked, this, &SceltaAzienda::creaDimostrazione);
    auto* disposizione = new QVBoxLayout(invito);
    disposizione->setSpacing(16);
    disposizione->addStretch();
    disposizione->addWidget(m_invito);
    disposizione->addWidget(m_crea, 0, Qt::AlignHCenter);
    disposizione->addStretch();
    return invito;
}

QWidget* SceltaAzienda::costruisciCopia() {
    auto* riga = new QWidget;
    m_copiaBottone = bottone(u"copia"_s, u"Copia di &sicurezza..."_s, u"salva"_s,
                             u"Copia l'azienda scelta, anche mentre altri ci lavorano (Alt+S)"_s);
    connect(m_copiaBottone, &QPushButton::clicked, this, &SceltaAzienda::chiediCopia);
    m_copia = new PannelloCopia(m_cartellaProgrammi, [this] { aggiorna(); });
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addWidget(m_copiaBottone, 0, Qt::AlignLeft);
    disposizione->addWidget(m_copia, 1);
    return riga;
}

QWidget* SceltaAzienda::costruisciComandi() {
    auto* comandi = new QWidget;
    m_altra = bottone(u"altraUnita"_s, u"&Altra unità..."_s, u"cerca"_s,
                      u"Sceglie la cartella che contiene suprok (Alt+A)"_s);
    connect(m_altra, &QPushButton::clicked, this, &SceltaAzienda::chiediUnita);
    QPushButton* rileggi = bottone(u"aggiorna"_s, u"A&ggiorna"_s, u"aggiorna"_s, u"Rilegge l'elenco (F5)"_s);
    connect(rileggi, &QPushButton::clicked, this, &SceltaAzienda::aggiorna);
    QPushButton* guida = bottone(u"guida"_s, u"G&uida"_s, u"guida"_s, u"Apre la guida (F1)"_s);
    connect(guida, &QPushButton::clicked, this, &SceltaAzienda::mostraGuida);
    QPushButton* esci = bottone(u"esci"_s, u"&Esci"_s, u"esci"_s, u"Chiude la finestra (Esc)"_s);
    connect(esci, &QPushButton::clicked, this, &QDialog::reject);
    m_apriBottone = bottone(u"apri"_s, u"A&pri"_s, u"conferma"_s, u"Apre l'azienda scelta (Invio)"_s);
    connect(m_apriBottone, &QPushButton::clicked, this, &SceltaAzienda::apriScelta);
    auto* disposizione = new QHBoxLayout(comandi);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addWidget(m_altra);
    disposizione->addWidget(rileggi);
    disposizione->addWidget(guida);
    disposizione->addStretch();
    disposizione->addWidget(esci);
    disposizione->addWidget(m_apriBottone);
    return comandi;
}

void SceltaAzienda::cambiaUnita(const QString& unita) {
    m_percorsi = Percorsi::predefiniti(unita);
    const QString nome = QDir::toNativeSeparators(m_percorsi.radiceCorrente());
    m_unita->setText(u"Unità: "_s + nome);
    m_unita->setToolTip(nome);
    m_copia->dimentica();
    aggiorna();
}

void SceltaAzienda::aggiorna() {
    const QTreeWidgetItem* corrente = m_elenco->currentItem();
    const QVariant scelta = corrente ? corrente->data(colonnaCodice, Qt::UserRole) : QVariant();
    m_elenco->clear();
    for (const Azienda& azienda : elencaAziende(m_percorsi)) {
        const QString nome = azienda.nome.isEmpty() ? u"(senza nome)"_s : azienda.nome;
        const auto copia =
            copia::ultimaCopia(m_percorsi.reale(cartellaAzienda(azienda.codice)).value_or(QString()));
        auto* riga = new QTreeWidgetItem(
            m_elenco, {zeriDavanti(QString::number(azienda.codice), 3), nome, testoCopia(copia)});
        riga->setToolTip(colonnaCopia, copia ? copia->file + u", da "_s + copia->computer : QString());
        riga->setData(colonnaCodice, Qt::UserRole, azienda.codice);
        riga->setToolTip(colonnaNome, nome);
        if (azienda.codice == scelta)
            m_elenco->setCurrentItem(riga);
    }
    const bool vuoto = m_elenco->topLevelItemCount() == 0;
    m_pagine->setCurrentIndex(vuoto ? 1 : 0);
    m_apriBottone->setDisabled(vuoto);
    m_copiaBottone->setDisabled(vuoto || m_copia->inCorso());
    if (vuoto) {
        invita();
        return;
    }
    m_apriBottone->setDefault(true);
    if (!m_elenco->currentItem())
        m_elenco->setCurrentItem(m_elenco->topLevelItem(0));
    m_elenco->setFocus();
}

/// Enter makes a company on the user's own drive only: any other one without companies is rather a mistake.
void SceltaAzienda::invita() {
    const bool propria = QDir(m_percorsi.radiceCorrente()) == QDir(unitaPredefinita());
    const QString prova = u"Per provare il programma se ne può creare una dimostrativa, "
                          "con clienti, articoli e documenti di due anni."_s;
    m_invito->setText(propria
                          ? u"In questa unità non c'è ancora nessuna azienda.\n"_s + prova
                          : u"In questa cartella non c'è nessuna azienda. Forse non è quella che contiene "
                            "suprok, o il disco di rete non è collegato: scegliete «Altra unità...», "
                            "o collegatelo e premete «Aggiorna».\n"_s +
                                prova);
    QPushButton* solito = propria ? m_crea : m_altra;
    solito->setDefault(true);
    solito->setFocus();
}

std::optional<int> SceltaAzienda::scelta() const {
    const QTreeWidgetItem* riga = m_elenco->currentItem();
    return riga ? std::optional(riga->data(colonnaCodice, Qt::UserRole).toInt()) : std::nullopt;
}

void SceltaAzienda::apriScelta() {
    const auto codice = scelta();
    if (!codice)
        return;
    if (const QString motivo = ostacolo(m_percorsi, *codice); !motivo.isEmpty())
        QMessageBox::critical(this, u"Attenzione"_s, motivo);
    else if (!m_apri(m_percorsi, *codice))
        QMessageBox::critical(this, u"Attenzione"_s,
                              u"Il programma non si avvia: manca borfte in "_s + m_cartellaProgrammi);
}

void SceltaAzienda::chiediUnita() {
    const QString scelta = QFileDialog::getExistingDirectory(this, u"Cartella che contiene suprok"_s,
                                                             m_percorsi.radiceCorrente());
    if (scelta.isEmpty())
        return;
    cambiaUnita(scelta);
    ricordaUnita(scelta);
}

void SceltaAzienda::mostraGuida() {
    SistemaQt sistema;
    OperatoreQt operatore;
    operatore.usa(this);
    apriGuida(sistema, operatore, u"primo-avvio"_s);
}

void SceltaAzienda::chiediCopia() {
    const auto codice = scelta();
    if (!codice)
        return;
    const QString prima = Promemoria(m_percorsi, *codice).cartellaCopie();
    const QString cartella = QFileDialog::getExistingDirectory(this, u"Cartella in cui mettere la copia"_s,
                                                               prima.isEmpty() ? QDir::homePath() : prima);
    if (!cartella.isEmpty())
        copia(cartella);
}

void SceltaAzienda::copia(const QString& cartella) {
    const auto codice = scelta();
    if (!codice || m_copia->inCorso())
        return;
    Promemoria(m_percorsi, *codice).segnaCartellaCopie(cartella);
    m_copiaBottone->setEnabled(false);
    m_copia->avvia(m_percorsi.radiceCorrente(), *codice, cartella);
}

void SceltaAzienda::reject() {
    if (!m_copia->inCorso() ||
        QMessageBox::question(this, u"Copia di sicurezza"_s,
                              u"La copia non è finita. La interrompo? Non ne resta nulla."_s,
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes)
        QDialog::reject();
}

void SceltaAzienda::creaDimostrazione() {
    m_crea->setEnabled(false);
    m_crea->setText(u"Creo l'azienda..."_s);
    const Comando comando = comandoDimostrazione(m_cartellaProgrammi, m_percorsi.radiceCorrente());
    QDir().mkpath(m_percorsi.radiceCorrente());
    m_borcrea.start(comando.programma, comando.argomenti, QIODevice::ReadOnly);
}

void SceltaAzienda::finitaDimostrazione(bool riuscita) {
    m_crea->setEnabled(true);
    m_crea->setText(u"&Crea l'azienda dimostrativa"_s);
    if (!riuscita) {
        const QString motivo = QString::fromLocal8Bit(m_borcrea.readAllStandardError()).trimmed();
        QMessageBox::critical(this, u"Attenzione"_s,
                              u"L'azienda dimostrativa non è stata creata.\n\n"_s +
                                  (motivo.isEmpty() ? m_borcrea.errorString() : motivo));
    }
    aggiorna();
}

} // namespace bor::lancia
